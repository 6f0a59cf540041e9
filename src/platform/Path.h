#pragma once

#include <QString>

#include <cstdint>
#include <filesystem>
#include <string>

namespace Vorlan
{

// A path of the file system; its text is UTF-8 on the engine's side. Invalid UTF-8 throws
// std::range_error where the system needs another encoding.
class ioPath
{
public:
    ioPath() = default;
    ioPath(const std::string& utf8);
    ioPath(const char* utf8);
    ioPath& operator=(const char* utf8);

    // Joined with a separator.
    ioPath operator/(const ioPath& element) const;

    bool exists() const;
    static bool exists(const ioPath& path);
    std::string utf8string() const;

private:
    std::filesystem::path path;
};

// The path with a suffix such as ".ico", without a separator between them.
ioPath operator+(const ioPath& path, const ioPath& suffix);

// Why a folder cannot be installed into; 0 is a folder that can.
enum class PathValidationState : int
{
    Valid = 0,
    NotAbsolute = 1,   // empty, or relative to some current folder
    ForbiddenName = 2, // a component that Windows does not allow as a file name
    NotAFolder = 3,    // a file stands where a folder must be
    NotWritable = 4,   // the nearest existing folder cannot be written to
};

namespace Core
{

// The same text in the other encoding; wide text is UTF-16, one code unit per wchar_t. Text that is
// not valid throws std::range_error.
std::wstring WstringFromUtf8(const std::string& text);
std::string Utf8FromWstring(const std::wstring& text);

} // namespace Core

namespace Util
{

PathValidationState IsThisPathValid(const QString& path);

// Free bytes for this user on the volume that holds the path's nearest existing ancestor; 0 when it
// cannot be asked.
std::int64_t GetAvailableDiskSpace(const ioPath& path);

} // namespace Util

namespace Platform
{

// Wide text that holds UTF-16 code units, one per wchar_t, or UTF-32 where wchar_t is that wide.
QString TextFromWide(const std::wstring& wide);

// UTF-16 code units, one per wchar_t on every system.
std::wstring WideFromText(const QString& text);

// The path with every separator of the other system turned into this system's: text that was
// written with backslashes can then be handed to Qt.
QString ToNativePath(QString path);

// An absolute path in the form in which a call of the system takes it at any length: on Windows a
// path of 248 characters or more (the limit of CreateDirectoryW) gets the prefix "\\?\", whatever
// the machine's policy for long paths is.
std::wstring PathForCall(std::wstring path);

// Whether the system lets this process create files and folders in an existing folder.
bool MayCreateIn(const QString& folder);

// The path whose free space is queried: "C:\" on Windows, the path itself where volumes have no
// letters.
QString DriveRoot(const QString& path);

// Whether Windows allows a file of that name: not empty, "." or "..", no control character, no
// unpaired surrogate, none of these characters: \ / : * ? " < > |, no blank or dot at the end, no
// reserved device name such as "NUL" or "com1.txt", at most 255 UTF-16 code units. The rule is the
// same on every system.
bool IsFileNameAllowed(const QString& name);

} // namespace Platform

} // namespace Vorlan
