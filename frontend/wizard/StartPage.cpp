#include "wizard/StartPage.h"

#include "base/ProductProfile.h"
#include "widgets/MultiLayerBackgroundFrame.h"
#include "wizard/Texts.h"

#include <QComboBox>
#include <QDir>
#include <QHBoxLayout>
#include <QVBoxLayout>

namespace Vorlan::FrontEnd
{
namespace
{

QString TitleWithVersion()
{
    return ProductTitle() + ' ' + ProductProfile::versionText;
}

} // namespace

StartPage::StartPage(const QString& locale, const FoundInstallations& foundInstallations)
    : Page("startPage", LayerSets::installerWithTaglines, Shape::UnderPicture),
      found(foundInstallations),
      heading(AddHeading()),
      intro(AddText("intro")),
      place(AddLine("target")),
      languageLabel(new QLabel(this)),
      languages(new QComboBox(this))
{
    languages->setObjectName("languages");
    languageLabel->setBuddy(languages);
    for (const QString& code : ProductProfile::SupportedLocales())
        languages->addItem(LanguageName(code), code);
    languages->setCurrentIndex(languages->findData(locale));
    auto* row = new QHBoxLayout;
    row->setSpacing(12);
    row->addWidget(languageLabel);
    row->addWidget(languages);
    row->addStretch();
    Body()->addLayout(row);
    Body()->addStretch();
    removal = AddLinks("removal");
    terms = AddLinks("terms");
    connect(languages, qOverload<int>(&QComboBox::currentIndexChanged), this,
        [this] { languageChosen(Locale()); });
}

QLabel* StartPage::AddLinks(const char* name)
{
    QLabel* links = AddText(name);
    links->setTextFormat(Qt::RichText);
    links->setTextInteractionFlags(Qt::TextBrowserInteraction);
    connect(links, &QLabel::linkActivated, this,
        [this](const QString& target) { linkFollowed(target); });
    return links;
}

void StartPage::ShowPlan(const InstallationSettings& settings)
{
    plan = settings;
    Retranslate(Locale());
}

QString StartPage::HeadingText() const
{
    const Installation* installed = found.Of(plan.scope);
    switch (ChangeOf(installed))
    {
    case Change::Install:
        return WizardText("Install %1").arg(TitleWithVersion());
    case Change::Update:
        return WizardText("Update %1 from %2 to %3")
            .arg(ProductTitle(), installed->version, QString(ProductProfile::versionText));
    case Change::Repair:
        return WizardText("%1 is installed already").arg(TitleWithVersion());
    case Change::Downgrade:
        break;
    }
    return WizardText("The newer version %1 is installed").arg(installed->version);
}

// What can be removed instead: the other one of two installations, or the same version.
QString StartPage::RemovalText() const
{
    const Installation* other = found.Of(OtherScope(plan.scope));
    if (other != nullptr)
        return WizardText("There is another installation in %1. You can <a href=\"remove\">remove "
                          "it</a>.")
            .arg(PathText(QDir::toNativeSeparators(other->folder)).toHtmlEscaped());
    if (ChangeOf(found.Of(plan.scope)) == Change::Repair)
        return WizardText("You can also <a href=\"remove\">remove it</a>.");
    return {};
}

void StartPage::Retranslate(const QString&)
{
    heading->setText(HeadingText());
    intro->setText(found.Of(plan.scope) == nullptr
                       ? WizardText("You can install right away, or look at the options first.")
                       : WizardText("Your settings and your own files are kept."));
    const QString folder = QDir::toNativeSeparators(QDir::cleanPath(plan.installDir));
    place->setText((plan.scope == QSettings::SystemScope ? WizardText("For all users, in %1")
                                                         : WizardText("For you, in %1"))
                       .arg(PathText(folder)));
    place->setToolTip(folder);
    languageLabel->setText(WizardText("&Language:"));
    terms->setText(WizardText("By installing you accept the <a href=\"licence\">licence "
                              "agreement</a> and the <a href=\"privacy\">privacy policy</a>."));
    removal->setText(RemovalText());
    removal->setHidden(removal->text().isEmpty());
    languages->setAccessibleName(QString(languageLabel->text()).remove('&').remove(':'));
}

void StartPage::Apply(InstallationSettings& settings) const
{
    settings.locale = Locale();
}

QString StartPage::Locale() const
{
    return languages->currentData().toString();
}

} // namespace Vorlan::FrontEnd
