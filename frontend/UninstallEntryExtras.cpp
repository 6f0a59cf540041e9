#include "UninstallEntryExtras.h"

#include "base/Handle.h"
#include "base/ProductProfile.h"

#include <QDebug>
#include <QDir>

namespace Vorlan::FrontEnd
{
namespace
{

std::wstring EntryKey()
{
    return (QString("Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\") +
            ProductProfile::productFullName)
        .toStdWString();
}

LSTATUS SetText(HKEY key, const wchar_t* name, const std::wstring& text)
{
    return RegSetValueExW(key, name, 0, REG_SZ, reinterpret_cast<const BYTE*>(text.c_str()),
        static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t)));
}

LSTATUS SetNumber(HKEY key, const wchar_t* name, DWORD number)
{
    return RegSetValueExW(
        key, name, 0, REG_DWORD, reinterpret_cast<const BYTE*>(&number), sizeof number);
}

LSTATUS WriteValues(HKEY root, const std::wstring& quietUninstall)
{
    Platform::UniqueKey key;
    LSTATUS error = RegOpenKeyExW(root, EntryKey().c_str(), 0, KEY_SET_VALUE, key.Put());
    if (error == ERROR_SUCCESS)
        error = SetText(key.Get(), L"QuietUninstallString", quietUninstall);
    for (const wchar_t* name : {L"NoModify", L"NoRepair"})
    {
        if (error == ERROR_SUCCESS)
            error = SetNumber(key.Get(), name, 1);
    }
    return error;
}

} // namespace

void UninstallEntryExtras::Write(QSettings::Scope scope, const QString& folder)
{
    const QString program = QDir(folder).filePath(ProductProfile::uninstallerFileName);
    const std::wstring command =
        ('"' + QDir::toNativeSeparators(QDir::cleanPath(program)) + "\" /S").toStdWString();
    const LSTATUS error = WriteValues(
        scope == QSettings::SystemScope ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER, command);
    if (error != ERROR_SUCCESS)
    {
        qWarning() << "The entry in the list of programs is incomplete, error" << error;
    }
}

} // namespace Vorlan::FrontEnd
