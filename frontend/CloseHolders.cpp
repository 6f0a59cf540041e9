#include "CloseHolders.h"

#include "HolderProcess.h"

#include <QDebug>
#include <QEventLoop>
#include <QTimer>

#include <algorithm>
#include <iterator>

namespace Vorlan::FrontEnd
{
namespace
{

constexpr std::chrono::seconds waitLimit(10);
constexpr int pauseMs = 50;

void ProcessEventsForAMoment()
{
    QEventLoop loop;
    QTimer::singleShot(pauseMs, &loop, &QEventLoop::quit);
    loop.exec();
}

std::vector<FileHolder> Running(const std::vector<FileHolder>& holders, const ProcessAccess& access)
{
    std::vector<FileHolder> running;
    std::copy_if(holders.begin(), holders.end(), std::back_inserter(running),
        [&](const FileHolder& holder)
        { return access.startTimeOf(holder.processId) == holder.startTime; });
    return running;
}

std::vector<FileHolder> WaitForEnd(std::vector<FileHolder> holders, const ProcessAccess& access)
{
    const auto start = access.now();
    holders = Running(holders, access);
    while (!holders.empty() && access.now() - start < waitLimit)
    {
        access.pause();
        holders = Running(holders, access);
    }
    return holders;
}

} // namespace

ProcessAccess SystemProcesses()
{
    return {OwnProcessIds, StartTimeOf, AskToEnd, EndAtOnce, std::chrono::steady_clock::now,
        ProcessEventsForAMoment};
}

bool MayBeClosed(const FileHolder& holder, const ProcessAccess& access)
{
    return !holder.isCritical && holder.startTime != 0 &&
           access.startTimeOf(holder.processId) == holder.startTime &&
           access.ownIds().count(holder.processId) == 0;
}

std::vector<FileHolder> AskToClose(
    const std::vector<FileHolder>& holders, const ProcessAccess& access)
{
    std::vector<FileHolder> asked;
    for (const FileHolder& holder : holders)
    {
        if (!MayBeClosed(holder, access))
            continue;
        const bool isAsked = access.ask(holder);
        qInfo().noquote() << (isAsked ? "Asked to close:" : "Cannot be asked to close:")
                          << HolderText(holder);
        if (isAsked)
            asked.push_back(holder);
    }
    WaitForEnd(asked, access);
    return Running(holders, access);
}

std::vector<FileHolder> EndHolders(
    const std::vector<FileHolder>& holders, const ProcessAccess& access)
{
    std::vector<FileHolder> ended;
    for (const FileHolder& holder : holders)
    {
        const bool isEnded = MayBeClosed(holder, access) && access.end(holder);
        qInfo().noquote() << (isEnded ? "Ended:" : "Not ended:") << HolderText(holder);
        if (isEnded)
            ended.push_back(holder);
    }
    WaitForEnd(ended, access);
    return Running(holders, access);
}

} // namespace Vorlan::FrontEnd
