#include <shlobj.h>

#include "ErrorMapping.h"
#include "Faults.h"
#include "LastError.h"
#include "Machine.h"

#include <QString>

#include <Pal.h>

#include <algorithm>

namespace Pal
{

namespace
{

BOOL CopyFolder(int csidl, LPWSTR path)
{
    const std::filesystem::path root = MachineRoot();
    const auto folder = ShellFolder(root, csidl);
    if (!folder)
        return Failed(ERROR_INVALID_PARAMETER);
    const std::wstring text = QString::fromStdString(folder->string()).toStdWString();
    if (text.size() >= MAX_PATH)
        return Failed(ERROR_FILENAME_EXCED_RANGE);
    const std::error_code error = CreateMachine(root);
    if (error)
        return Failed(ErrorFromErrno(error.value()));
    std::copy_n(text.c_str(), text.size() + 1, path);
    return TRUE;
}

} // namespace

} // namespace Pal

// Keeps:   the path without a separator at its end; FALSE and an empty text for a path of more than
//          259 characters and for a folder that does not exist.
// Differs: the folders are below the machine root and are always created with it, so create changes
//          nothing; the separator is "/". A failure sets the last error.
// Refuses: every number that shlobj.h does not name, including flags.
BOOL SHGetSpecialFolderPathW(HWND, LPWSTR path, int csidl, BOOL)
{
    if (!path)
        return Pal::Failed(ERROR_INVALID_PARAMETER);
    *path = L'\0';
    if (Pal::FaultHits(__func__))
        return FALSE;
    return Pal::CopyFolder(csidl, path);
}
