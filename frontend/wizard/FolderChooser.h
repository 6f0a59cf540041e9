#pragma once

#include "base/InstallationSettings.h"

#include <QWidget>

#include <functional>

class QLabel;
class QLineEdit;
class QPushButton;

namespace Vorlan::FrontEnd
{

// The choice of the installation folder. The engine validates the text while it is edited; its
// error text is shown below the field.
class FolderChooser : public QWidget
{
public:
    // Proposes the folder of the settings, and shows their required space.
    FolderChooser(const InstallationSettings& settings, QWidget* parent);

    void Retranslate(const QString& locale);
    bool IsValid() const { return isValid; }

    // Proposes another folder, unless the user has changed the one before.
    void Propose(const QString& folder);
    // Validates the folder again, because the disk may have changed.
    void Check();

    // The installation folder for the typed text.
    QString Folder() const;

    // Called after each validation.
    std::function<void()> checked = [] {};

private:
    void Browse();
    void ShowSpace();

    InstallationSettings settings;
    QString locale;
    bool isValid = false;
    QLabel* folderLabel;
    QLineEdit* folder;
    QPushButton* browse;
    QLabel* error;
    QLabel* target;
    QLabel* space;
};

} // namespace Vorlan::FrontEnd
