#pragma once

#include "base/InstallationSettings.h"

#include <QLabel>
#include <QStringList>
#include <QWidget>

#include <functional>

class QVBoxLayout;

namespace Vorlan::FrontEnd
{

// One page of a window: the part below the picture. A page shows and collects data; the wizard
// selects the next page.
class Page : public QWidget
{
public:
    // `layers` is the picture above the page; above a form only a strip of it is shown.
    enum class Shape
    {
        UnderPicture,
        Form
    };
    Page(const char* name, const QStringList& layers, Shape shape);

    // Sets all texts, in the language of the installed translator.
    virtual void Retranslate(const QString& locale) = 0;
    // Writes the user's choices into the settings.
    virtual void Apply(InstallationSettings&) const {}
    virtual bool IsComplete() const { return true; }
    // Whether Enter presses the forward button.
    virtual bool HasDefaultButton() const { return true; }
    // The control with the initial focus; null for the window's forward button.
    virtual QWidget* FirstControl() const { return nullptr; }

    const QStringList& Layers() const { return layers; }
    Shape PictureShape() const { return shape; }

    // Called when the page has become complete or incomplete.
    std::function<void()> completenessChanged = [] {};

protected:
    QVBoxLayout* Body() const { return body; }
    // What is added from now on scrolls if it does not fit.
    void MakeScrollable();
    // A heading at the top of the page.
    QLabel* AddHeading();
    // A text with word wrap.
    QLabel* AddText(const char* name);
    // One line, elided if it is too long.
    QLabel* AddLine(const char* name);

private:
    QStringList layers;
    Shape shape;
    QVBoxLayout* body;
};

} // namespace Vorlan::FrontEnd
