#pragma once

#include "base/InstallationSettings.h"
#include "wizard/FolderCheck.h"

#include <QTimer>
#include <QWidget>

#include <atomic>
#include <functional>
#include <memory>

class QLabel;
class QLineEdit;
class QPushButton;

namespace Vorlan::FrontEnd
{

// The choice of the installation folder. It is examined while it is edited, on another thread; what
// objects to it is shown below the field.
class FolderChooser : public QWidget
{
public:
    // Proposes the folder of the settings, and shows their required space. `examine` replaces
    // ExamineFolder.
    FolderChooser(
        const InstallationSettings& settings, QWidget* parent, FolderCheck::Examine examine = {});

    void Retranslate(const QString& locale);
    // As long as the folder is examined, it counts as usable: see WhenExamined.
    bool IsValid() const;

    // Proposes another folder, unless the user has changed the one before.
    void Propose(const QString& folder);
    // With whose rights the folder will be written; examines it again.
    void SetRights(Rights rights);
    // Examines the folder again, because the disk may have changed.
    void Examine();
    // Calls the function with whether the folder is usable, as soon as that is known.
    void WhenExamined(const std::function<void(bool)>& function);

    // The installation folder for the typed text.
    QString Folder() const;

    // Called when an examination begins and when it has ended.
    std::function<void()> checked = [] {};

private:
    void Browse();
    void ShowTarget();
    void ShowExamining();
    void ShowState();
    void ShowSpace();

    InstallationSettings settings;
    QString locale;
    std::shared_ptr<std::atomic<Rights>> rights; // also for examinations that outlast the object
    FolderCheck check;
    QTimer patience; // until it is said that the folder is still examined
    QLabel* folderLabel;
    QLineEdit* folder;
    QPushButton* browse;
    QLabel* error;
    QLabel* target;
    QLabel* space;
};

} // namespace Vorlan::FrontEnd
