#include "process/ProgramSearch.h"

#include "ErrorMapping.h"
#include "Machine.h"
#include "WideText.h"

#include <QByteArray>
#include <QList>

#include <Pal.h>
#include <shlobj.h>

#include <cerrno>

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

fs::path CurrentFolder()
{
    std::error_code error;
    return fs::current_path(error);
}

void AddCommonFolders(std::vector<fs::path>& folders)
{
    const fs::path systemFolder = *ShellFolder(MachineRoot(), CSIDL_SYSTEM);
    folders.insert(folders.end(), {CurrentFolder(), systemFolder, systemFolder.parent_path()});
    for (const QByteArray& folder : qgetenv("PATH").split(':'))
    {
        if (!folder.isEmpty())
            folders.push_back(folder.toStdString());
    }
}

DWORD FindInFolders(const fs::path& name, const std::vector<fs::path>& folders, std::string& path)
{
    DWORD error = ERROR_FILE_NOT_FOUND;
    for (const fs::path& folder : folders)
    {
        std::error_code ignored;
        error = FindWithExtension(fs::absolute(folder, ignored) / name, path);
        if (error == ERROR_SUCCESS)
            return ERROR_SUCCESS;
    }
    return name.has_parent_path() ? error : DWORD{ERROR_FILE_NOT_FOUND};
}

} // namespace

SearchedFolders FoldersOfCreateProcess()
{
    std::error_code ignored;
    const fs::path ownFolder = fs::read_symlink("/proc/self/exe", ignored).parent_path();
    SearchedFolders folders{{CurrentFolder()}, {ownFolder}};
    AddCommonFolders(folders.ofNames);
    return folders;
}

SearchedFolders FoldersOfShell(const std::string& startFolder)
{
    SearchedFolders folders;
    if (!startFolder.empty())
        folders = {{startFolder}, {startFolder}};
    folders.ofPaths.push_back(CurrentFolder());
    AddCommonFolders(folders.ofNames);
    return folders;
}

DWORD FindProgram(std::wstring_view name, const SearchedFolders& folders, std::string& path)
{
    std::string nativeName;
    const DWORD error = NativePath(std::wstring(name).c_str(), nativeName);
    if (error != ERROR_SUCCESS)
        return error == ERROR_PATH_NOT_FOUND ? ERROR_FILE_NOT_FOUND : error;
    const fs::path program = nativeName;
    if (program.is_absolute())
        return FindWithExtension(nativeName, path);
    return FindInFolders(
        program, program.has_parent_path() ? folders.ofPaths : folders.ofNames, path);
}

DWORD FindProgramOf(std::wstring_view commandLine, std::string& path, ProgramName& found)
{
    const SearchedFolders folders = FoldersOfCreateProcess();
    DWORD firstError = ERROR_SUCCESS;
    for (const ProgramName& possible : PossiblePrograms(commandLine))
    {
        found = possible;
        const DWORD error = FindProgram(possible.name, folders, path);
        if (error == ERROR_SUCCESS)
            return ERROR_SUCCESS;
        if (firstError == ERROR_SUCCESS)
            firstError = error;
    }
    return firstError == ERROR_SUCCESS ? DWORD{ERROR_FILE_NOT_FOUND} : firstError;
}

} // namespace Pal
