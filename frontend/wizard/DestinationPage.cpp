#include "wizard/DestinationPage.h"

#include "widgets/MultiLayerBackgroundFrame.h"
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

DestinationPage::DestinationPage(const InstallationSettings& proposal)
    : Page("destinationPage", LayerSets::installerWithTaglines, Shape::Form),
      settings(proposal),
      heading(AddHeading()),
      intro(AddText("intro")),
      folderLabel(new QLabel(this)),
      folder(new QLineEdit(WithoutEnd(proposal.installDir), this)),
      browse(new QPushButton(this))
{
    folder->setObjectName("folder");
    folder->setMaxLength(longestPath);
    folderLabel->setBuddy(folder);
    browse->setObjectName("browse");
    browse->setAutoDefault(false);
    auto* row = new QHBoxLayout;
    row->setSpacing(12);
    row->addWidget(folder, 1);
    row->addWidget(browse);
    Body()->addSpacing(16);
    Body()->addWidget(folderLabel);
    Body()->addLayout(row);
    error = AddText("error");
    target = AddLine("target");
    Body()->addSpacing(8);
    space = AddText("space");
    Body()->addStretch();
    connect(folder, &QLineEdit::textChanged, this, [this] { Check(); });
    connect(browse, &QPushButton::clicked, this, [this] { Browse(); });
}

void DestinationPage::Retranslate(const QString& newLocale)
{
    locale = newLocale;
    heading->setText(WizardText("Where to install"));
    intro->setText(
        WizardText("The program gets a folder of its own. You can keep the proposed place."));
    folderLabel->setText(WizardText("&Folder:"));
    folder->setAccessibleName(QString(folderLabel->text()).remove('&').remove(':'));
    browse->setText(WizardText("B&rowse..."));
    Check();
}

void DestinationPage::Apply(InstallationSettings& chosen) const
{
    chosen.installDir = Folder();
}

QWidget* DestinationPage::FirstControl() const
{
    return folder;
}

QString DestinationPage::Folder() const
{
    return settings.GetFilteredDirectory(folder->text().trimmed());
}

void DestinationPage::Browse()
{
    const QString chosen =
        QFileDialog::getExistingDirectory(this, WizardText("Choose a folder"), folder->text());
    if (!chosen.isEmpty())
        folder->setText(WithoutEnd(settings.GetFilteredDirectory(chosen)));
}

void DestinationPage::Check()
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
    completenessChanged();
}

void DestinationPage::ShowSpace()
{
    const auto needed = static_cast<qint64>(settings.requiredSpace);
    space->setText(WizardText("Space needed: %1. Free there: %2.")
                       .arg(SizeText(needed, locale), SizeText(FreeSpace(Folder()), locale)));
}

} // namespace Vorlan::FrontEnd
