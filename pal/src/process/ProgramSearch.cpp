#include "process/ProgramSearch.h"

#include "ErrorMapping.h"
#include "Machine.h"
#include "WideText.h"

#include <QByteArray>
#include <QList>

#include <Pal.h>
#include <shlobj.h>

#include <cerrno>
#include <filesystem>
#include <vector>

#include <sys/stat.h>

namespace Pal
{

namespace
{

namespace fs = std::filesystem;

DWORD CheckFile(const std::string& path)
{
    struct stat status = {};
    if (stat(path.c_str(), &status) != 0)
        return ErrorForPath(errno, path);
    return S_ISDIR(status.st_mode) ? ERROR_FILE_NOT_FOUND : ERROR_SUCCESS;
}

DWORD FindWithExtension(const std::string& name, std::string& path)
{
    path = name;
    const DWORD error = CheckFile(name);
    if (error == ERROR_SUCCESS || fs::path(name).has_extension())
        return error;
    path = name + ".exe";
    return CheckFile(path) == ERROR_SUCCESS ? ERROR_SUCCESS : error;
}

std::vector<fs::path> SearchedFolders()
{
    std::vector<fs::path> folders = {
        fs::read_symlink("/proc/self/exe").parent_path(), fs::current_path()};
    folders.push_back(*ShellFolder(MachineRoot(), CSIDL_SYSTEM));
    for (const QByteArray& folder : qgetenv("PATH").split(':'))
    {
        if (!folder.isEmpty())
            folders.push_back(folder.toStdString());
    }
    return folders;
}

DWORD FindInFolders(const std::string& name, std::string& path)
{
    for (const fs::path& folder : SearchedFolders())
    {
        if (FindWithExtension(folder / name, path) == ERROR_SUCCESS)
            return ERROR_SUCCESS;
    }
    return ERROR_FILE_NOT_FOUND;
}

} // namespace

DWORD FindProgram(std::wstring_view name, std::string& path)
{
    std::string nativeName;
    const DWORD error = NativePath(std::wstring(name).c_str(), nativeName);
    if (error != ERROR_SUCCESS)
        return error == ERROR_PATH_NOT_FOUND ? ERROR_FILE_NOT_FOUND : error;
    return nativeName.find('/') == nativeName.npos ? FindInFolders(nativeName, path)
                                                   : FindWithExtension(nativeName, path);
}

DWORD FindProgramOf(std::wstring_view commandLine, std::string& path, ProgramName& found)
{
    DWORD firstError = ERROR_SUCCESS;
    for (const ProgramName& possible : PossiblePrograms(commandLine))
    {
        found = possible;
        const DWORD error = FindProgram(possible.name, path);
        if (error == ERROR_SUCCESS)
            return ERROR_SUCCESS;
        if (firstError == ERROR_SUCCESS)
            firstError = error;
    }
    return firstError == ERROR_SUCCESS ? DWORD{ERROR_FILE_NOT_FOUND} : firstError;
}

} // namespace Pal
