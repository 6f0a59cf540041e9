#pragma once

#include <QObject>

#include <functional>
#include <memory>
#include <optional>

namespace Vorlan::FrontEnd
{

// What is known of a folder as a place for the product.
struct FolderState
{
    QString objection;               // why it cannot be used, for the user; empty if it can
    std::optional<qint64> freeBytes; // none if the system does not say
};

// With whose rights the folder will be written.
enum class Rights
{
    OfThisProcess,
    OfAdministrator
};

// Looks at the disk: whether the product, which needs so many bytes, can be installed into the
// folder. That this process may not write there is no objection if an administrator's will. Takes
// as long as the disk does; on any thread.
FolderState ExamineFolder(
    const QString& folder, quint64 neededBytes, Rights rights = Rights::OfThisProcess);

// Examines the folder that a user types, without ever waiting for the disk: a network drive may
// take half a minute. All members on the thread of construction; the examinations run on others, at
// most four at a time, and may outlast the object. Only the result for the latest folder counts.
class FolderCheck : public QObject
{
public:
    using Examine = std::function<FolderState(const QString&)>;

    explicit FolderCheck(Examine examine);
    ~FolderCheck() override;

    // Begins to examine this folder, unless that is running; results for earlier ones are dropped.
    void Begin(const QString& folder);
    // Begins in any case, because the rules of the examination have changed.
    void BeginAnew(const QString& folder);
    bool IsRunning() const { return isRunning; }
    // Of the latest folder, if nothing is running.
    const FolderState& State() const { return state; }

    // Calls the function once with the result of the latest folder: at once if it is known, else as
    // soon as it is. A new folder or a later call replaces it.
    void WhenKnown(std::function<void(const FolderState&)> function);

    // Called when the state is known, before the function above.
    std::function<void()> finished = [] {};

private:
    struct Relay;

    void StartExamination();
    void Take(quint64 number, const FolderState& result);

    std::shared_ptr<Relay> relay;
    QString latest;
    quint64 latestNumber = 0;
    quint64 startedNumber = 0;
    int running = 0;
    bool isRunning = false;
    FolderState state;
    std::function<void(const FolderState&)> waiting;
};

} // namespace Vorlan::FrontEnd
