#include "codecs/BrokenList.h"

#include <QFile>
#include <QRegularExpression>
#include <QSaveFile>
#include <QStringList>

#include <stdexcept>

namespace Vorlan::Core::Utils
{

namespace
{

constexpr qint64 maxFileSize = 1 << 20;

QByteArray FirstLine(BrokenList::Kind kind)
{
    return kind == BrokenList::Kind::Codecs ? "# Vorlan broken codecs 1"
                                            : "# Vorlan broken plug-ins 1";
}

[[noreturn]] void Refuse(const QString& fileName, const QString& reason)
{
    throw std::runtime_error((fileName + ": " + reason).toStdString());
}

// One byte more than a list may have shows that it is too long.
QByteArray ReadBounded(const QString& fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        Refuse(fileName, file.errorString());
    QByteArray content = file.read(maxFileSize + 1);
    if (file.error() != QFileDevice::NoError)
        Refuse(fileName, file.errorString());
    return content;
}

} // namespace

bool IsCodecName(const std::string& name)
{
    static const QRegularExpression pattern("\\A[A-Za-z0-9_-]{1,64}\\z");
    return pattern.match(QString::fromStdString(name)).hasMatch();
}

BrokenList::BrokenList(Kind listKind, const ioPath& path)
    : kind(listKind), fileName(QString::fromStdString(path.utf8string()))
{
    if (fileName.isEmpty())
        return;
    const QByteArray content = ReadBounded(fileName);
    if (content.isEmpty())
        return;
    QList<QByteArray> texts = content.split('\n');
    if (content.size() > maxFileSize || texts.takeFirst().trimmed() != FirstLine(kind))
        Refuse(fileName, "this is no list of what is broken; it is left as it is");
    for (const QByteArray& text : texts)
    {
        if (!text.trimmed().isEmpty())
            lines.push_back(text.trimmed().toStdString());
    }
}

void BrokenList::Write(const std::vector<std::string>& newLines) const
{
    if (fileName.isEmpty() || newLines == lines)
        return;
    QByteArray content = FirstLine(kind) + '\n';
    for (const std::string& line : newLines)
        content += QByteArray::fromStdString(line) + '\n';
    QSaveFile file(fileName);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size() || !file.commit())
        Refuse(fileName, file.errorString());
}

ImplsOfCodec ReadBrokenCodecs(const std::vector<std::string>& lines)
{
    ImplsOfCodec broken;
    for (const std::string& line : lines)
    {
        const QStringList parts = QString::fromStdString(line).split('=');
        if (parts.size() != 2 || !IsCodecName(parts[0].toStdString()))
            continue;
        for (const QString& impl : parts[1].split(','))
        {
            if (IsCodecName(impl.toStdString()))
                broken[parts[0].toStdString()].insert(impl.toStdString());
        }
    }
    return broken;
}

std::set<std::string> ReadBrokenPlugins(const std::vector<std::string>& lines)
{
    std::set<std::string> broken;
    for (const std::string& line : lines)
    {
        if (IsCodecName(line))
            broken.insert(line);
    }
    return broken;
}

} // namespace Vorlan::Core::Utils
