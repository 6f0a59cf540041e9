// cmd.exe /C <command line>: runs one program or ".bat" and ends with its exit code; 1 when it
// cannot be started. Its own commands, pipes and redirections are not there.
#include <algorithm>
#include <cstdio>
#include <string>

#include <QString>
#include <QStringList>

#include <windows.h>

namespace
{

bool IsFile(const QString& name)
{
    const DWORD attributes = GetFileAttributesW(name.toStdWString().c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && !(attributes & FILE_ATTRIBUTE_DIRECTORY);
}

// Exactly two quotes around the name of a file that holds a blank, and nothing special, stay.
bool KeepsItsQuotes(const QString& text)
{
    const QString inside = text.mid(1, text.lastIndexOf('"') - 1);
    const QString special = "&<>()@^|";
    const auto isSpecial = [&special](QChar c) { return special.contains(c); };
    return text.count('"') == 2 && std::none_of(inside.begin(), inside.end(), isSpecial) &&
           inside.contains(' ') && IsFile(inside);
}

// A leading quote goes together with the last one, whatever stands behind that.
QString WithoutOuterQuotes(QString text)
{
    if (!text.startsWith('"') || KeepsItsQuotes(text))
        return text;
    const int last = text.lastIndexOf('"');
    if (last > 0)
        text.remove(last, 1);
    return text.mid(1);
}

int Run(const QString& command)
{
    std::wstring line = command.toStdWString();
    STARTUPINFOW startup = {};
    startup.cb = sizeof(startup);
    PROCESS_INFORMATION information = {};
    if (!CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
            &startup, &information))
    {
        std::fprintf(stderr,
            "'%s' is not recognized as an internal or external command,\n"
            "operable program or batch file.\n",
            qUtf8Printable(command));
        return 1;
    }
    DWORD code = 1;
    WaitForSingleObject(information.hProcess, INFINITE);
    if (!GetExitCodeProcess(information.hProcess, &code))
        std::fprintf(stderr, "cmd.exe: the exit code cannot be read, error %u\n", GetLastError());
    CloseHandle(information.hThread);
    CloseHandle(information.hProcess);
    return static_cast<int>(code);
}

} // namespace

int main(int argc, char** argv)
{
    QStringList words;
    for (int i = 1; i < argc; ++i)
        words += QString::fromUtf8(argv[i]);
    const QString text = words.join(' ').trimmed();
    if (text.startsWith("/C", Qt::CaseInsensitive))
        return Run(WithoutOuterQuotes(text.mid(2).trimmed()).trimmed());
    std::fprintf(stderr, "cmd.exe: use cmd.exe /C <command line>\n");
    return 1;
}
