#include "HolderProcess.h"

#include <Descriptor.h>

#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

#include <csignal>
#include <sys/syscall.h>
#include <unistd.h>

namespace Vorlan::FrontEnd
{
namespace
{

// The fields of /proc/<id>/stat from the third on, see proc(5): the second one, the name in
// parentheses, may have blanks. Empty if there is no such process.
std::vector<std::string> StatFields(qint64 processId)
{
    std::ifstream file("/proc/" + std::to_string(processId) + "/stat");
    const std::string content(std::istreambuf_iterator<char>(file), {});
    std::istringstream fields(content.substr(content.rfind(')') + 1));
    return {std::istream_iterator<std::string>(fields), {}};
}

// Numbers of fields, counted from the third one.
constexpr std::size_t stateField = 0;
constexpr std::size_t parentField = 1;
constexpr std::size_t startTimeField = 19;

quint64 NumberIn(const std::vector<std::string>& fields, std::size_t field)
{
    return field < fields.size() ? std::stoull(fields[field]) : 0;
}

// The descriptor stays that of this process when its id is used again.
bool Signal(const FileHolder& holder, int number)
{
    const Pal::Descriptor process(
        static_cast<int>(syscall(SYS_pidfd_open, static_cast<pid_t>(holder.processId), 0)));
    return process.IsOpen() && StartTimeOf(holder.processId) == holder.startTime &&
           syscall(SYS_pidfd_send_signal, process.Get(), number, nullptr, 0) == 0;
}

} // namespace

std::set<qint64> OwnProcessIds()
{
    std::set<qint64> ids;
    for (auto id = static_cast<qint64>(getpid()); id > 1 && ids.insert(id).second;)
        id = static_cast<qint64>(NumberIn(StatFields(id), parentField));
    return ids;
}

// A process that has ended stays in the list as "Z" until its parent has asked for its exit code.
quint64 StartTimeOf(qint64 processId)
{
    const std::vector<std::string> fields = StatFields(processId);
    const bool isRunning =
        !fields.empty() && fields[stateField] != "Z" && fields[stateField] != "X";
    return isRunning ? NumberIn(fields, startTimeField) : 0;
}

bool AskToEnd(const FileHolder& holder)
{
    return Signal(holder, SIGTERM);
}

bool EndAtOnce(const FileHolder& holder)
{
    return Signal(holder, SIGKILL);
}

} // namespace Vorlan::FrontEnd
