#include "wizard/UninstallStartPage.h"

#include "widgets/MultiLayerBackgroundFrame.h"
#include "wizard/Texts.h"

#include <QCheckBox>
#include <QDir>
#include <QVBoxLayout>

namespace Vorlan::FrontEnd
{

UninstallStartPage::UninstallStartPage(const QString& ownFolder, bool isDeletingSettings)
    : Page("uninstallStartPage", LayerSets::uninstallStart, Shape::UnderPicture),
      folder(QDir::toNativeSeparators(ownFolder)),
      heading(AddHeading()),
      intro(AddText("intro")),
      place(AddLine("target")),
      deleteSettings(new QCheckBox(this))
{
    deleteSettings->setObjectName("deleteSettings");
    deleteSettings->setChecked(isDeletingSettings);
    place->setToolTip(folder);
    Body()->addSpacing(8);
    Body()->addWidget(deleteSettings);
    Body()->addStretch();
}

void UninstallStartPage::Retranslate(const QString&)
{
    heading->setText(UninstallText("Uninstall %1?").arg(ProductTitle()));
    intro->setText(UninstallText("The program, its shortcuts and its entries in Windows are "
                                 "removed. Your media files stay."));
    place->setText(PathText(folder));
    deleteSettings->setText(UninstallText("&Delete my settings"));
}

bool UninstallStartPage::IsDeletingSettings() const
{
    return deleteSettings->isChecked();
}

} // namespace Vorlan::FrontEnd
