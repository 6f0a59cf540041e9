#include "wizard/WelcomePage.h"

#include "base/ProductProfile.h"
#include "widgets/MultiLayerBackgroundFrame.h"
#include "wizard/Texts.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QVBoxLayout>

namespace Vorlan::FrontEnd
{

WelcomePage::WelcomePage(const QString& locale, bool isNewerThanInstalled)
    : Page("welcomePage", LayerSets::installerWithTaglines, Shape::UnderPicture),
      isNewer(isNewerThanInstalled),
      heading(AddHeading()),
      intro(AddText("intro")),
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
    terms = AddText("terms");
    terms->setTextFormat(Qt::RichText);
    terms->setTextInteractionFlags(Qt::TextBrowserInteraction);

    connect(languages, qOverload<int>(&QComboBox::currentIndexChanged), this,
        [this] { languageChosen(Locale()); });
    connect(terms, &QLabel::linkActivated, this,
        [this](const QString& target) { linkFollowed(target); });
}

void WelcomePage::Retranslate(const QString&)
{
    heading->setText(WizardText("Welcome to %1").arg(ProductTitle()));
    intro->setText(isNewer
                       ? WizardText("A few steps, and the program is ready to use.")
                       : WizardText("This version or a newer one is installed already. Installing "
                                    "again replaces it and keeps your settings."));
    languageLabel->setText(WizardText("&Language:"));
    terms->setText(WizardText("By installing you accept the <a href=\"licence\">licence "
                              "agreement</a> and the <a href=\"privacy\">privacy policy</a>."));
    languages->setAccessibleName(QString(languageLabel->text()).remove('&').remove(':'));
}

void WelcomePage::Apply(InstallationSettings& settings) const
{
    settings.locale = Locale();
}

QString WelcomePage::Locale() const
{
    return languages->currentData().toString();
}

} // namespace Vorlan::FrontEnd
