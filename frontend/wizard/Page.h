#pragma once

#include "base/InstallationSettings.h"

#include <QLabel>
#include <QStringList>
#include <QWidget>

#include <functional>

class QVBoxLayout;

namespace Vorlan::FrontEnd
{

// One page of a window: the part below the picture. A page shows and gathers; what happens next is
// the window's business.
class Page : public QWidget
{
public:
    // `layers` is the picture above the page; a form shows only a strip of it.
    enum class Shape
    {
        UnderPicture,
        Form
    };
    Page(const char* name, const QStringList& layers, Shape shape);

    // Sets every text anew, in the language that is installed.
    virtual void Retranslate(const QString& locale) = 0;
    // Puts what the page gathered into the settings.
    virtual void Apply(InstallationSettings&) const {}
    virtual bool IsComplete() const { return true; }
    // The control that the keyboard begins with; null for the window's own button.
    virtual QWidget* FirstControl() const { return nullptr; }

    const QStringList& Layers() const { return layers; }
    Shape PictureShape() const { return shape; }

    // Called when the page has become complete or incomplete.
    std::function<void()> completenessChanged = [] {};

protected:
    QVBoxLayout* Body() const { return body; }
    // A heading at the top of the page.
    QLabel* AddHeading();
    // A text that may need several lines.
    QLabel* AddText(const char* name);
    // One line, shortened where it is too long.
    QLabel* AddLine(const char* name);

private:
    QStringList layers;
    Shape shape;
    QVBoxLayout* body;
};

} // namespace Vorlan::FrontEnd
