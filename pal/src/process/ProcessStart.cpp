#include "process/ProcessStart.h"

#include "ErrorMapping.h"
#include "Machine.h"
#include "WideText.h"

#include <QString>

#include <cerrno>
#include <csignal>
#include <filesystem>

#include <fcntl.h>
#include <spawn.h>
#include <unistd.h>

namespace Pal
{

namespace
{

namespace fs = std::filesystem;

std::string Utf8(std::wstring_view text)
{
    return QString::fromStdU16String(Utf16FromWide(text)).toStdString();
}

bool IsNamed(const fs::path& program, const char* name)
{
    return QString::fromStdString(program.filename()).compare(name, Qt::CaseInsensitive) == 0;
}

bool IsBatch(const fs::path& program)
{
    return QString::fromStdString(program.extension()).compare(".bat", Qt::CaseInsensitive) == 0;
}

// Streams, folder, signals and session of a new process.
class SpawnSettings
{
public:
    explicit SpawnSettings(const ProcessStart& start)
    {
        posix_spawn_file_actions_init(&actions);
        posix_spawnattr_init(&attributes);
        for (size_t stream = 0; stream < streams.size(); ++stream)
        {
            streams[stream] = OpenStream(start.streams[stream]);
            posix_spawn_file_actions_adddup2(
                &actions, streams[stream].Get(), static_cast<int>(stream));
        }
        posix_spawn_file_actions_addclosefrom_np(&actions, 3);
        if (!start.folder.empty())
            posix_spawn_file_actions_addchdir_np(&actions, start.folder.c_str());
        ResetSignals(start.ownSession);
    }
    ~SpawnSettings()
    {
        posix_spawnattr_destroy(&attributes);
        posix_spawn_file_actions_destroy(&actions);
    }
    SpawnSettings(const SpawnSettings&) = delete;
    SpawnSettings& operator=(const SpawnSettings&) = delete;

    const posix_spawn_file_actions_t* Actions() const { return &actions; }
    const posix_spawnattr_t* Attributes() const { return &attributes; }

private:
    // Duplicates above the standard numbers, so that no stream overwrites the source of another. A
    // stream that this process has closed is replaced by the null device.
    static Descriptor OpenStream(int source)
    {
        Descriptor copy(source < 0 ? -1 : fcntl(source, F_DUPFD_CLOEXEC, 3));
        if (copy.IsOpen())
            return copy;
        const Descriptor nothing(open("/dev/null", O_RDWR | O_CLOEXEC));
        return Descriptor(fcntl(nothing.Get(), F_DUPFD_CLOEXEC, 3));
    }

    // Signals that this process blocks or ignores are not blocked or ignored in the new one.
    void ResetSignals(bool ownSession)
    {
        sigset_t none;
        sigset_t all;
        sigemptyset(&none);
        sigfillset(&all);
        posix_spawnattr_setsigmask(&attributes, &none);
        posix_spawnattr_setsigdefault(&attributes, &all);
        int flags = POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF;
        if (ownSession)
            flags |= POSIX_SPAWN_SETSID;
        posix_spawnattr_setflags(&attributes, static_cast<short>(flags));
    }

    posix_spawn_file_actions_t actions = {};
    posix_spawnattr_t attributes = {};
    std::array<Descriptor, 3> streams;
};

std::vector<char*> Pointers(const std::vector<std::string>& texts)
{
    std::vector<char*> pointers;
    pointers.reserve(texts.size() + 1);
    for (const std::string& text : texts)
        pointers.push_back(const_cast<char*>(text.c_str()));
    pointers.push_back(nullptr);
    return pointers;
}

// This process's environment, with the mark of an elevated process.
std::vector<std::string> Environment(bool elevated)
{
    const std::string mark = std::string(elevatedVariable) + '=';
    std::vector<std::string> variables;
    for (char** variable = environ; *variable != nullptr; ++variable)
    {
        if (!elevated || mark.compare(0, mark.npos, *variable, mark.size()) != 0)
            variables.emplace_back(*variable);
    }
    if (elevated)
        variables.push_back(mark + '1');
    return variables;
}

} // namespace

ProcessStart PlanStart(
    const std::string& program, std::vector<std::wstring> words, std::wstring_view rest)
{
    if (IsNamed(program, "cmd.exe"))
        words = {words.front(), std::wstring(rest)};
    ProcessStart start;
    start.program = program;
    for (const std::wstring& word : words)
        start.arguments.push_back(Utf8(word));
    if (IsBatch(program))
    {
        start.program = "/bin/sh";
        start.arguments.front() = program;
        start.arguments.insert(start.arguments.begin(), start.program);
    }
    return start;
}

DWORD StartProcess(const ProcessStart& start, std::shared_ptr<Process>& process)
{
    std::error_code error;
    if (!start.folder.empty() && !fs::is_directory(start.folder, error))
        return ERROR_DIRECTORY;
    const SpawnSettings settings(start);
    pid_t id = 0;
    const int result =
        posix_spawn(&id, start.program.c_str(), settings.Actions(), settings.Attributes(),
            Pointers(start.arguments).data(), Pointers(Environment(start.elevated)).data());
    return result == 0 ? AdoptChild(id, process) : ErrorForPath(result, start.program);
}

} // namespace Pal
