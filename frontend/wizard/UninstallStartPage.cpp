#include "wizard/UninstallStartPage.h"

#include "base/ProductProfile.h"
#include "widgets/MultiLayerBackgroundFrame.h"
#include "wizard/Texts.h"

#include <QCheckBox>
#include <QDir>
#include <QListWidget>
#include <QVBoxLayout>

namespace Vorlan::FrontEnd
{

UninstallStartPage::UninstallStartPage(const UninstallPlan& uninstallPlan)
    : Page("uninstallStartPage", LayerSets::uninstallStart,
          uninstallPlan.foreign.isEmpty() ? Shape::UnderPicture : Shape::Form),
      plan(uninstallPlan),
      heading(AddHeading()),
      intro(AddText("intro")),
      place(AddLine("target")),
      deleteSettings(new QCheckBox(this))
{
    deleteSettings->setObjectName("deleteSettings");
    deleteSettings->setChecked(plan.isDeletingSettings);
    Body()->addSpacing(8);
    Body()->addWidget(deleteSettings);
    foreignLabel = AddText("group");
    foreign = new QListWidget(this);
    foreign->setObjectName("foreign");
    foreign->setTextElideMode(Qt::ElideMiddle);
    foreign->addItems(plan.foreign);
    Body()->addWidget(foreign, 1);
    Body()->addStretch();
    foreignLabel->setHidden(plan.foreign.isEmpty());
    foreign->setHidden(plan.foreign.isEmpty());
}

void UninstallStartPage::Retranslate(const QString&)
{
    heading->setText(
        UninstallText("Uninstall %1?").arg(ProductTitle() + ' ' + ProductProfile::versionText));
    intro->setText(plan.isEverything
                       ? UninstallText("The program, its shortcuts and its entries in Windows are "
                                       "removed, and the whole folder.")
                       : UninstallText("The program, its shortcuts and its entries in Windows are "
                                       "removed. Your own files stay."));
    const QString folder = QDir::toNativeSeparators(plan.folder);
    place->setText((plan.scope == QSettings::SystemScope ? WizardText("For all users, in %1")
                                                         : WizardText("For you, in %1"))
                       .arg(PathText(folder)));
    place->setToolTip(folder);
    deleteSettings->setText(UninstallText("&Delete my settings"));
    foreignLabel->setText(plan.isEverything
                              ? UninstallText("Not of the program, and deleted with the folder:")
                              : UninstallText("Not of the program, and left in the folder:"));
    foreign->setAccessibleName(foreignLabel->text());
}

bool UninstallStartPage::IsDeletingSettings() const
{
    return deleteSettings->isChecked();
}

} // namespace Vorlan::FrontEnd
