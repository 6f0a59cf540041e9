#include "support/Machine.h"

#include <QDir>
#include <QDirIterator>
#include <QHash>
#include <QRegularExpression>
#include <QSet>

#include <gtest/gtest.h>

#include <algorithm>

namespace
{

const QString top = PROJECT_SOURCES "/";

// The project's own sources and headers, relative to its top.
QStringList Sources()
{
    QStringList files;
    for (const char* folder : {"src", "services", "pal", "frontend"})
    {
        for (QDirIterator file(
                 top + folder, {"*.cpp", "*.h"}, QDir::Files, QDirIterator::Subdirectories);
             file.hasNext();)
            files += QDir(top).relativeFilePath(file.next());
    }
    return files;
}

// What each file includes of the project.
QHash<QString, QStringList> Includes(const QStringList& files)
{
    const QSet<QString> known(files.begin(), files.end());
    const QRegularExpression directive(
        "^\\s*#\\s*include [\"<]([^\">]+)[\">]", QRegularExpression::MultilineOption);
    QHash<QString, QStringList> includes;
    for (const QString& file : files)
    {
        const QString folder = file.left(file.lastIndexOf('/') + 1);
        for (auto found = directive.globalMatch(ReadFile(top + file)); found.hasNext();)
        {
            const QString name = found.next().captured(1);
            for (const QString& root : {folder, QString("src/"), QString("services/"),
                     QString("frontend/"), QString("pal/include/"), QString("pal/src/")})
            {
                const QString path = QDir::cleanPath(root + name);
                if (!known.contains(path))
                    continue;
                includes[file] += path;
                break;
            }
        }
    }
    return includes;
}

struct Row
{
    QString folder;
    QStringList allowed;
};

// The table of folders in docs/architecture.md.
std::vector<Row> ReadTable()
{
    const QRegularExpression line(
        "^\\| `([^`]+/)` \\|[^|]*\\|([^|]*)\\|$", QRegularExpression::MultilineOption);
    std::vector<Row> rows;
    for (auto row = line.globalMatch(ReadFile(DOCUMENTATION_FOLDER "/architecture.md"));
         row.hasNext();)
    {
        const QRegularExpressionMatch match = row.next();
        rows.push_back(
            {match.captured(1), match.captured(2).remove('`').split(' ', Qt::SkipEmptyParts)});
    }
    return rows;
}

// The row of the innermost folder that holds the file.
const Row* RowOf(const std::vector<Row>& rows, const QString& file)
{
    const Row* found = nullptr;
    for (const Row& row : rows)
    {
        if (file.startsWith(row.folder) && (!found || row.folder.size() > found->folder.size()))
            found = &row;
    }
    return found;
}

// A header and its sources count as one.
QString Unit(QString file)
{
    return file.remove(QRegularExpression("(_linux|_windows)?\\.(cpp|h)$"));
}

// Units on a way that leads back to its start, as text; empty when there is no such way.
QString FindCircle(const QHash<QString, QSet<QString>>& graph, const QString& unit,
    QStringList& way, QSet<QString>& done)
{
    if (way.contains(unit))
        return (way.mid(way.indexOf(unit)) + QStringList(unit)).join(" -> ");
    if (done.contains(unit))
        return QString();
    way += unit;
    for (const QString& next : graph[unit])
    {
        QString circle = FindCircle(graph, next, way, done);
        if (!circle.isEmpty())
            return circle;
    }
    way.removeLast();
    done.insert(unit);
    return QString();
}

} // namespace

TEST(Sources, IncludeWhatTheTableOfFoldersNames)
{
    const std::vector<Row> rows = ReadTable();
    ASSERT_GE(rows.size(), 15U);
    QSet<QString> unused;
    for (std::size_t i = 0; i < rows.size(); ++i)
    {
        for (const QString& allowed : rows[i].allowed)
        {
            const bool isBelow = std::any_of(rows.begin() + static_cast<std::ptrdiff_t>(i) + 1,
                rows.end(), [&](const Row& below) { return below.folder == allowed; });
            EXPECT_TRUE(isBelow || allowed.endsWith(".h"))
                << rows[i].folder.toStdString() << " names " << allowed.toStdString();
            unused.insert(rows[i].folder + ' ' + allowed);
        }
    }

    const QHash<QString, QStringList> includes = Includes(Sources());
    for (auto file = includes.begin(); file != includes.end(); ++file)
    {
        const Row* const row = RowOf(rows, file.key());
        ASSERT_TRUE(row) << file.key().toStdString() << " lies in no folder of the table";
        for (const QString& included : file.value())
        {
            const Row* const target = RowOf(rows, included);
            const QString folder = target ? target->folder : QString();
            const bool isNamed = row->allowed.contains(included);
            unused.remove(row->folder + ' ' + (isNamed ? included : folder));
            EXPECT_TRUE(folder == row->folder || isNamed || row->allowed.contains(folder))
                << file.key().toStdString() << " includes " << included.toStdString();
        }
    }
    for (const QString& entry : unused)
        ADD_FAILURE() << "the table allows what nobody includes: " << entry.toStdString();
}

TEST(Sources, IncludeNoOtherInCircles)
{
    QHash<QString, QSet<QString>> graph;
    const QHash<QString, QStringList> includes = Includes(Sources());
    for (auto file = includes.begin(); file != includes.end(); ++file)
    {
        for (const QString& included : file.value())
        {
            if (Unit(included) != Unit(file.key()))
                graph[Unit(file.key())].insert(Unit(included));
        }
    }
    QSet<QString> done;
    for (const QString& unit : graph.keys())
    {
        QStringList way;
        EXPECT_EQ(FindCircle(graph, unit, way, done), QString());
    }
}

TEST(Sources, TheEngineKnowsNoSystem)
{
    const QRegularExpression condition("^\\s*#\\s*(if|elif).*(_WIN|__linux|__MINGW|__unix|Q_OS_)",
        QRegularExpression::MultilineOption);
    EXPECT_TRUE(condition.match("x\n# if defined(Q_OS_WIN)").hasMatch());
    const QRegularExpression name("_(linux|windows)\\.|^src/platform/.*\\.cpp$");
    for (const QString& file : Sources().filter(QRegularExpression("^src/")))
    {
        EXPECT_FALSE(condition.match(ReadFile(top + file)).hasMatch()) << file.toStdString();
        EXPECT_FALSE(name.match(file).hasMatch()) << file.toStdString();
    }
}
