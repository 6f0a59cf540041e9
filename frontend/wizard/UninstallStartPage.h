#pragma once

#include "wizard/Page.h"

#include <QSettings>

class QCheckBox;
class QListWidget;

namespace Vorlan::FrontEnd
{

// What an uninstallation is about.
struct UninstallPlan
{
    QString folder;
    QSettings::Scope scope = QSettings::UserScope;
    bool isDeletingSettings = false;
    bool isEverything = false; // also what is not the program's
    QStringList foreign;       // what in the folder is not the program's
};

// Page with the version and the folder to be removed, what in it is not the program's, and the
// option to delete the user's settings.
class UninstallStartPage : public Page
{
public:
    explicit UninstallStartPage(const UninstallPlan& plan);

    void Retranslate(const QString& locale) override;

    bool IsDeletingSettings() const;

private:
    UninstallPlan plan;
    QLabel* heading;
    QLabel* intro;
    QLabel* place;
    QCheckBox* deleteSettings;
    QLabel* foreignLabel;
    QListWidget* foreign;
};

} // namespace Vorlan::FrontEnd
