#include "wizard/FolderChooser.h"

#include "wizard/ElidedLabel.h"
#include "wizard/Texts.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QStorageInfo>
#include <QStyle>
#include <QVBoxLayout>

namespace Vorlan::FrontEnd
{
namespace
{

constexpr int longestPath = 32767; // limit of Windows

qint64 FreeSpace(const QString& folder)
{
    QFileInfo existing(QDir::cleanPath(folder));
    while (!existing.exists() && !existing.isRoot())
        existing.setFile(existing.path());
    return QStorageInfo(existing.absoluteFilePath()).bytesAvailable();
}

QString WithoutEnd(const QString& folder)
{
    return QDir::toNativeSeparators(QDir::cleanPath(folder));
}

} // namespace

FolderChooser::FolderChooser(const InstallationSettings& proposal, QWidget* parent)
    : QWidget(parent),
      settings(proposal),
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
    connect(folder, &QLineEdit::textChanged, this, [this] { Check(); });
    connect(browse, &QPushButton::clicked, this, [this] { Browse(); });
}

void FolderChooser::Retranslate(const QString& newLocale)
{
    locale = newLocale;
    folderLabel->setText(WizardText("&Folder:"));
    folder->setAccessibleName(QString(folderLabel->text()).remove('&').remove(':'));
    browse->setText(WizardText("B&rowse..."));
    Check();
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

void FolderChooser::Check()
{
    QString objection;
    isValid = InstallationSettings::IsValidPath(
        Folder(), static_cast<long long>(settings.requiredSpace), objection);
    error->setText(objection);
    error->setVisible(!objection.isEmpty());
    folder->setProperty("isWrong", !isValid);
    folder->style()->unpolish(folder); // applies the rules for the property
    folder->style()->polish(folder);
    folder->setAccessibleDescription(objection);
    const QString place = WithoutEnd(Folder());
    target->setText(WizardText("Will be installed in: %1").arg(PathText(place)));
    target->setToolTip(place);
    ShowSpace();
    checked();
}

void FolderChooser::ShowSpace()
{
    const auto needed = static_cast<qint64>(settings.requiredSpace);
    space->setText(WizardText("Space needed: %1. Free there: %2.")
                       .arg(SizeText(needed, locale), SizeText(FreeSpace(Folder()), locale)));
}

} // namespace Vorlan::FrontEnd
