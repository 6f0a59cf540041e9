#include "support/MachineRoot.h"

#include "support/RegistryCalls.h"

#include <QCoreApplication>
#include <QDir>

#include <gtest/gtest.h>

namespace
{

constexpr wchar_t shellFolderKey[] =
    L"Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\User Shell Folders";

struct ShellFolder
{
    HKEY root;
    const wchar_t* valueName;
    const char* path;
};

// The same places below a machine's folder as on Linux.
const ShellFolder shellFolders[] = {
    {HKEY_CURRENT_USER, L"AppData", "Users/user/AppData/Roaming"},
    {HKEY_CURRENT_USER, L"Local AppData", "Users/user/AppData/Local"},
    {HKEY_CURRENT_USER, L"Desktop", "Users/user/Desktop"},
    {HKEY_CURRENT_USER, L"Programs",
        "Users/user/AppData/Roaming/Microsoft/Windows/Start Menu/Programs"},
    {HKEY_LOCAL_MACHINE, L"Common AppData", "ProgramData"},
    {HKEY_LOCAL_MACHINE, L"Common Desktop", "Users/Public/Desktop"},
    {HKEY_LOCAL_MACHINE, L"Common Programs", "ProgramData/Microsoft/Windows/Start Menu/Programs"},
};

void SetShellFolders(const QString& machine)
{
    for (const ShellFolder& folder : shellFolders)
    {
        const QString path = QDir::toNativeSeparators(machine + '/' + folder.path);
        EXPECT_TRUE(QDir().mkpath(path)) << path.toStdString();
        const HKEY key = MakeKey(folder.root, shellFolderKey);
        EXPECT_EQ(SetText(key, folder.valueName, path.toStdWString()), ERROR_SUCCESS);
        RegCloseKey(key);
    }
}

void ForgetShellFolders()
{
    for (const ShellFolder& folder : shellFolders)
    {
        const HKEY key = MakeKey(folder.root, shellFolderKey);
        EXPECT_EQ(RegDeleteValueW(key, folder.valueName), ERROR_SUCCESS);
        RegCloseKey(key);
    }
}

std::wstring OwnKey()
{
    return L"Software\\VorlanTests-" + std::to_wstring(QCoreApplication::applicationPid());
}

void Redirect(HKEY root, const std::wstring& path)
{
    const HKEY key = MakeKey(HKEY_CURRENT_USER, path);
    EXPECT_EQ(RegOverridePredefKey(root, key), ERROR_SUCCESS);
    RegCloseKey(key);
}

constexpr wchar_t runKey[] = L"Software\\Microsoft\\Windows\\CurrentVersion\\Run";

// What the product, and programs that tests let depend on it, may have left behind.
void DeleteProductKeys()
{
    for (const HKEY root : {HKEY_CURRENT_USER, HKEY_LOCAL_MACHINE})
    {
        for (const wchar_t* key : {L"Vorlan", L"Classes\\quillax",
                 L"Classes\\SystemFileAssociations", L"Classes\\Vorlan Quillax.convert_autoplay",
                 L"Microsoft\\Windows\\CurrentVersion\\App Paths\\Vorlan Quillax",
                 L"Microsoft\\Windows\\CurrentVersion\\Explorer\\AutoplayHandlers",
                 L"Microsoft\\Windows\\CurrentVersion\\Uninstall\\Vorlan Quillax"})
            DeleteTree(root, std::wstring(L"Software\\") + key);
        DeleteTree(root, runKey);
        RegCloseKey(MakeKey(root, runKey)); // Windows always has it
    }
}

} // namespace

MachineRoot::MachineRoot(const QString& folder)
{
    // The current user last: the other key must not be looked for in its replacement.
    Redirect(HKEY_LOCAL_MACHINE, OwnKey() + L"\\Machine");
    Redirect(HKEY_CURRENT_USER, OwnKey() + L"\\User");
    SetShellFolders(folder);
}

MachineRoot::~MachineRoot()
{
    EXPECT_EQ(RegOverridePredefKey(HKEY_CURRENT_USER, nullptr), ERROR_SUCCESS);
    EXPECT_EQ(RegOverridePredefKey(HKEY_LOCAL_MACHINE, nullptr), ERROR_SUCCESS);
    DeleteTree(HKEY_CURRENT_USER, OwnKey());
}

void UndoRedirectionOfMachine()
{
    EXPECT_EQ(RegOverridePredefKey(HKEY_LOCAL_MACHINE, nullptr), ERROR_SUCCESS);
}

MachineOfChildren::MachineOfChildren(const QString& folder, QProcessEnvironment&)
{
    DeleteProductKeys();
    SetShellFolders(folder);
}

MachineOfChildren::~MachineOfChildren()
{
    ForgetShellFolders();
    DeleteProductKeys();
}
