#include "wizard/FolderChooser.h"

#include "wizard/ElidedLabel.h"
#include "wizard/Texts.h"

#include <QDir>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

namespace Vorlan::FrontEnd
{
namespace
{

constexpr int longestPath = 32767; // limit of Windows
constexpr int patienceMs = 500;

QString WithoutEnd(const QString& folder)
{
    return QDir::toNativeSeparators(QDir::cleanPath(folder));
}

FolderCheck::Examine ExamineFor(
    quint64 neededBytes, const std::shared_ptr<std::atomic<Rights>>& rights)
{
    return [neededBytes, rights](const QString& folder)
    { return ExamineFolder(folder, neededBytes, *rights); };
}

} // namespace

FolderChooser::FolderChooser(
    const InstallationSettings& proposal, QWidget* parent, FolderCheck::Examine examine)
    : QWidget(parent),
      settings(proposal),
      rights(std::make_shared<std::atomic<Rights>>(Rights::OfThisProcess)),
      check(examine ? std::move(examine) : ExamineFor(proposal.requiredSpace, rights)),
      folderLabel(new QLabel(this)),
      folder(new QLineEdit(WithoutEnd(proposal.installDir), this)),
      browse(new QPushButton(this)),
      error(new QLabel(this)),
      target(new ElidedLabel(this)),
      space(new QLabel(this))
{
    folder->setObjectName("folder");
    folder->setMaxLength(longestPath);
    folderLabel->setObjectName("group");
    folderLabel->setBuddy(folder);
    browse->setObjectName("browse");
    browse->setAutoDefault(false);
    error->setObjectName("error");
    error->setWordWrap(true);
    target->setObjectName("target");
    space->setObjectName("space");
    space->setWordWrap(true);
    auto* row = new QHBoxLayout;
    row->setSpacing(12);
    row->addWidget(folder, 1);
    row->addWidget(browse);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(folderLabel);
    column->addLayout(row);
    for (QWidget* line : {error, static_cast<QLabel*>(target), space})
        column->addWidget(line);
    connect(folder, &QLineEdit::textChanged, this, [this] { Examine(); });
    connect(browse, &QPushButton::clicked, this, [this] { Browse(); });
    patience.setSingleShot(true);
    patience.setInterval(patienceMs);
    connect(&patience, &QTimer::timeout, this,
        [this] { space->setText(WizardText("The folder is being checked...")); });
    check.finished = [this] { ShowState(); };
}

void FolderChooser::Retranslate(const QString& newLocale)
{
    locale = newLocale;
    folderLabel->setText(WizardText("&Folder:"));
    folder->setAccessibleName(QString(folderLabel->text()).remove('&').remove(':'));
    browse->setText(WizardText("B&rowse..."));
    Examine();
}

bool FolderChooser::IsValid() const
{
    return check.IsRunning() || check.State().objection.isEmpty();
}

void FolderChooser::Propose(const QString& proposed)
{
    const bool isUnchanged = folder->text() == WithoutEnd(settings.installDir);
    settings.installDir = proposed;
    if (isUnchanged)
        folder->setText(WithoutEnd(proposed));
}

QString FolderChooser::Folder() const
{
    return settings.GetFilteredDirectory(folder->text().trimmed());
}

void FolderChooser::Browse()
{
    const QString chosen =
        QFileDialog::getExistingDirectory(this, WizardText("Choose a folder"), folder->text());
    if (!chosen.isEmpty())
        folder->setText(WithoutEnd(settings.GetFilteredDirectory(chosen)));
}

void FolderChooser::SetRights(Rights given)
{
    if (rights->exchange(given) == given)
        return;
    check.BeginAnew(Folder());
    ShowExamining();
}

void FolderChooser::Examine()
{
    check.Begin(Folder());
    ShowExamining();
}

void FolderChooser::ShowExamining()
{
    patience.start();
    setProperty("isExamining", true);
    ShowTarget();
    checked();
}

void FolderChooser::WhenExamined(const std::function<void(bool)>& function)
{
    check.WhenKnown([function](const FolderState& state) { function(state.objection.isEmpty()); });
}

void FolderChooser::ShowTarget()
{
    const QString place = WithoutEnd(Folder());
    target->setText(WizardText("Will be installed in: %1").arg(PathText(place)));
    target->setToolTip(place);
}

void FolderChooser::ShowState()
{
    const QString& objection = check.State().objection;
    patience.stop();
    setProperty("isExamining", false);
    error->setText(objection);
    error->setVisible(!objection.isEmpty());
    folder->setProperty("isWrong", !objection.isEmpty());
    folder->style()->unpolish(folder); // applies the rules for the property
    folder->style()->polish(folder);
    folder->setAccessibleDescription(objection);
    ShowSpace();
    checked();
}

void FolderChooser::ShowSpace()
{
    const QString needed = SizeText(static_cast<qint64>(settings.requiredSpace), locale);
    const std::optional<qint64>& free = check.State().freeBytes;
    space->setText(
        free ? WizardText("Space needed: %1. Free there: %2.").arg(needed, SizeText(*free, locale))
             : WizardText("Space needed: %1.").arg(needed));
}

} // namespace Vorlan::FrontEnd
