#include "Machine.h"

#include <cstdlib>
#include <string>

#include <pwd.h>
#include <unistd.h>

#include <Pal.h>
#include <shlobj.h>

namespace Pal
{

namespace
{

namespace fs = std::filesystem;

struct FolderOfShell
{
    int csidl;
    const char* base; // null: the user's own folder
    const char* path;
};

constexpr FolderOfShell shellFolders[] = {
    {CSIDL_DESKTOP, nullptr, "Desktop"},
    {CSIDL_PROGRAMS, nullptr, "Start Menu/Programs"},
    {CSIDL_APPDATA, nullptr, "AppData/Roaming"},
    {CSIDL_LOCAL_APPDATA, nullptr, "AppData/Local"},
    {CSIDL_COMMON_DESKTOPDIRECTORY, "Users/Public", "Desktop"},
    {CSIDL_COMMON_PROGRAMS, "ProgramData", "Start Menu/Programs"},
    {CSIDL_COMMON_APPDATA, "ProgramData", ""},
    {CSIDL_SYSTEM, "Windows", "System32"},
};

std::string Environment(const char* name)
{
    const char* value = std::getenv(name);
    return value ? value : "";
}

// The user's entry in the system's user table; a user without one is known by number.
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
    return error;
}

fs::path RegistryFolder(const fs::path& root)
{
    return root / "registry";
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
