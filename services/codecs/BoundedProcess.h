#pragma once

#include <QString>
#include <QStringList>

#include <chrono>
#include <cstddef>
#include <string>

namespace Vorlan::Platform
{

// How a program ended that was started by RunBounded.
struct BoundedRun
{
    enum class End
    {
        NotStarted,    // with `error`
        Exited,        // by itself, with `exitCode`
        Crashed,       // by a signal on Linux, by an exception on Windows
        TimedOut,      // ended at its time limit
        TooMuchOutput, // ended at the limit of its output
    };

    End end = End::NotStarted;
    int exitCode = 0;
    std::string output; // what it wrote to its standard output, up to the limit
    std::string error;
    bool isLeftBehind = false; // it did not end in time after it was killed; `exitCode` is unknown
};

// Starts a program without a window and without input, and waits for its end. It runs in a group
// of its own (a process group on Linux, a job on Windows); when it has ended by itself, when the
// limit has passed, or when it has written `maxOutput` bytes, the whole group is ended,
// so that nothing of what it started outlives the call. A program that leaves its group on purpose
// is not found on Linux. A process that cannot be killed, because it is stuck in a driver, is
// waited for as long as `grace` and then left behind: the call returns in any case. Its error
// output is discarded. The arguments hold neither quotes nor backslashes. Any number of threads may
// call it at once.
BoundedRun RunBounded(const QString& program, const QStringList& arguments,
    std::chrono::milliseconds limit, std::chrono::milliseconds grace, std::size_t maxOutput);

} // namespace Vorlan::Platform
