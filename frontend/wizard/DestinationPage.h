#pragma once

#include "wizard/FolderCheck.h"
#include "wizard/Page.h"

#include <QTimer>

class QLineEdit;
class QPushButton;

namespace Vorlan::FrontEnd
{

// Page with the installation folder. It is examined while it is edited, on another thread; what
// objects to it is shown below the field.
class DestinationPage : public Page
{
public:
    // Proposes the folder of the settings, and shows their required space.
    explicit DestinationPage(const InstallationSettings& settings);

    void Retranslate(const QString& locale) override;
    void Apply(InstallationSettings& settings) const override;
    // As long as the folder is examined, it counts as usable: see WhenExamined.
    bool IsComplete() const override;
    QWidget* FirstControl() const override;

    // Examines the folder again, because the disk may have changed.
    void Examine();
    // Calls the function with whether the folder is usable, as soon as that is known.
    void WhenExamined(const std::function<void(bool)>& function);

    // The installation folder for the typed text.
    QString Folder() const;

private:
    void Browse();
    void ShowTarget();
    void ShowState();
    void ShowSpace();

    InstallationSettings settings;
    QString locale;
    FolderCheck check;
    QTimer patience; // until the page says that it still examines the folder
    QLabel* heading;
    QLabel* intro;
    QLabel* folderLabel;
    QLineEdit* folder;
    QPushButton* browse;
    QLabel* error;
    QLabel* target;
    QLabel* space;
};

} // namespace Vorlan::FrontEnd
