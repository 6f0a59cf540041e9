#include "wizard/OtherFolderPage.h"

#include "widgets/MultiLayerBackgroundFrame.h"
#include "wizard/Texts.h"

#include <QDir>
#include <QVBoxLayout>

namespace Vorlan::FrontEnd
{

OtherFolderPage::OtherFolderPage(const QString& ownFolder, const QString& refusalText, int count)
    : Page("otherFolderPage", LayerSets::uninstallStart, Shape::Form),
      folder(QDir::toNativeSeparators(ownFolder)),
      refusal(refusalText),
      copyCount(count),
      heading(AddHeading())
{
    MakeScrollable();
    reason = AddText("intro");
    copy = AddText("copy");
    Body()->addStretch();
}

void OtherFolderPage::Retranslate(const QString&)
{
    heading->setText(UninstallText("%1 is not installed here").arg(ProductTitle()));
    reason->setText(refusal);
    copy->setText(copyCount == 0
                      ? UninstallText("Nothing in this folder is known to be of the program.")
                      : UninstallText("A copy of the program is in %1: %2 files. They can be "
                                      "deleted. Other files in the folder stay, and so does the "
                                      "installation.")
                            .arg(PathText(folder))
                            .arg(copyCount));
}

} // namespace Vorlan::FrontEnd
