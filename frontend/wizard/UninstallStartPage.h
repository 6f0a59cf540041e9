#pragma once

#include "wizard/Page.h"

class QCheckBox;

namespace Vorlan::FrontEnd
{

// Page with the folder to be removed, and the option to delete the user's settings.
class UninstallStartPage : public Page
{
public:
    UninstallStartPage(const QString& folder, bool isDeletingSettings);

    void Retranslate(const QString& locale) override;

    bool IsDeletingSettings() const;

private:
    QString folder;
    QLabel* heading;
    QLabel* intro;
    QLabel* place;
    QCheckBox* deleteSettings;
};

} // namespace Vorlan::FrontEnd
