#include "wizard/FolderCheck.h"

#include "FreeSpace.h"
#include "base/InstallationSettings.h"
#include "wizard/Texts.h"

#include <QDir>
#include <QFileInfo>
#include <QMutex>
#include <QRegularExpression>
#include <QThreadPool>
#include <QtConcurrent>

#include <utility>

namespace Vorlan::FrontEnd
{
namespace
{

constexpr int mostExaminations = 4;
constexpr int mostThreads = 100; // of all objects

// Never destroyed: the end of the program does not wait for a thread that is held by the disk.
QThreadPool& Threads()
{
    static QThreadPool* const threads = []
    {
        auto* pool = new QThreadPool;
        pool->setMaxThreadCount(mostThreads);
        return pool;
    }();
    return *threads;
}

// The drive of the path that the system does not have; empty if there is none.
QString MissingDrive(const QString& path)
{
    const QString drive = QRegularExpression("^([A-Za-z]:)[\\\\/]").match(path).captured(1);
    return drive.isEmpty() || QDir(drive + '/').exists() ? QString() : drive.toUpper();
}

// Whether nothing but missing rights can object: the new part of the path is usable elsewhere.
bool IsOnlyProtected(const QString& folder)
{
    const QString path = QDir::cleanPath(QDir::fromNativeSeparators(folder));
    QFileInfo existing(path);
    while (!existing.exists() && !existing.isRoot())
        existing.setFile(existing.path());
    const QString newPart = path.mid(existing.filePath().size());
    QString error;
    return QDir::isAbsolutePath(path) && existing.isDir() &&
           InstallationSettings::IsValidPath(QDir::tempPath() + '/' + newPart, 0, error);
}

} // namespace

FolderState ExamineFolder(const QString& folder, quint64 neededBytes, Rights rights)
{
    FolderState state;
    const QString drive = MissingDrive(folder);
    if (!drive.isEmpty())
    {
        state.objection = WizardText("There is no drive %1 on this computer.").arg(drive);
        return state;
    }
    if (!InstallationSettings::IsValidPath(folder, 0, state.objection))
    {
        if (rights == Rights::OfThisProcess || !IsOnlyProtected(folder))
            return state;
        state.objection.clear();
    }
    const auto needed = static_cast<qint64>(neededBytes);
    state.freeBytes = FreeSpace(folder);
    if (state.freeBytes && *state.freeBytes < needed)
        state.objection = QObject::tr("There is not enough disk space");
    return state;
}

// Where the threads find the object, as long as it exists.
struct FolderCheck::Relay
{
    explicit Relay(FolderCheck* check) : target(check) {}

    void Send(quint64 number, const FolderState& result)
    {
        const QMutexLocker lock(&mutex);
        if (target != nullptr)
            QMetaObject::invokeMethod(
                target, [check = target, number, result] { check->Take(number, result); },
                Qt::QueuedConnection);
    }

    QMutex mutex;
    FolderCheck* target;
    Examine examine;
};

FolderCheck::FolderCheck(Examine examine) : relay(std::make_shared<Relay>(this))
{
    relay->examine = std::move(examine);
}

FolderCheck::~FolderCheck()
{
    const QMutexLocker lock(&relay->mutex);
    relay->target = nullptr;
}

void FolderCheck::Begin(const QString& folder)
{
    if (!isRunning || folder != latest)
        BeginAnew(folder);
}

void FolderCheck::BeginAnew(const QString& folder)
{
    latest = folder;
    ++latestNumber;
    isRunning = true;
    waiting = {};
    if (running < mostExaminations)
        StartExamination();
}

void FolderCheck::WhenKnown(std::function<void(const FolderState&)> function)
{
    if (!isRunning)
        return function(state);
    waiting = std::move(function);
}

void FolderCheck::StartExamination()
{
    ++running;
    startedNumber = latestNumber;
    QtConcurrent::run(&Threads(), [relay = relay, folder = latest, number = latestNumber]
        { relay->Send(number, relay->examine(folder)); });
}

void FolderCheck::Take(quint64 number, const FolderState& result)
{
    --running;
    if (startedNumber != latestNumber)
        StartExamination();
    if (number != latestNumber)
        return;
    isRunning = false;
    state = result;
    finished();
    if (const auto function = std::exchange(waiting, {}))
        function(state);
}

} // namespace Vorlan::FrontEnd
