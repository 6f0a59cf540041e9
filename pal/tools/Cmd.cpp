// cmd.exe /C <command line>: runs one program or ".bat" and exits with its exit code, or with 1 if
// it cannot be started. Built-in commands, pipes and redirections are not supported.
#include <QString>
#include <QStringList>

#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <string>

namespace
{

bool IsFile(const QString& name)
{
    const DWORD attributes = GetFileAttributesW(name.toStdWString().c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && !(attributes & FILE_ATTRIBUTE_DIRECTORY);
}

// The quotes are kept if there are exactly two, around the name of an existing file that contains a
// blank and no special character.
bool KeepsItsQuotes(const QString& text)
{
    const QString inside = text.mid(1, text.lastIndexOf('"') - 1);
    const QString special = "&<>()@^|";
    const auto isSpecial = [&special](QChar c) { return special.contains(c); };
    return text.count('"') == 2 && std::none_of(inside.begin(), inside.end(), isSpecial) &&
           inside.contains(' ') && IsFile(inside);
}

// Removes a leading quote and the last one, even if text follows that.
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
