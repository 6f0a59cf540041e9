#pragma once

#include "wizard/Page.h"

class QCheckBox;
class QRadioButton;

namespace Vorlan::FrontEnd
{

// The optional check boxes of the page.
struct OfferedOptions
{
    bool autoLaunch; // the product has a program that can start at logon
    bool statistics; // the user has not been asked on this machine before
};

// Page with the scope, shortcuts and other options.
class OptionsPage : public Page
{
public:
    // Presets the controls from the settings.
    OptionsPage(const InstallationSettings& settings, OfferedOptions offered);

    void Retranslate(const QString& locale) override;
    void Apply(InstallationSettings& settings) const override;
    QWidget* FirstControl() const override;

    QSettings::Scope Scope() const;

    std::function<void()> scopeChanged = [] {};

private:
    QRadioButton* AddRadio(const char* name, bool isChosen);
    QCheckBox* AddCheck(const char* name, bool isChosen, bool isOffered = true);

    OfferedOptions offered;
    QLabel* heading;
    QLabel* scopeLabel;
    QRadioButton* currentUser;
    QRadioButton* allUsers;
    QLabel* extrasLabel;
    QCheckBox* shortcuts;
    QCheckBox* contextMenu;
    QCheckBox* autoLaunch;
    QCheckBox* statistics;
};

} // namespace Vorlan::FrontEnd
