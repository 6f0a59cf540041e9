// Child processes of a test that are copies of it.
#pragma once

#include <cstdio>

#include <sys/wait.h>
#include <unistd.h>

// Runs the function in a copy of this process. It must not use GoogleTest's assertions: it returns
// how many things were wrong, which becomes the exit status.
template <typename Function>
pid_t StartChild(Function function)
{
    std::fflush(nullptr);
    const pid_t child = fork();
    if (child != 0)
        return child;
    _exit(function());
}

// The exit status, or -1 for a child that did not end by itself.
inline int WaitForChild(pid_t child)
{
    int status = 0;
    if (waitpid(child, &status, 0) != child || !WIFEXITED(status))
        return -1;
    return WEXITSTATUS(status);
}
