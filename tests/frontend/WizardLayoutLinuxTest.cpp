// The layout of every page in every language, with the fonts of this system.
#include "base/ProductProfile.h"
#include "support/ArchiveBesideProgram.h"
#include "support/Machine.h"
#include "support/WizardDriver.h"
#include "widgets/AlertBox.h"
#include "widgets/ButtonWithIcon.h"
#include "wizard/Appearance.h"
#include "wizard/ElidedLabel.h"
#include "wizard/InstallWizard.h"
#include "wizard/ProgressPage.h"
#include "wizard/ResultPage.h"
#include "wizard/Texts.h"
#include "wizard/UninstallWizard.h"

#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFontDatabase>
#include <QLabel>
#include <QProgressBar>
#include <QRegularExpression>
#include <QScrollArea>

#include <gtest/gtest.h>

using namespace Vorlan;
using namespace Vorlan::FrontEnd;

namespace
{

std::string Describe(const QWidget& widget)
{
    const QString text = widget.property("text").toString();
    return (widget.objectName() + " \"" + text + '"').toStdString();
}

void ExpectNothingIsCut(const QLabel& label)
{
    if (dynamic_cast<const ElidedLabel*>(&label) != nullptr)
        return;
    if (label.wordWrap())
    {
        EXPECT_LE(label.heightForWidth(label.width()), label.height()) << Describe(label);
    }
    else
    {
        EXPECT_LE(label.sizeHint().width(), label.width()) << Describe(label);
    }
    const QFontMetrics metrics = label.fontMetrics();
    for (const uint letter : label.text().toUcs4())
        EXPECT_TRUE(metrics.inFontUcs4(letter) || letter < ' ') << Describe(label) << letter;
}

void ExpectIsInside(const QWidget& widget, const QWidget& window)
{
    QRect place(widget.mapTo(&window, QPoint()), widget.size());
    for (const QWidget* around = &widget; around != &window; around = around->parentWidget())
    {
        if (qobject_cast<const QScrollArea*>(around) != nullptr)
            place = {place.left(), 0, place.width(), 1}; // scrolls upwards and downwards
    }
    EXPECT_TRUE(window.rect().contains(place)) << Describe(widget) << place.right();
}

// The name that screen readers use.
void ExpectHasName(QWidget& widget)
{
    QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(&widget);
    ASSERT_NE(interface, nullptr) << Describe(widget);
    EXPECT_FALSE(interface->text(QAccessible::Name).isEmpty()) << Describe(widget);
}

void CheckWindow(QWidget& window)
{
    QApplication::processEvents();
    EXPECT_LE(window.width(), 670);
    QStringList mnemonics;
    for (auto* widget : window.findChildren<QWidget*>())
    {
        if (!widget->isVisible() || widget->property("text").toString() == " ")
            continue;
        ExpectIsInside(*widget, window);
        const auto* label = qobject_cast<QLabel*>(widget);
        const auto* button = qobject_cast<QAbstractButton*>(widget);
        if (label != nullptr)
            ExpectNothingIsCut(*label);
        if (button != nullptr)
        {
            EXPECT_LE(button->sizeHint().width(), button->width()) << Describe(*button);
        }
        if (button != nullptr || qobject_cast<QProgressBar*>(widget) != nullptr ||
            (widget->focusPolicy() & Qt::TabFocus) != 0)
            ExpectHasName(*widget);
        const QKeySequence key = QKeySequence::mnemonic(widget->property("text").toString());
        if (!key.isEmpty() && (label == nullptr || label->buddy() != nullptr))
            mnemonics << key.toString();
    }
    EXPECT_EQ(mnemonics.removeDuplicates(), 0) << mnemonics.join(' ').toStdString();
}

class WizardLayoutTest : public testing::TestWithParam<std::string>
{
protected:
    WizardLayoutTest()
    {
        ApplyStyle(*qApp);
        QDir::setCurrent(FRONTEND_FOLDER); // has the translations
        options.language = QString::fromStdString(GetParam());
        options.folder = machine.Path("target");
    }
    ~WizardLayoutTest() override { qApp->setStyleSheet(QString()); }

