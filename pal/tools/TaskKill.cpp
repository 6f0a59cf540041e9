// taskkill /IM <image name> /F: terminates every process of this user whose executable has that
// name.
//
// Exit codes: 0 if all of them were terminated, 128 if there is none, 1 for every other failure.
// Refuses calls without /F, which would ask a process to close, and every other option.
#include <QCoreApplication>
#include <QFileInfo>
#include <QStringList>

#include <psapi.h>

#include <cstdio>
#include <vector>

namespace
{

enum ExitCode
{
    allEnded = 0,
    failed = 1,
    noSuchProcess = 128
};

std::vector<DWORD> AllProcesses()
{
    std::vector<DWORD> ids(1024);
    for (;;)
    {
        const auto size = static_cast<DWORD>(ids.size() * sizeof(DWORD));
        DWORD used = 0;
        if (!K32EnumProcesses(ids.data(), size, &used))
            return {};
        if (used < size)
        {
            ids.resize(used / sizeof(DWORD));
            return ids;
        }
        ids.resize(2 * ids.size());
    }
}

QString ImageName(HANDLE process)
{
    std::vector<wchar_t> path(4096);
    const DWORD length =
        K32GetModuleFileNameExW(process, nullptr, path.data(), static_cast<DWORD>(path.size()));
    return QFileInfo(QString::fromWCharArray(path.data(), static_cast<int>(length))).fileName();
}

// A process that ended by itself meanwhile counts as terminated.
bool End(HANDLE process, DWORD id, const QString& name)
{
    if (!TerminateProcess(process, 1) && WaitForSingleObject(process, 0) != WAIT_OBJECT_0)
    {
        std::fprintf(stderr, "ERROR: The process \"%s\" with PID %u could not be terminated.\n",
            qUtf8Printable(name), id);
        return false;
    }
    std::printf(
        "SUCCESS: The process \"%s\" with PID %u has been terminated.\n", qUtf8Printable(name), id);
    return true;
}

ExitCode EndAll(const QString& name)
{
    constexpr DWORD access =
        PROCESS_TERMINATE | PROCESS_QUERY_INFORMATION | PROCESS_VM_READ | SYNCHRONIZE;
    int found = 0;
    int ended = 0;
    for (const DWORD id : AllProcesses())
    {
        const HANDLE process =
            id == QCoreApplication::applicationPid() ? nullptr : OpenProcess(access, FALSE, id);
        if (!process)
            continue;
        if (ImageName(process).compare(name, Qt::CaseInsensitive) == 0)
        {
            ++found;
            ended += End(process, id, name);
        }
        CloseHandle(process);
    }
    if (found == 0)
        std::fprintf(stderr, "ERROR: The process \"%s\" not found.\n", qUtf8Printable(name));
    return found == 0 ? noSuchProcess : ended == found ? allEnded : failed;
}

// The image name, or nothing for invalid arguments.
QString NameIn(const QStringList& words)
{
    QString name;
    bool forced = false;
    for (int i = 0; i < words.size(); ++i)
    {
        const QString option = words[i].toUpper();
        if (option == "/F")
            forced = true;
        else if (option == "/IM" && i + 1 < words.size())
            name = words[++i];
        else
            return {};
    }
    return forced ? name : QString();
}

} // namespace

int main(int argc, char** argv)
{
    QStringList words;
    for (int i = 1; i < argc; ++i)
        words += QString::fromUtf8(argv[i]);
    const QString name = NameIn(words);
    if (!name.isEmpty())
        return EndAll(name);
    std::fprintf(stderr, "ERROR: Invalid syntax. Use taskkill /IM <image name> /F.\n");
    return failed;
}
