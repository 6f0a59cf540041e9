#include "platform/Path.h"

#include "foundation/NearestExisting.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QStorageInfo>

#include <codecvt>
#include <locale>
#include <stdexcept>

namespace Vorlan
{

ioPath::ioPath(const std::string& utf8) : path(std::filesystem::u8path(utf8)) {}

ioPath::ioPath(const char* utf8) : path(std::filesystem::u8path(utf8)) {}

ioPath& ioPath::operator=(const char* utf8)
{
    path = std::filesystem::u8path(utf8);
    return *this;
}

ioPath ioPath::operator/(const ioPath& element) const
{
    ioPath joined;
    joined.path = path / element.path;
    return joined;
}

bool ioPath::exists() const
{
    std::error_code ignored;
    return std::filesystem::exists(path, ignored);
}

bool ioPath::exists(const ioPath& path)
{
    return path.exists();
}

std::string ioPath::utf8string() const
{
    return path.u8string();
}

ioPath operator+(const ioPath& path, const ioPath& suffix)
{
    return ioPath(path.utf8string() + suffix.utf8string());
}

namespace Core
{

namespace
{

using Utf8Converter = std::wstring_convert<std::codecvt_utf8_utf16<wchar_t>>;

// The converter throws on text that is broken, but takes text that is cut off for whole.
void ThrowUnlessWhole(bool isWhole)
{
    if (!isWhole)
        throw std::range_error("text is cut off in the middle of a character");
}

} // namespace

std::wstring WstringFromUtf8(const std::string& text)
{
    Utf8Converter converter;
    std::wstring converted = converter.from_bytes(text);
    ThrowUnlessWhole(converter.converted() == text.size());
    return converted;
}

std::string Utf8FromWstring(const std::wstring& text)
{
    Utf8Converter converter;
    std::string converted = converter.to_bytes(text);
    ThrowUnlessWhole(converter.converted() == text.size());
    return converted;
}

} // namespace Core

namespace Util
{

namespace
{

bool AreNamesAllowed(const QString& path)
{
    QStringList names = path.split('/', Qt::SkipEmptyParts);
    static const QRegularExpression drive("^[A-Za-z]:$");
    if (!names.isEmpty() && drive.match(names.first()).hasMatch())
        names.removeFirst();
    return std::all_of(names.begin(), names.end(), Platform::IsFileNameAllowed);
}

} // namespace

PathValidationState IsThisPathValid(const QString& path)
{
    const QString portable = QDir::fromNativeSeparators(path);
    if (portable.isEmpty() || QDir::isRelativePath(portable))
        return PathValidationState::NotAbsolute;
    if (!AreNamesAllowed(portable))
        return PathValidationState::ForbiddenName;
    const QFileInfo existing = Platform::NearestExisting(portable);
    if (!existing.isDir())
        return PathValidationState::NotAFolder;
    return Platform::MayCreateIn(existing.absoluteFilePath()) ? PathValidationState::Valid
                                                              : PathValidationState::NotWritable;
}

std::int64_t GetAvailableDiskSpace(const ioPath& path)
{
    const QFileInfo existing = Platform::NearestExisting(QString::fromStdString(path.utf8string()));
    const qint64 available = QStorageInfo(existing.absoluteFilePath()).bytesAvailable();
    return available < 0 ? 0 : available;
}

} // namespace Util

namespace Platform
{

QString TextFromWide(const std::wstring& wide)
{
    QString text;
    text.reserve(static_cast<int>(wide.size()));
    for (const wchar_t unit : wide)
    {
        const auto codePoint = static_cast<char32_t>(unit);
        if (QChar::requiresSurrogates(codePoint))
        {
            text += QChar(QChar::highSurrogate(codePoint));
            text += QChar(QChar::lowSurrogate(codePoint));
        }
        else
        {
            text += QChar(static_cast<ushort>(codePoint));
        }
    }
    return text;
}

std::wstring WideFromText(const QString& text)
{
    return std::wstring(text.utf16(), text.utf16() + text.size());
}

bool IsFileNameAllowed(const QString& name)
{
    static const QRegularExpression reserved(
        "^(CON|PRN|AUX|NUL|CONIN\\$|CONOUT\\$|(COM|LPT)[0-9\u00B9\u00B2\u00B3])[ ]*([.].*)?$",
        QRegularExpression::CaseInsensitiveOption);
    const auto isForbidden = [](QChar character)
    { return character.unicode() < 0x20 || QStringLiteral("<>:\"/\\|?*").contains(character); };

    return !name.isEmpty() && name.size() <= 255 && name.isValidUtf16() && !name.endsWith('.') &&
           !name.endsWith(' ') && std::none_of(name.begin(), name.end(), isForbidden) &&
           !reserved.match(name).hasMatch();
}

} // namespace Platform

} // namespace Vorlan
