#pragma once

#include "FileHolder.h"
#include "wizard/Page.h"

#include <vector>

class QListWidget;

namespace Vorlan::FrontEnd
{

// Lists the programs that hold files which a run is going to change.
class InUsePage : public Page
{
public:
    explicit InUsePage(const QStringList& layers);

    void Retranslate(const QString& locale) override;
    QWidget* FirstControl() const override;
    // Complete if one of the programs can be closed.
    bool IsComplete() const override;

    void ShowPrograms(const std::vector<FileHolder>& holders);
    // While the programs are asked to close.
    void ShowWaiting();

    const std::vector<FileHolder>& Programs() const { return programs; }

private:
    QString LineFor(const FileHolder& program) const;

    std::vector<FileHolder> programs;
    bool isWaiting = false;
    QLabel* heading;
    QLabel* intro;
    QListWidget* list;
    QLabel* note;
};

} // namespace Vorlan::FrontEnd
