#include "wizard/CloseWithConsent.h"

#include "widgets/AlertBox.h"
#include "wizard/InUsePage.h"
#include "wizard/Texts.h"
#include "wizard/WizardWindow.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace Vorlan::FrontEnd
{
namespace
{

constexpr std::size_t mostNames = 5; // that fit into a box

std::vector<FileHolder> ThoseThatMayBeClosed(
    const std::vector<FileHolder>& holders, const ProcessAccess& access)
{
    std::vector<FileHolder> programs;
    std::copy_if(holders.begin(), holders.end(), std::back_inserter(programs),
        [&](const FileHolder& holder) { return MayBeClosed(holder, access); });
    return programs;
}

QString Question(const std::vector<FileHolder>& programs)
{
    QStringList names;
    for (std::size_t index = 0; index < std::min(programs.size(), mostNames); ++index)
        names << HolderText(programs[index]);
    if (programs.size() > mostNames)
        names << QStringLiteral("...");
    return WizardText("Not closed: %1. End them now? What is not saved in them is lost.")
        .arg(names.join(", "));
}

} // namespace

void CloseWithConsent(WizardWindow& window, InUsePage& page, const ProcessAccess& access)
{
    page.ShowWaiting();
    window.SetLabels({});
    const auto formerClose = std::exchange(window.closeRequested, [] {});
    const std::vector<FileHolder> left =
        ThoseThatMayBeClosed(AskToClose(page.Programs(), access), access);
    if (!left.empty() && AlertBox::question(&window, Question(left)) == QDialogButtonBox::Yes)
        EndHolders(left, access);
    window.closeRequested = formerClose;
}

} // namespace Vorlan::FrontEnd
