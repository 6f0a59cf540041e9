#include "Machine.h"

#include "ErrorMapping.h"

#include <QByteArray>
#include <QList>
#include <QSettings>

#include <Pal.h>
#include <shlobj.h>

#include <cstdlib>
#include <string>

#include <dlfcn.h>
#include <pwd.h>
#include <unistd.h>

namespace Pal
{

namespace
{

namespace fs = std::filesystem;

struct FolderOfShell
{
    int csidl;
    const char* base; // null: the user's folder
    const char* path;
};

constexpr FolderOfShell shellFolders[] = {
    {CSIDL_DESKTOP, nullptr, "Desktop"},
    {CSIDL_PROGRAMS, nullptr, "AppData/Roaming/Microsoft/Windows/Start Menu/Programs"},
    {CSIDL_APPDATA, nullptr, "AppData/Roaming"},
    {CSIDL_LOCAL_APPDATA, nullptr, "AppData/Local"},
    {CSIDL_COMMON_DESKTOPDIRECTORY, "Users/Public", "Desktop"},
    {CSIDL_COMMON_PROGRAMS, "ProgramData", "Microsoft/Windows/Start Menu/Programs"},
    {CSIDL_COMMON_APPDATA, "ProgramData", ""},
    {CSIDL_SYSTEM, "Windows", "System32"},
    {CSIDL_PROGRAM_FILES, "Program Files", ""},
};

std::string Environment(const char* name)
{
    return qgetenv(name).toStdString();
}

// The user's entry in the system's user table; a user without an entry is named by number.
struct User
{
    std::string name = std::to_string(getuid());
    std::string home = "/";
};

User CurrentUser()
{
    User user;
    passwd entry = {};
    passwd* found = nullptr;
    std::string buffer(16384, '\0');
    if (getpwuid_r(getuid(), &entry, buffer.data(), buffer.size(), &found) == 0 && found)
    {
        user.name = found->pw_name;
        user.home = found->pw_dir;
    }
    return user;
}

fs::path DataHome()
{
    const std::string dataHome = Environment("XDG_DATA_HOME");
    if (!dataHome.empty())
        return dataHome;
    const std::string home = Environment("HOME");
    return fs::path(home.empty() ? CurrentUser().home : home) / ".local/share";
}

fs::path FolderPath(const fs::path& root, const FolderOfShell& folder)
{
    const fs::path base =
        folder.base ? fs::path(folder.base) : fs::path("Users") / CurrentUser().name;
    return *folder.path ? root / base / folder.path : root / base;
}

// The programs that every machine has in its system folder.
constexpr const char* systemPrograms[] = {"taskkill", "schtasks", "cmd.exe"};

fs::path SystemFolder(const fs::path& root)
{
    return root / "Windows/System32";
}

fs::path FolderOfThisLibrary()
{
    Dl_info info = {};
    const bool known = dladdr(reinterpret_cast<const void*>(&FolderOfThisLibrary), &info) != 0;
    return known && info.dli_fname ? fs::path(info.dli_fname).parent_path() : fs::path();
}

// Looks in the folder of the running program, then in that of the library that contains this layer.
fs::path FindSystemProgram(const char* name)
{
    std::error_code error;
    const fs::path folders[] = {
        fs::read_symlink("/proc/self/exe", error).parent_path(), FolderOfThisLibrary()};
    for (const fs::path& folder : folders)
    {
        if (!folder.empty() && fs::exists(folder / name, error))
            return fs::absolute(folder / name, error);
    }
    return {};
}

// Replaces a dangling link, which remains when the programs were moved. Another process may replace
// it first.
std::error_code LinkSystemProgram(const fs::path& link, const fs::path& program)
{
    std::error_code error;
    if (program.empty() || fs::exists(link, error))
        return {};
    fs::remove(link, error);
    fs::create_symlink(program, link, error);
    std::error_code notSeen;
    return fs::exists(link, notSeen) ? std::error_code() : error;
}

} // namespace

fs::path MachineRoot()
{
    const std::string root = Environment("VORLAN_MACHINE");
    if (root.empty())
        return DataHome() / "vorlan-machine";
    std::error_code error;
    const fs::path absolute = fs::absolute(root, error);
    return error ? fs::path(root) : absolute;
}

std::error_code CreateMachine(const fs::path& root)
{
    std::error_code error;
    fs::create_directories(RegistryFolder(root), error);
    for (const FolderOfShell& folder : shellFolders)
    {
        if (!error)
            fs::create_directories(FolderPath(root, folder), error);
    }
    for (const fs::path& folder : {MutexFolder(root), TaskFolder(root)})
    {
        if (!error)
            fs::create_directories(folder, error);
    }
    for (const char* program : systemPrograms)
    {
        if (!error)
            error = LinkSystemProgram(SystemFolder(root) / program, FindSystemProgram(program));
    }
    PutSystemFolderOnPath(root);
    return error;
}

DWORD EnterMachine()
{
    const std::error_code error = CreateMachine(MachineRoot());
    return error ? ErrorFromErrno(error.value()) : ERROR_SUCCESS;
}

void PutSystemFolderOnPath(const fs::path& root)
{
    const QByteArray ownFolder = QByteArray::fromStdString(SystemFolder(root));
    const QByteArray former = qEnvironmentVariableIsSet("PATH") ? qgetenv("PATH") : "/usr/bin:/bin";
    QByteArray path = ownFolder;
    for (const QByteArray& folder : former.split(':'))
    {
        if (!folder.endsWith("/Windows/System32"))
            path += ':' + folder;
    }
    if (path != former)
        qputenv("PATH", path);
}

Rights MachineRights()
{
    const QString file = QString::fromStdString(MachineRoot() / "machine.ini");
    const QString rights = QSettings(file, QSettings::IniFormat).value("rights").toString();
    if (rights == "request")
        return Rights::OnRequest;
    return rights == "refused" ? Rights::Refused : Rights::Administrator;
}

bool IsAdministrator()
{
    const Rights rights = MachineRights();
    return rights == Rights::Administrator ||
           (rights == Rights::OnRequest && qgetenv(elevatedVariable) == "1");
}

fs::path RegistryFolder(const fs::path& root)
{
    return root / "registry";
}

fs::path MutexFolder(const fs::path& root)
{
    return root / "mutexes";
}

fs::path TaskFolder(const fs::path& root)
{
    return root / "tasks";
}

std::optional<fs::path> ShellFolder(const fs::path& root, int csidl)
{
    for (const FolderOfShell& folder : shellFolders)
    {
        if (folder.csidl == csidl)
            return FolderPath(root, folder);
    }
    return std::nullopt;
}

} // namespace Pal
