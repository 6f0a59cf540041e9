#include "codecs/BoundedProcess.h"

#include <Descriptor.h>

#include <QFile>

#include <algorithm>
#include <array>
#include <cerrno>
#include <optional>
#include <system_error>
#include <utility>
#include <vector>

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

extern "C" // missing in this header
{
#include <sys/pidfd.h>
}

namespace Vorlan::Platform
{

namespace
{

using Clock = std::chrono::steady_clock;
using Pal::Descriptor;

struct Pipe
{
    Descriptor readEnd;
    Descriptor writeEnd;

    Pipe()
    {
        std::array<int, 2> ends{};
        if (pipe2(ends.data(), O_CLOEXEC) != 0)
            throw std::system_error(errno, std::generic_category(), "pipe");
        readEnd = Descriptor(ends[0]);
        writeEnd = Descriptor(ends[1]);
        fcntl(readEnd.Get(), F_SETFL, O_NONBLOCK);
    }
};

// Standard input and error are the null device, standard output is the pipe.
class FileActions
{
public:
    explicit FileActions(int output)
    {
        posix_spawn_file_actions_init(&actions);
        posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
        posix_spawn_file_actions_adddup2(&actions, output, STDOUT_FILENO);
        posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    }
    FileActions(const FileActions&) = delete;
    FileActions& operator=(const FileActions&) = delete;
    ~FileActions() { posix_spawn_file_actions_destroy(&actions); }
    const posix_spawn_file_actions_t* Get() const { return &actions; }

private:
    posix_spawn_file_actions_t actions{};
};

// A group of its own, and SIGPIPE as a program expects it (Qt ignores it).
class SpawnAttributes
{
public:
    SpawnAttributes()
    {
        sigset_t restored;
        sigemptyset(&restored);
        sigaddset(&restored, SIGPIPE);
        posix_spawnattr_init(&attributes);
        posix_spawnattr_setsigdefault(&attributes, &restored);
        posix_spawnattr_setpgroup(&attributes, 0);
        posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETPGROUP | POSIX_SPAWN_SETSIGDEF);
    }
    SpawnAttributes(const SpawnAttributes&) = delete;
    SpawnAttributes& operator=(const SpawnAttributes&) = delete;
    ~SpawnAttributes() { posix_spawnattr_destroy(&attributes); }
    const posix_spawnattr_t* Get() const { return &attributes; }

private:
    posix_spawnattr_t attributes{};
};

int MillisecondsUntil(Clock::time_point end)
{
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(end - Clock::now()).count();
    return static_cast<int>(std::clamp<decltype(left)>(left, 0, 1 << 30));
}

// A started program. Its process id is not reused before it is reaped, so the group can be ended
// after the program itself has ended.
class Child
{
public:
    explicit Child(pid_t started) : id(started), pidFd(pidfd_open(started, 0)) {}
    Child(const Child&) = delete;
    Child& operator=(const Child&) = delete;
    ~Child() { EndGroup(std::chrono::seconds(1)); }

    int PidFd() const { return pidFd.Get(); }

    // Ends the whole group; the program's own wait status, or nothing when it has not ended in
    // time.
    std::optional<int> EndGroup(std::chrono::milliseconds grace)
    {
        if (id == 0)
            return std::nullopt;
        kill(-id, SIGKILL);
        const Clock::time_point end = Clock::now() + grace;
        pollfd watched{pidFd.Get(), POLLIN, 0};
        while (poll(&watched, 1, MillisecondsUntil(end)) < 0 && errno == EINTR)
            continue;
        int status = 0;
        const pid_t ended = waitpid(std::exchange(id, 0), &status, WNOHANG);
        return ended > 0 ? std::optional(status) : std::nullopt;
    }

private:
    pid_t id;
    Descriptor pidFd;
};

// 0, or why it could not be started.
int Spawn(const QString& program, const QStringList& arguments, int output, pid_t& id)
{
    std::vector<std::string> texts{QFile::encodeName(program).toStdString()};
    for (const QString& argument : arguments)
        texts.push_back(argument.toStdString());
    std::vector<char*> words;
    words.reserve(texts.size() + 1);
    for (std::string& text : texts)
        words.push_back(text.data());
    words.push_back(nullptr);
    const FileActions actions(output);
    const SpawnAttributes attributes;
    return posix_spawn(&id, words[0], actions.Get(), attributes.Get(), words.data(), environ);
}

enum class Reading
{
    Waits,
    Ended,
    Overflowed
};

// Takes what is in the pipe now.
Reading ReadAvailable(int pipe, std::string& output, std::size_t maxOutput)
{
    std::array<char, 4096> buffer{};
    while (true)
    {
        const ssize_t count = read(pipe, buffer.data(), buffer.size());
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return count == 0 ? Reading::Ended : Reading::Waits;
        const auto size = static_cast<std::size_t>(count);
        output.append(buffer.data(), std::min(size, maxOutput - output.size()));
        if (output.size() == maxOutput)
            return Reading::Overflowed;
    }
}

BoundedRun::End Watch(
    const Child& child, int pipe, Clock::time_point end, std::size_t maxOutput, std::string& output)
{
    while (true)
    {
        std::array<pollfd, 2> watched{{{child.PidFd(), POLLIN, 0}, {pipe, POLLIN, 0}}};
        const int timeLeft = MillisecondsUntil(end);
        if (poll(watched.data(), watched.size(), timeLeft) < 0 && errno != EINTR)
            throw std::system_error(errno, std::generic_category(), "poll");
        const Reading reading = pipe < 0 ? Reading::Ended : ReadAvailable(pipe, output, maxOutput);
        if (reading == Reading::Overflowed)
            return BoundedRun::End::TooMuchOutput;
        if (watched[0].revents != 0)
            return BoundedRun::End::Exited;
        if (timeLeft == 0)
            return BoundedRun::End::TimedOut;
        if (reading == Reading::Ended)
            pipe = -1; // end of its output; the process may still run
    }
}

void RunInGroup(const QString& program, const QStringList& arguments,
    std::chrono::milliseconds limit, std::chrono::milliseconds grace, std::size_t maxOutput,
    BoundedRun& run)
{
    const Clock::time_point end = Clock::now() + limit;
    Pipe pipe;
    pid_t id = 0;
    if (const int error = Spawn(program, arguments, pipe.writeEnd.Get(), id))
        throw std::system_error(error, std::generic_category());
    Child child(id);
    if (child.PidFd() < 0)
        throw std::system_error(errno, std::generic_category(), "pidfd_open");
    pipe.writeEnd = Descriptor();
    const BoundedRun::End ending = Watch(child, pipe.readEnd.Get(), end, maxOutput, run.output);
    const std::optional<int> status = child.EndGroup(grace);
    run.isLeftBehind = !status;
    run.exitCode = status && WIFEXITED(*status) ? WEXITSTATUS(*status) : 0;
    run.end = ending == BoundedRun::End::Exited && status && WIFSIGNALED(*status)
                  ? BoundedRun::End::Crashed
                  : ending;
}

} // namespace

BoundedRun RunBounded(const QString& program, const QStringList& arguments,
    std::chrono::milliseconds limit, std::chrono::milliseconds grace, std::size_t maxOutput)
{
    BoundedRun run;
    try
    {
        RunInGroup(program, arguments, limit, grace, maxOutput, run);
    }
    catch (const std::system_error& error)
    {
        run.error = error.what();
    }
    return run;
}

} // namespace Vorlan::Platform
