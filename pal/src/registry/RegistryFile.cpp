#include "RegistryFile.h"

#include <algorithm>
#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "../ErrorMapping.h"
#include "RegFileReader.h"
#include "RegFileWriter.h"
#include "ValueData.h"

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

RegistryFile::RegistryFile(fs::path path, std::u16string rootName)
    : m_path(std::move(path)), m_rootName(std::move(rootName)), m_compactAbove(tolerableJournal)
{
    StartFresh();
}

void RegistryFile::StartFresh()
{
    m_root = std::make_shared<KeyNode>(m_rootName);
    MakeKey(m_root, RunKey());
    ++m_generation;
    m_file = Descriptor();
    m_seenSize = 0;
    m_completeSize = 0;
}

DWORD RegistryFile::Refresh()
{
    struct stat status = {};
    if (stat(m_path.c_str(), &status) != 0)
    {
        if (errno != ENOENT)
            return ErrorFromErrno(errno);
        if (m_file.IsOpen())
            StartFresh();
        return ERROR_SUCCESS;
    }
    if (!IsOwnFile(status) || status.st_size < m_completeSize)
        return ReadWhole();
    if (status.st_size == m_completeSize)
        return ERROR_SUCCESS;
    return ReadAppended() == ERROR_SUCCESS ? ERROR_SUCCESS : ReadWhole();
}

bool RegistryFile::IsOwnFile(const struct stat& status) const
{
    struct stat own = {};
    return m_file.IsOpen() && fstat(m_file.Get(), &own) == 0 && own.st_dev == status.st_dev &&
           own.st_ino == status.st_ino;
}

DWORD RegistryFile::ReadWhole()
{
    Descriptor file = OpenFileAt(m_path, O_RDONLY);
    std::string bytes;
    const DWORD error = file.IsOpen() ? ReadFrom(file.Get(), 0, bytes) : ErrorFromErrno(errno);
    if (error != ERROR_SUCCESS)
        return error;
    const std::u16string text = CharactersOf(bytes);
    const std::u16string_view content = text;
    const auto root = std::make_shared<KeyNode>(m_rootName);
    if (content.substr(0, regFileHeader.size()) != regFileHeader)
        return ERROR_BADDB;
    const auto applied = ApplyRecords(content.substr(regFileHeader.size()), root);
    if (!applied)
        return ERROR_BADDB;
    m_file = std::move(file);
    m_root = root;
    ++m_generation;
    m_seenSize = static_cast<off_t>(bytes.size());
    m_completeSize = DiskSize(regFileHeader.size() + *applied);
    m_compactAbove = tolerableJournal;
    return ERROR_SUCCESS;
}

DWORD RegistryFile::ReadAppended()
{
    std::string bytes;
    const DWORD error = ReadFrom(m_file.Get(), m_completeSize, bytes);
    if (error != ERROR_SUCCESS)
        return error;
    const auto applied = ApplyRecords(CharactersOf(bytes), m_root);
    if (!applied)
        return ERROR_BADDB;
    m_seenSize = m_completeSize + static_cast<off_t>(bytes.size());
    m_completeSize += DiskSize(*applied);
    return ERROR_SUCCESS;
}

DWORD RegistryFile::SetAside()
{
    for (int number = 1;; ++number)
    {
        const fs::path aside = m_path.string() + ".damaged-" + std::to_string(number);
        std::error_code error;
        if (fs::exists(fs::symlink_status(aside, error)))
            continue;
        fs::rename(m_path, aside, error);
        if (error)
            return ErrorFromErrno(error.value());
        m_reports.push_back("Registry file is damaged and was set aside: " + aside.string());
        StartFresh();
        return ERROR_SUCCESS;
    }
}

DWORD RegistryFile::Append(const std::u16string& record)
{
    if (!m_file.IsOpen())
    {
        const DWORD error = Replace(DiskBytes(WholeRegFile(*m_root)));
        if (error != ERROR_SUCCESS)
            return error;
    }
    const Descriptor file = OpenFileAt(m_path, O_WRONLY | O_APPEND);
    if (!file.IsOpen())
        return ErrorFromErrno(errno);
    if (m_seenSize > m_completeSize && ftruncate(file.Get(), m_completeSize) != 0)
        return ErrorFromErrno(errno);
    m_seenSize = m_completeSize;
    return WriteRecord(file.Get(), DiskBytes(record));
}

DWORD RegistryFile::WriteRecord(int descriptor, const std::string& bytes)
{
    const DWORD error = WriteOnce(descriptor, bytes);
    if (error == ERROR_SUCCESS)
    {
        m_completeSize += static_cast<off_t>(bytes.size());
        m_seenSize = m_completeSize;
        m_appended = true;
    }
    else if (ftruncate(descriptor, m_completeSize) != 0)
    {
        // The cut-off record stays until the next change: it is not complete, so nobody applies it.
        ReportFailure("repaired");
    }
    return error;
}

// The new file is complete before it takes the name.
DWORD RegistryFile::Replace(const std::string& content)
{
    const fs::path temporary = m_path.string() + ".tmp";
    Descriptor file = OpenFileAt(temporary, O_RDWR | O_CREAT | O_TRUNC);
    if (!file.IsOpen())
        return ErrorFromErrno(errno);
    const DWORD error = WriteOnce(file.Get(), content);
    if (error != ERROR_SUCCESS)
    {
        unlink(temporary.c_str());
        return error;
    }
    if (rename(temporary.c_str(), m_path.c_str()) != 0)
        return ErrorFromErrno(errno);
    m_file = std::move(file);
    m_completeSize = static_cast<off_t>(content.size());
    m_seenSize = m_completeSize;
    return ERROR_SUCCESS;
}

void RegistryFile::CompactIfLarge()
{
    if (m_completeSize <= m_compactAbove)
        return;
    const std::string content = DiskBytes(WholeRegFile(*m_root));
    m_compactAbove = 2 * static_cast<off_t>(content.size()) + tolerableJournal;
    if (m_completeSize > m_compactAbove && Replace(content) != ERROR_SUCCESS)
        ReportFailure("compacted");
}

void RegistryFile::CompactIfAppended()
{
    if (!m_appended || !m_file.IsOpen())
        return;
    const std::string content = DiskBytes(WholeRegFile(*m_root));
    if (m_completeSize > static_cast<off_t>(content.size()) && Replace(content) != ERROR_SUCCESS)
        ReportFailure("compacted");
    m_appended = false;
}

void RegistryFile::ReportFailure(const char* access)
{
    if (!m_reportedFailures.insert(access).second)
        return;
    m_reports.push_back(std::string("Registry file cannot be ") + access + ": " + m_path.string());
}

std::vector<std::string> RegistryFile::TakeReports()
{
    return std::exchange(m_reports, {});
}

} // namespace Pal
