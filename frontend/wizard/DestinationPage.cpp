#include "wizard/DestinationPage.h"

#include "widgets/MultiLayerBackgroundFrame.h"
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

} // namespace

DestinationPage::DestinationPage(const InstallationSettings& proposal)
    : Page("destinationPage", LayerSets::installerWithTaglines, Shape::Form),
      settings(proposal),
      check([needed = proposal.requiredSpace](const QString& path)
          { return ExamineFolder(path, needed); }),
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
    connect(folder, &QLineEdit::textChanged, this, [this] { Examine(); });
    connect(browse, &QPushButton::clicked, this, [this] { Browse(); });
    patience.setSingleShot(true);
    patience.setInterval(patienceMs);
    connect(&patience, &QTimer::timeout, this,
        [this] { space->setText(WizardText("The folder is being checked...")); });
    check.finished = [this] { ShowState(); };
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
    Examine();
}

bool DestinationPage::IsComplete() const
{
    return check.IsRunning() || check.State().objection.isEmpty();
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

void DestinationPage::Examine()
{
    check.Begin(Folder());
    patience.start();
    setProperty("isExamining", true);
    ShowTarget();
    completenessChanged();
}

void DestinationPage::WhenExamined(const std::function<void(bool)>& function)
{
    check.WhenKnown([function](const FolderState& state) { function(state.objection.isEmpty()); });
}

void DestinationPage::ShowTarget()
{
    const QString place = WithoutEnd(Folder());
    target->setText(WizardText("Will be installed in: %1").arg(PathText(place)));
    target->setToolTip(place);
}

void DestinationPage::ShowState()
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
    completenessChanged();
}

void DestinationPage::ShowSpace()
{
    const QString needed = SizeText(static_cast<qint64>(settings.requiredSpace), locale);
    const std::optional<qint64>& free = check.State().freeBytes;
    space->setText(
        free ? WizardText("Space needed: %1. Free there: %2.").arg(needed, SizeText(*free, locale))
             : WizardText("Space needed: %1.").arg(needed));
}

} // namespace Vorlan::FrontEnd
