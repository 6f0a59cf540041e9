#include "wizard/InUsePage.h"

#include "wizard/Texts.h"

#include <QDir>
#include <QListWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace Vorlan::FrontEnd
{

InUsePage::InUsePage(const QStringList& pictureLayers)
    : Page("inUsePage", pictureLayers, Shape::Form),
      heading(AddHeading()),
      intro(AddText("intro")),
      list(new QListWidget(this))
{
    list->setObjectName("programs");
    list->setTextElideMode(Qt::ElideMiddle);
    Body()->addWidget(list, 1);
    note = AddText("note");
}

void InUsePage::Retranslate(const QString&)
{
    heading->setText(WizardText("Close these programs first"));
    intro->setText(WizardText("They use files that are to be changed. Save your work in them."));
    list->setAccessibleName(heading->text());
    list->clear();
    for (const FileHolder& program : programs)
    {
        list->addItem(LineFor(program));
        list->item(list->count() - 1)->setToolTip(QDir::toNativeSeparators(program.image));
    }
    if (isWaiting)
        note->setText(WizardText("Waiting until the programs have closed..."));
    else if (!IsComplete())
        note->setText(
            WizardText("They are parts of Windows, which cannot be closed from here: sign "
                       "out or restart the computer, and try again."));
    else
        note->setText(
            WizardText("Each is asked to close. What does not close is ended only if you agree."));
}

// What has no window is not to be found by somebody who looks for it.
QString InUsePage::LineFor(const FileHolder& program) const
{
    const QString name = WizardText("%1, process %2").arg(program.name).arg(program.processId);
    if (program.isCritical)
        return WizardText("%1 (a part of the system)").arg(name);
    return program.hasWindow ? name : WizardText("%1 (without a window)").arg(name);
}

QWidget* InUsePage::FirstControl() const
{
    return list;
}

bool InUsePage::IsComplete() const
{
    return std::any_of(programs.begin(), programs.end(),
        [](const FileHolder& program) { return !program.isCritical; });
}

void InUsePage::ShowPrograms(const std::vector<FileHolder>& holders)
{
    programs = holders;
    isWaiting = false;
    Retranslate({});
    completenessChanged();
}

void InUsePage::ShowWaiting()
{
    isWaiting = true;
    Retranslate({});
}

} // namespace Vorlan::FrontEnd