    Machine machine;
    CommandLine options;
};

TEST_P(WizardLayoutTest, EveryPageOfAnInstallationFitsAndIsAccessible)
{
    const ArchiveBesideProgram archive(Payload("small.7z"));
    InstallWizard wizard(options, [](const RunEvent&) {});
    WizardDriver driver(wizard);
    for (const char* page : {"startPage", "optionsPage"})
    {
        ASSERT_EQ(driver.PageName(), page);
        CheckWindow(wizard.Window());
        EXPECT_NE(wizard.Window().focusWidget(), nullptr);
        if (std::string(page) != "optionsPage")
            driver.Click("back");
    }
    driver.Press(Qt::Key_Return);
    ASSERT_EQ(driver.PageName(), "resultPage");
    CheckWindow(wizard.Window());

    auto* progress = wizard.Window().findChild<QWidget*>("progressPage");
    wizard.Window().Show(static_cast<Page*>(progress));
    driver.Find<QAbstractButton>("detailsButton")->click();
    CheckWindow(wizard.Window());
}

TEST_P(WizardLayoutTest, AFailureAndAListOfFilesFit)
{
    WizardWindow window;
    const auto translator = std::make_unique<UninstallWizard>(machine.Path("own"),
        OwnFolder{QSettings::UserScope, {}, {}}, options, [](const RunEvent&) {});
    ResultTexts failed;
    failed.isDone = false;
    failed.headingText = "%1 could not be uninstalled";
    failed.text =
        QCoreApplication::translate("Vorlan::InstallerMediator",
            "Installation failed. Try to select another location and run install again.") +
        "\n\n" + WizardText("Log file: %1").arg(QString("/long/folder").repeated(8));
    ResultTexts partly;
    partly.headingText = "%1 is installed";
    partly.listText = WizardText("Please note:");
    partly.list = QStringList{"a.dll: in use"};
    partly.canStart = true;
    for (const ResultTexts& texts : {failed, partly})
    {
        auto* page = new ResultPage({}, texts);
        window.Add(page);
        window.SetLabels({{}, WizardText("Close"), WizardText("&Try again")});
        window.Show(page);
        window.show();
        CheckWindow(window);
    }
    WizardDriver driver(*translator);
    CheckWindow(translator->Window());
}

TEST_P(WizardLayoutTest, EveryTextFitsItsBox)
{
    const UninstallWizard wizard(
        machine.Path("own"), {QSettings::UserScope, {}, {}}, options, [](const RunEvent&) {});
    const QString path = "C:\\Users\\Anna\\Downloads\\InstallerData.7z";
    for (const QString& text : {WizardText("Cancel the installation of %1?").arg(ProductTitle()),
             WizardText("The installation cannot be stopped now: files and settings are being "
                        "changed. It ends in a moment."),
             UninstallText("The uninstallation cannot be stopped now: files and settings are being "
                           "removed. It ends in a moment."),
             WizardText("The file %1 is missing. Put it back beside the setup program.").arg(path),
             WizardText("The installation for all users needs the rights of an administrator: "
                        "start the program as one."),
             WizardText("The setup is damaged. Download it again.")})
    {
        AlertBox box(text, nullptr, QDialogButtonBox::Yes | QDialogButtonBox::No, QPixmap());
        box.show();
        CheckWindow(box);
    }
}

std::vector<std::string> Locales()
{
    std::vector<std::string> locales;
    for (const QString& locale : ProductProfile::SupportedLocales())
        locales.push_back(locale.toStdString());
    return locales;
}
INSTANTIATE_TEST_SUITE_P(Locales, WizardLayoutTest, testing::ValuesIn(Locales()),
    [](const auto& row) { return row.param; });

} // namespace
