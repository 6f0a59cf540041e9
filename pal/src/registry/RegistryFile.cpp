#include "registry/RegistryFile.h"

#include "ErrorMapping.h"
#include "WholeFile.h"
#include "registry/RegFileReader.h"
#include "registry/RegFileWriter.h"
#include "registry/ValueData.h"

#include <cerrno>

#include <fcntl.h>

namespace Pal
{

namespace
{

namespace fs = std::filesystem;

const KeyPath& RunKey()
{
    static const auto& path =
        *new KeyPath{u"Software", u"Microsoft", u"Windows", u"CurrentVersion", u"Run"};
    return path;
}

Descriptor OpenForReading(const fs::path& path)
{
    return Descriptor(open(path.c_str(), O_RDONLY | O_CLOEXEC));
}

} // namespace

RegistryFile::RegistryFile(fs::path filePath, std::u16string nameOfRoot)
    : path(std::move(filePath)), rootName(std::move(nameOfRoot))
{
    StartFresh();
}

void RegistryFile::StartFresh()
{
    root = std::make_shared<KeyNode>(rootName);
    MakeKey(root, RunKey());
    ++generation;
    file = Descriptor();
}

DWORD RegistryFile::Refresh()
{
    struct stat status = {};
    if (stat(path.c_str(), &status) == 0)
        return IsKnown(status) ? ERROR_SUCCESS : Read();
    if (errno != ENOENT)
        return ErrorFromErrno(errno);
    if (file.IsOpen())
        StartFresh();
    return ERROR_SUCCESS;
}

bool RegistryFile::IsKnown(const struct stat& status) const
{
    return file.IsOpen() && known.st_dev == status.st_dev && known.st_ino == status.st_ino &&
           known.st_size == status.st_size && known.st_mtim.tv_sec == status.st_mtim.tv_sec &&
           known.st_mtim.tv_nsec == status.st_mtim.tv_nsec;
}

void RegistryFile::Keep(Descriptor opened)
{
    file = std::move(opened);
    if (fstat(file.Get(), &known) != 0)
        known = {};
}

DWORD RegistryFile::Read()
{
    Descriptor opened = OpenForReading(path);
    std::string bytes;
    const DWORD error = opened.IsOpen() ? ReadOpenFile(opened.Get(), bytes) : ErrorFromErrno(errno);
    if (error != ERROR_SUCCESS)
        return error;
    const auto readRoot = std::make_shared<KeyNode>(rootName);
    if (!ReadRegFile(CharactersOf(bytes), readRoot))
        return ERROR_BADDB;
    root = readRoot;
    ++generation;
    Keep(std::move(opened));
    return ERROR_SUCCESS;
}

DWORD RegistryFile::SetAside()
{
    for (int number = 1;; ++number)
    {
        const fs::path aside = path.string() + ".damaged-" + std::to_string(number);
        std::error_code error;
        if (fs::exists(fs::symlink_status(aside, error)))
            continue;
        fs::rename(path, aside, error);
        if (error)
            return ErrorFromErrno(error.value());
        reports.push_back("Registry file is damaged and was set aside: " + aside.string());
        StartFresh();
        return ERROR_SUCCESS;
    }
}

DWORD RegistryFile::Write()
{
    const DWORD error = WriteWholeFile(path, DiskBytes(WholeRegFile(*root)));
    if (error == ERROR_SUCCESS)
        Keep(OpenForReading(path));
    else
        StartFresh();
    return error;
}

void RegistryFile::ReportFailure(const char* access)
{
    if (!reportedFailures.insert(access).second)
        return;
    reports.push_back(std::string("Registry file cannot be ") + access + ": " + path.string());
}

std::vector<std::string> RegistryFile::TakeReports()
{
    return std::exchange(reports, {});
}

} // namespace Pal
