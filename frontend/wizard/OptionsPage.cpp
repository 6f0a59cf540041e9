#include "wizard/OptionsPage.h"

#include "base/TriState.h"
#include "widgets/MultiLayerBackgroundFrame.h"
#include "wizard/FolderChooser.h"
#include "wizard/Texts.h"

#include <QCheckBox>
#include <QRadioButton>
#include <QVBoxLayout>

namespace Vorlan::FrontEnd
{

OptionsPage::OptionsPage(const InstallationSettings& settings, OfferedOptions offeredOptions)
    : Page("optionsPage", LayerSets::installerWithTaglines, Shape::Form),
      offered(offeredOptions),
      heading(AddHeading())
{
    MakeScrollable();
    scopeLabel = AddText("group");
    currentUser = AddRadio("currentUser", settings.scope == QSettings::UserScope);
    allUsers = AddRadio("allUsers", settings.scope == QSettings::SystemScope);
    Body()->addSpacing(8);
    folder = new FolderChooser(settings, this);
    Body()->addWidget(folder);
    Body()->addSpacing(8);
    extrasLabel = AddText("group");
    shortcuts = AddCheck("shortcuts", settings.createShortcuts);
    contextMenu = AddCheck("contextMenu", settings.contextMenuConvert == TriState::chosen);
    autoLaunch =
        AddCheck("autoLaunch", settings.autoLaunch == TriState::chosen, offered.autoLaunch);
    statistics =
        AddCheck("statistics", settings.sendStatistics == TriState::chosen, offered.statistics);
    Body()->addStretch();
    folder->checked = [this] { completenessChanged(); };
    connect(allUsers, &QRadioButton::toggled, this, [this] { scopeChosen(Scope()); });
}

QRadioButton* OptionsPage::AddRadio(const char* name, bool isChosen)
{
    auto* radio = new QRadioButton(this);
    radio->setObjectName(name);
    radio->setChecked(isChosen);
    Body()->addWidget(radio);
    return radio;
}

QCheckBox* OptionsPage::AddCheck(const char* name, bool isChosen, bool isOffered)
{
    auto* check = new QCheckBox(this);
    check->setObjectName(name);
    check->setChecked(isChosen);
    check->setHidden(!isOffered);
    Body()->addWidget(check);
    return check;
}

void OptionsPage::Propose(const InstallationSettings& settings)
{
    folder->Propose(settings.installDir);
}

bool OptionsPage::IsComplete() const
{
    return folder->IsValid();
}

void OptionsPage::Retranslate(const QString& locale)
{
    heading->setText(WizardText("How to install"));
    scopeLabel->setText(WizardText("Install for"));
    currentUser->setText(WizardText("Only for &me"));
    allUsers->setText(WizardText("&All users of this computer (administrator rights needed)"));
    folder->Retranslate(locale);
    extrasLabel->setText(WizardText("Also"));
    shortcuts->setText(WizardText("Create &shortcuts on the desktop and in the Start menu"));
    contextMenu->setText(
        WizardText("Offer \"Convert to\" and \"Open with\" in the &context menu of media files"));
    autoLaunch->setText(WizardText("Start automatically when I &log on"));
    statistics->setText(WizardText("Send anonymous &usage statistics to improve the program"));
}

void OptionsPage::Apply(InstallationSettings& settings) const
{
    settings.scope = Scope();
    settings.installDir = folder->Folder();
    settings.createShortcuts = shortcuts->isChecked();
    settings.contextMenuConvert = TriState::Of(contextMenu->isChecked());
    settings.contextMenuOpenWith = settings.contextMenuConvert;
    if (offered.autoLaunch)
        settings.autoLaunch = TriState::Of(autoLaunch->isChecked());
    if (offered.statistics)
        settings.sendStatistics = TriState::Of(statistics->isChecked());
}

QWidget* OptionsPage::FirstControl() const
{
    return allUsers->isChecked() ? allUsers : currentUser;
}

QSettings::Scope OptionsPage::Scope() const
{
    return allUsers->isChecked() ? QSettings::SystemScope : QSettings::UserScope;
}

} // namespace Vorlan::FrontEnd
