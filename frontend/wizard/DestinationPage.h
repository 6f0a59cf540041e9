#pragma once

#include "wizard/Page.h"

class QLineEdit;
class QPushButton;

namespace Vorlan::FrontEnd
{

// Page with the installation folder. The engine validates the text while it is edited; its error
// text is shown below the field.
class DestinationPage : public Page
{
public:
    // Proposes the folder of the settings, and shows their required space.
    explicit DestinationPage(const InstallationSettings& settings);

    void Retranslate(const QString& locale) override;
    void Apply(InstallationSettings& settings) const override;
    bool IsComplete() const override { return isValid; }
    QWidget* FirstControl() const override;

    // Validates the folder again, because the disk may have changed.
    void Check();

    // The installation folder for the typed text.
    QString Folder() const;

private:
    void Browse();
    void ShowSpace();

    InstallationSettings settings;
    QString locale;
    bool isValid = false;
    QLabel* heading;
    QLabel* intro;
    QLabel* folderLabel;
    QLineEdit* folder;
    QPushButton* browse;
    QLabel* error;
    QLabel* target;
    QLabel* space;
};

} // namespace Vorlan::FrontEnd
