#pragma once

#include "wizard/Page.h"

class QCheckBox;
class QRadioButton;

namespace Vorlan::FrontEnd
{

class FolderChooser;

// The optional check boxes of the page.
struct OfferedOptions
{
    bool autoLaunch; // the product has a program that can start at logon
    bool statistics; // the user has not been asked on this machine before
};

// Page with scope, folder, shortcuts and other options. It scrolls on a low screen.
class OptionsPage : public Page
{
public:
    // Presets the controls from the settings.
    OptionsPage(const InstallationSettings& settings, OfferedOptions offered);

    void Retranslate(const QString& locale) override;
    void Apply(InstallationSettings& settings) const override;
    bool IsComplete() const override;
    QWidget* FirstControl() const override;

    QSettings::Scope Scope() const;
    // Proposes the folder of another scope, unless the user has chosen one.
    void Propose(const InstallationSettings& settings);
    FolderChooser& Folder() const { return *folder; }

    std::function<void(QSettings::Scope)> scopeChosen = [](QSettings::Scope) {};

private:
    QRadioButton* AddRadio(const char* name, bool isChosen);
    QCheckBox* AddCheck(const char* name, bool isChosen, bool isOffered = true);

    OfferedOptions offered;
    QLabel* heading;
    QLabel* scopeLabel;
    QRadioButton* currentUser;
    QRadioButton* allUsers;
    FolderChooser* folder;
    QLabel* extrasLabel;
    QCheckBox* shortcuts;
    QCheckBox* contextMenu;
    QCheckBox* autoLaunch;
    QCheckBox* statistics;
};

} // namespace Vorlan::FrontEnd
