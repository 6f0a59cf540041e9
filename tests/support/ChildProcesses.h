// Child programs for tests of processes, on both systems.
#pragma once

#include <chrono>
#include <fstream>
#include <functional>
#include <string>
#include <thread>
#include <vector>

#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include "support/PalMachine.h"

// A handle that is closed at the end.
class TestHandle
{
public:
    explicit TestHandle(HANDLE owned = nullptr) : handle(owned) {}
    TestHandle(TestHandle&& other) noexcept : handle(std::exchange(other.handle, nullptr)) {}
    TestHandle& operator=(TestHandle&& other) noexcept
    {
        std::swap(handle, other.handle);
        return *this;
    }
    ~TestHandle() { Close(); }

    HANDLE Get() const { return handle; }

    void Close()
    {
        if (handle)
        {
            EXPECT_TRUE(CloseHandle(handle));
        }
        handle = nullptr;
    }

private:
    HANDLE handle;
};

struct StartResult
{
    DWORD error; // ERROR_SUCCESS where it started
    DWORD id = 0;
    TestHandle process{};
};

class ChildProcesses : public PalMachine
{
protected:
    static constexpr DWORD longEnough = 30000; // milliseconds, for what must happen

    static std::wstring ChildProgram()
    {
        const QString path = QCoreApplication::applicationDirPath() + "/test-program.exe";
        return QDir::toNativeSeparators(path).toStdWString();
    }

    // The child program under another name in the test's own folder.
    std::wstring CopyChild(const std::wstring& name) const
    {
        const QString copy = QString::fromStdWString(PathOf(name));
        EXPECT_TRUE(QDir().mkpath(QFileInfo(copy).path()));
        EXPECT_TRUE(QFile::copy(QString::fromStdWString(ChildProgram()), copy));
        return QDir::toNativeSeparators(copy).toStdWString();
    }

    static StartResult Start(const std::wstring& commandLine, const wchar_t* folder = nullptr,
        const wchar_t* application = nullptr, DWORD flags = CREATE_NO_WINDOW)
    {
        std::wstring line = commandLine;
        STARTUPINFOW startup = {};
        startup.cb = sizeof(startup);
        PROCESS_INFORMATION information = {};
        if (!CreateProcessW(application, line.data(), nullptr, nullptr, FALSE, flags, nullptr,
                folder, &startup, &information))
            return {GetLastError()};
        EXPECT_TRUE(CloseHandle(information.hThread));
        return {ERROR_SUCCESS, information.dwProcessId, TestHandle(information.hProcess)};
    }

    // Waits, but not for ever.
    static bool Becomes(const std::function<bool()>& state)
    {
        const auto end = std::chrono::steady_clock::now() + std::chrono::milliseconds(longEnough);
        while (!state() && std::chrono::steady_clock::now() < end)
            std::this_thread::yield();
        return state();
    }

    // Waits for the end; the exit code, or -1 where it did not come.
    static long long ExitCode(const TestHandle& process)
    {
        DWORD code = 0;
        if (WaitForSingleObject(process.Get(), longEnough) != WAIT_OBJECT_0 ||
            !GetExitCodeProcess(process.Get(), &code))
            return -1;
        return code;
    }

    // The lines of a report that the child wrote: its folder, and its arguments.
    std::vector<std::string> Report(const std::wstring& name = L"report") const
    {
        std::ifstream file(QString::fromStdWString(PathOf(name)).toStdString());
        std::vector<std::string> lines;
        for (std::string line; std::getline(file, line);)
            lines.push_back(line);
        return lines;
    }

    // The words that the child sees which is started with this text behind its first three.
    std::vector<std::string> ArgumentsSeen(const std::wstring& text) const
    {
        const StartResult child =
            Start(L"\"" + ChildProgram() + L"\" report \"" + PathOf(L"report") + L"\" " + text);
        EXPECT_EQ(ExitCode(child.process), 0);
        std::vector<std::string> lines = Report();
        if (!lines.empty())
            lines.erase(lines.begin());
        return lines;
    }
};
