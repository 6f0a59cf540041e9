#pragma once

#include "wizard/Page.h"

class QLineEdit;
class QPushButton;

namespace Vorlan::FrontEnd
{

// Lets choose the folder. The engine's own check runs as the person types; what it objects to is
// shown below the field.
class DestinationPage : public Page
{
public:
    // The proposal is the folder of the settings; they also say what is needed there.
    explicit DestinationPage(const InstallationSettings& settings);

    void Retranslate(const QString& locale) override;
    void Apply(InstallationSettings& settings) const override;
    bool IsComplete() const override { return isValid; }
    QWidget* FirstControl() const override;

    // Looks at the folder again: the disk may have changed.
    void Check();

    // The folder made fit for the installation.
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
