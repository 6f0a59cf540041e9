#include "ResponseFile.h"

#include <QDir>
#include <QSaveFile>

#include <algorithm>
#include <array>

namespace Vorlan::FrontEnd
{
namespace
{

struct Key
{
    const char* name;
    const char* option; // on the command line
};

constexpr std::array keys{Key{"Dir", "/D="}, Key{"Lang", "/LANG="}, Key{"Shortcuts", "/SHORTCUTS="},
    Key{"ContextMenu", "/CONTEXTMENU="}, Key{"AutoLaunch", "/AUTOLAUNCH="},
    Key{"Statistics", "/STATISTICS="}};
constexpr std::array scopes{
    Key{"Scope=AllUsers", "/ALLUSERS"}, Key{"Scope=CurrentUser", "/CURRENTUSER"}};

bool IsSame(const QString& text, const char* name)
{
    return text.compare(QLatin1String(name), Qt::CaseInsensitive) == 0;
}

// The word of the command line for "key=value"; empty for an unknown key.
QString WordFor(const QString& key, const QString& value)
{
    for (const Key& scope : scopes)
    {
        if (IsSame(key + '=' + value, scope.name))
        {
            return scope.option;
        }
    }
    for (const Key& known : keys)
    {
        if (IsSame(key, known.name))
        {
            return known.option + value;
        }
    }
    return {};
}

// Reads one line after another into words of the command line.
class LineReader
{
public:
    // What is wrong with the line; empty if nothing is.
    QString Read(const QString& line)
    {
        if (line.isEmpty() || line.startsWith(';') || line.startsWith('#'))
        {
            return {};
        }
        if (line.startsWith('['))
        {
            isInSection = IsSame(line, "[Setup]");
            return isInSection ? QString() : "the only section is [Setup]";
        }
        const int equals = line.indexOf('=');
        if (!isInSection || equals < 0)
        {
            return "\"key=value\" below [Setup] is expected";
        }
        return Add(WordFor(line.left(equals).trimmed(), line.mid(equals + 1).trimmed()));
    }

    const QStringList& Words() const { return words; }

private:
    QString Add(const QString& word)
    {
        if (word.isEmpty())
        {
            return "unknown key or scope";
        }
        words << word;
        return ParseCommandLine({word}).error;
    }

    bool isInSection = false;
    QStringList words;
};

bool IsScope(const QString& word)
{
    return word == scopes[0].option || word == scopes[1].option;
}

} // namespace

ResponseFile::ResponseFile(QString filePath) : path(std::move(filePath)) {}

ParsedCommandLine ResponseFile::Complete(const CommandLine& options) const
{
    QFile file(path);
    const QString name = "The response file " + QDir::toNativeSeparators(path);
    if (!file.open(QIODevice::ReadOnly))
    {
        return {options, name + " cannot be read: " + file.errorString() + '.'};
    }
    LineReader reader;
    const QStringList lines = QString::fromUtf8(file.readAll()).remove(QChar(0xFEFF)).split('\n');
    for (int index = 0; index < lines.size(); ++index)
    {
        const QString problem = reader.Read(lines[index].trimmed());
        if (!problem.isEmpty())
        {
            return {options, QString("%1, line %2: %3").arg(name).arg(index + 1).arg(problem)};
        }
    }
    // The last value of a repeated option is used: that of the command line.
    QStringList words = reader.Words();
    if (options.HasScope())
    {
        words.erase(std::remove_if(words.begin(), words.end(), IsScope), words.end());
    }
    return ParseCommandLine(words + WordsFor(options));
}

QString ResponseFile::Save(const CommandLine& choices) const
{
    QStringList lines{"[Setup]"};
    const QStringList words = WordsFor(choices);
    for (const auto& known : keys)
    {
        for (const QString& word : words)
        {
            if (word.startsWith(known.option))
            {
                lines << QString(known.name) + '=' + word.mid(QString(known.option).size());
            }
        }
    }
    for (const Key& scope : scopes)
    {
        if (words.contains(scope.option))
        {
            lines << scope.name;
        }
    }
    QSaveFile file(path);
    const QByteArray content = lines.join('\n').toUtf8() + '\n';
    if (file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && file.commit())
    {
        return {};
    }
    return QString("The response file %1 cannot be written (%2): choose another with "
                   "/SAVEINF=<file>.")
        .arg(QDir::toNativeSeparators(path), file.errorString());
}

} // namespace Vorlan::FrontEnd
