#include "registry/RegistryFile.h"

#include "ErrorMapping.h"
#include "registry/RegFileReader.h"
#include "registry/RegFileWriter.h"
#include "registry/ValueData.h"

#include <algorithm>
#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Pal
{

namespace
{

namespace fs = std::filesystem;

constexpr off_t tolerableJournal = 64 * 1024;

// What every Windows has and nobody makes.
const KeyPath& RunKey()
{
    static const auto& path =
        *new KeyPath{u"Software", u"Microsoft", u"Windows", u"CurrentVersion", u"Run"};
    return path;
}

Descriptor OpenFileAt(const fs::path& path, int flags)
{
    return Descriptor(open(path.c_str(), flags | O_CLOEXEC, 0666));
}

DWORD WriteOnce(int descriptor, const std::string& bytes)
{
    ssize_t written = 0;
    do
        written = write(descriptor, bytes.data(), bytes.size());
    while (written < 0 && errno == EINTR);
    if (written < 0)
        return ErrorFromErrno(errno);
    return static_cast<size_t>(written) == bytes.size() ? ERROR_SUCCESS : ERROR_DISK_FULL;
}

DWORD ReadFrom(int descriptor, off_t offset, std::string& bytes)
{
    struct stat status = {};
    if (fstat(descriptor, &status) != 0)
        return ErrorFromErrno(errno);
    bytes.resize(static_cast<size_t>(std::max<off_t>(status.st_size - offset, 0)));
    size_t done = 0;
    while (done < bytes.size())
    {
        const ssize_t got = pread(descriptor, bytes.data() + done, bytes.size() - done,
            offset + static_cast<off_t>(done));
        if (got < 0 && errno != EINTR)
            return ErrorFromErrno(errno);
        if (got == 0)
            break;
        done += got < 0 ? 0 : static_cast<size_t>(got);
    }
    bytes.resize(done);
    return ERROR_SUCCESS;
}

off_t DiskSize(size_t characters)
{
    return static_cast<off_t>(characters * sizeof(char16_t));
}

} // namespace

RegistryFile::RegistryFile(fs::path filePath, std::u16string nameOfRoot)
    : path(std::move(filePath)), rootName(std::move(nameOfRoot)), compactAbove(tolerableJournal)
{
    StartFresh();
}

void RegistryFile::StartFresh()
{
    root = std::make_shared<KeyNode>(rootName);
    MakeKey(root, RunKey());
    ++generation;
    file = Descriptor();
    seenSize = 0;
    completeSize = 0;
}

DWORD RegistryFile::Refresh()
{
    struct stat status = {};
    if (stat(path.c_str(), &status) != 0)
    {
        if (errno != ENOENT)
            return ErrorFromErrno(errno);
        if (file.IsOpen())
            StartFresh();
        return ERROR_SUCCESS;
    }
    if (!IsOwnFile(status) || status.st_size < completeSize)
        return ReadWhole();
    if (status.st_size == completeSize)
        return ERROR_SUCCESS;
    return ReadAppended() == ERROR_SUCCESS ? ERROR_SUCCESS : ReadWhole();
}

bool RegistryFile::IsOwnFile(const struct stat& status) const
{
    struct stat own = {};
    return file.IsOpen() && fstat(file.Get(), &own) == 0 && own.st_dev == status.st_dev &&
           own.st_ino == status.st_ino;
}

DWORD RegistryFile::ReadWhole()
{
    Descriptor opened = OpenFileAt(path, O_RDONLY);
    std::string bytes;
    const DWORD error = opened.IsOpen() ? ReadFrom(opened.Get(), 0, bytes) : ErrorFromErrno(errno);
    if (error != ERROR_SUCCESS)
        return error;
    const std::u16string text = CharactersOf(bytes);
    const std::u16string_view content = text;
    const auto readRoot = std::make_shared<KeyNode>(rootName);
    if (content.substr(0, regFileHeader.size()) != regFileHeader)
        return ERROR_BADDB;
    const auto applied = ApplyRecords(content.substr(regFileHeader.size()), readRoot);
    if (!applied)
        return ERROR_BADDB;
    file = std::move(opened);
    root = readRoot;
    ++generation;
    seenSize = static_cast<off_t>(bytes.size());
    completeSize = DiskSize(regFileHeader.size() + *applied);
    compactAbove = tolerableJournal;
    return ERROR_SUCCESS;
}

DWORD RegistryFile::ReadAppended()
{
    std::string bytes;
    const DWORD error = ReadFrom(file.Get(), completeSize, bytes);
    if (error != ERROR_SUCCESS)
        return error;
    const auto applied = ApplyRecords(CharactersOf(bytes), root);
    if (!applied)
        return ERROR_BADDB;
    seenSize = completeSize + static_cast<off_t>(bytes.size());
    completeSize += DiskSize(*applied);
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

DWORD RegistryFile::Append(const std::u16string& record)
{
    if (!file.IsOpen())
    {
        const DWORD error = Replace(DiskBytes(WholeRegFile(*root)));
        if (error != ERROR_SUCCESS)
            return error;
    }
    const Descriptor writer = OpenFileAt(path, O_WRONLY | O_APPEND);
    if (!writer.IsOpen())
        return ErrorFromErrno(errno);
    if (seenSize > completeSize && ftruncate(writer.Get(), completeSize) != 0)
        return ErrorFromErrno(errno);
    seenSize = completeSize;
    return WriteRecord(writer.Get(), DiskBytes(record));
}

DWORD RegistryFile::WriteRecord(int descriptor, const std::string& bytes)
{
    const DWORD error = WriteOnce(descriptor, bytes);
    if (error == ERROR_SUCCESS)
    {
        completeSize += static_cast<off_t>(bytes.size());
        seenSize = completeSize;
        appended = true;
    }
    else if (ftruncate(descriptor, completeSize) != 0)
    {
        // The cut-off record stays until the next change: it is not complete, so nobody applies it.
        ReportFailure("repaired");
    }
    return error;
}

// The new file is complete before it takes the name.
DWORD RegistryFile::Replace(const std::string& content)
{
    const fs::path temporary = path.string() + ".tmp";
    Descriptor written = OpenFileAt(temporary, O_RDWR | O_CREAT | O_TRUNC);
    if (!written.IsOpen())
        return ErrorFromErrno(errno);
    const DWORD error = WriteOnce(written.Get(), content);
    if (error != ERROR_SUCCESS)
    {
        unlink(temporary.c_str());
        return error;
    }
    if (rename(temporary.c_str(), path.c_str()) != 0)
        return ErrorFromErrno(errno);
    file = std::move(written);
    completeSize = static_cast<off_t>(content.size());
    seenSize = completeSize;
    return ERROR_SUCCESS;
}

void RegistryFile::CompactIfLarge()
{
    if (completeSize <= compactAbove)
        return;
    const std::string content = DiskBytes(WholeRegFile(*root));
    compactAbove = 2 * static_cast<off_t>(content.size()) + tolerableJournal;
    if (completeSize > compactAbove && Replace(content) != ERROR_SUCCESS)
        ReportFailure("compacted");
}

void RegistryFile::CompactIfAppended()
{
    if (!appended || !file.IsOpen())
        return;
    const std::string content = DiskBytes(WholeRegFile(*root));
    if (completeSize > static_cast<off_t>(content.size()) && Replace(content) != ERROR_SUCCESS)
        ReportFailure("compacted");
    appended = false;
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
