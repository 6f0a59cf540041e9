#include "wizard/InstallWizard.h"
#include "registry/RegistrySettings.h"
#include "support/ArchiveBesideProgram.h"
#include "support/ChildProgram.h"
#include "support/Machine.h"
#include "support/WizardDriver.h"
#include "widgets/ButtonWithIcon.h"
#include "wizard/ProgressPage.h"
#include "wizard/ResultPage.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDesktopServices>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QProgressBar>
#include <QRadioButton>
#include <QTest>
#include <QTimer>
#include <QUrl>

#include <gtest/gtest.h>

#include <algorithm>

using namespace Vorlan;
using namespace Vorlan::FrontEnd;

namespace
{

// The system's viewer for files.
class LogViewer : public QObject
{
    Q_OBJECT

public:
    LogViewer() { QDesktopServices::setUrlHandler("file", this, "Show"); }
    ~LogViewer() override { QDesktopServices::unsetUrlHandler("file"); }

    QStringList shown;

public slots:
    void Show(const QUrl& url) { shown << url.toLocalFile(); }
};

// A wizard with a payload in the test program's folder, and its own machine root.
class InstallWizardTest : public testing::Test
{
protected:
    InstallWizardTest() { options.folder = machine.Path("target"); }

    void Start(const char* payload = "small.7z")
    {
        const QString made = machine.Path(payload);
        archive =
            std::make_unique<ArchiveBesideProgram>(QFile::exists(made) ? made : Payload(payload));
        wizard = std::make_unique<InstallWizard>(
            options, [this](const RunEvent& event) { events.push_back(event); });
        driver = std::make_unique<WizardDriver>(*wizard);
    }

    template <class Event>
    int Count() const
    {
        return static_cast<int>(std::count_if(events.begin(), events.end(),
            [](const RunEvent& event) { return std::holds_alternative<Event>(event); }));
    }

    QString Folder() const { return machine.Path("target/Vorlan Quillax"); }

    void GoToOptions()
    {
        driver->Click("back");
        ASSERT_EQ(driver->PageName(), "optionsPage");
    }

    // The error text below the field after typing a folder.
    QString ErrorFor(const QString& folder)
    {
        EXPECT_TRUE(driver->TabTo("folder"));
        driver->Press(Qt::Key_A, Qt::ControlModifier);
        driver->Type(folder);
        const auto* error = driver->Find<QLabel>("error");
        const bool isOpen = driver->Find<ButtonWithIcon>("forward")->isEnabled();
        EXPECT_EQ(isOpen, !error->isVisible()) << folder.toStdString();
        return error->isVisible() ? error->text() : QString();
    }

    Machine machine;
    CommandLine options;
    std::vector<RunEvent> events;
    std::unique_ptr<ArchiveBesideProgram> archive;
    std::unique_ptr<InstallWizard> wizard;
    std::unique_ptr<WizardDriver> driver;
};

TEST_F(InstallWizardTest, TheFirstPageSaysWhatWillHappenToWhatIsInstalled)
{
    options.folder.clear();
    const QString folder = machine.Path("My Media/Vorlan Quillax");
    QDir().mkpath(folder);
    const struct
    {
        const char* version;
        const char* heading;
        const char* button;
    } rows[] = {
        {"24-4-0", "Update Vorlan Quillax from 24.4.0 to 24.5.1", "U&pdate"},
        {"24-5-1", "Vorlan Quillax 24.5.1 is installed already", "R&epair"},
        {"24-6-0", "The newer version 24.6.0 is installed", "Re&place"},
    };
    for (const auto& row : rows)
    {
        RegistrySettings key(QSettings::SystemScope, "Vorlan", "Quillax24");
        key.setValue("Path", QDir::toNativeSeparators(folder + '/'));
        key.setValue("VersionByInstaller", row.version);
        key.sync();
        driver.reset();
        wizard.reset();
        archive.reset();
        Start();
        EXPECT_EQ(driver->Find<QLabel>("heading")->text(), row.heading);
        EXPECT_EQ(driver->Find<QLabel>("buttonLabel")->text(), row.button);
        EXPECT_TRUE(driver->Find<QLabel>("target")->text().contains(
            "For all users, in " + QDir::toNativeSeparators(folder)));
    }
    const QString question =
        driver->WithBox([this] { driver->Press(Qt::Key_Return); }); // closed as No
    EXPECT_EQ(question, "Replace the newer version 24.6.0 with version 24.5.1?");
    EXPECT_TRUE(events.empty());

    // For this user alone nothing is installed, and another folder is proposed.
    GoToOptions();
    EXPECT_EQ(QDir::fromNativeSeparators(driver->Find<QLineEdit>("folder")->text()),
        QDir::fromNativeSeparators(folder));
    driver->Find<QRadioButton>("currentUser")->click();
    EXPECT_EQ(driver->Find<QLabel>("buttonLabel")->text(), "&Install");
    EXPECT_NE(QDir::fromNativeSeparators(driver->Find<QLineEdit>("folder")->text()),
        QDir::fromNativeSeparators(folder));
    driver->Click("back");
    EXPECT_TRUE(driver->Find<QLabel>("removal")->text().contains("There is another installation"));
    RegistrySettings(QSettings::SystemScope, "Vorlan", "Quillax24").remove(QString());
}

TEST_F(InstallWizardTest, IsOperatedWithTheKeyboardAlone)
{
    Start();
    EXPECT_EQ(driver->PageName(), "startPage");
    EXPECT_TRUE(driver->TabTo("back"));
    driver->Press(Qt::Key_Space);
    EXPECT_EQ(driver->PageName(), "optionsPage");
    EXPECT_TRUE(driver->TabTo("shortcuts"));
    driver->Press(Qt::Key_Space);
    EXPECT_TRUE(driver->TabTo("contextMenu"));
    driver->Press(Qt::Key_Space);
    EXPECT_TRUE(driver->TabTo("back"));
    driver->Press(Qt::Key_Space);
    EXPECT_EQ(driver->PageName(), "startPage");
    GoToOptions();
    EXPECT_FALSE(driver->Find<QCheckBox>("shortcuts")->isChecked()) << "choices stay";
    EXPECT_EQ(driver->Find<QCheckBox>("autoLaunch")->isVisible(), false)
        << "this product has no program for it";
    driver->Press(Qt::Key_Return); // returns after the run
    EXPECT_EQ(driver->PageName(), "resultPage");
    EXPECT_EQ(Count<Events::InstallationFinished>(), 1);
    EXPECT_TRUE(QFile::exists(Folder() + "/uninst.exe"));
    EXPECT_TRUE(driver->TabTo("startNow"));
    driver->Press(Qt::Key_Space);
    driver->Press(Qt::Key_Return);
    EXPECT_TRUE(wizard->IsOver());
    EXPECT_EQ(wizard->Result().code, ExitCode::Done);
    EXPECT_EQ(Count<Events::ApplicationStarted>(), 0);
}

TEST_F(InstallWizardTest, ADoubleClickInstallsOnceAndTheWindowStaysResponsive)
{
    Start("many-blocks.7z");
    GoToOptions();
    int repaints = 0;
    QTimer alive;
    QObject::connect(&alive, &QTimer::timeout, [&] { ++repaints; });
    alive.start(1);
    auto* forward = driver->Find<ButtonWithIcon>("forward");
    QTimer::singleShot(0, forward, [&] { QTest::mouseClick(forward, Qt::LeftButton); });
    driver->Click("forward");
    EXPECT_EQ(Count<Events::InstallationStarted>(), 1);
    EXPECT_EQ(driver->PageName(), "resultPage");
    EXPECT_GT(repaints, 0);
}

TEST_F(InstallWizardTest, ClosingAsksBeforeTheRunAndIsDeclinedDuringIt)
{
    Start("many-blocks.7z");
    const QString question = "Cancel the installation of Vorlan Quillax?";
    for (const char* page : {"startPage", "optionsPage"})
    {
        ASSERT_EQ(driver->PageName(), page);
        EXPECT_EQ(driver->WithBox([this] { driver->Press(Qt::Key_Escape); }), question);
        EXPECT_EQ(driver->WithBox([this] { wizard->Window().close(); }), question);
        EXPECT_EQ(driver->WithBox([this] { driver->Click("closeWindow"); }), question);
        EXPECT_FALSE(wizard->IsOver());
        if (std::string(page) != "optionsPage")
            GoToOptions();
    }
    QStringList declined;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout,
        [&]
        {
            if (driver->PageName() != "progressPage" || !declined.isEmpty())
                return;
            look.stop();
            declined << driver->WithBox([this] { driver->Press(Qt::Key_Escape); });
            declined << driver->WithBox([this] { wizard->Window().close(); });
        });
    look.start(0);
    driver->Press(Qt::Key_Return);
    ASSERT_EQ(declined.size(), 2);
    EXPECT_TRUE(declined[0].startsWith("The installation cannot be stopped now"));
    EXPECT_EQ(declined[1], declined[0]);
    EXPECT_EQ(Count<Events::InstallationFinished>(), 1);
    driver->Press(Qt::Key_Escape);
    EXPECT_TRUE(wizard->IsOver());
    EXPECT_EQ(wizard->Result().code, ExitCode::Done);
}

TEST_F(InstallWizardTest, TheExtractorLearnsThatTheWindowIsShown)
{
    Start();
    const QString marker = "installer_extractor_tmp_marker.txt";
    WriteFile(marker, "");
    QTimer::singleShot(0, &wizard->Window(),
        [&]
        {
            EXPECT_FALSE(QFile::exists(marker));
            driver->WithBox([this] { driver->Click("cancel"); },
                [](QWidget& box) {
                    QTest::mouseClick(
                        box.findChild<QWidget*>("confirmationButton"), Qt::LeftButton);
                });
        });
    EXPECT_EQ(wizard->Run().code, ExitCode::Cancelled);
}

TEST_F(InstallWizardTest, RefusedRightsLeaveTheChoicesOnThePage)
{
    if (QSysInfo::kernelType() == "winnt")
        GTEST_SKIP() << "a program cannot take its own rights away here";
    WriteFile(machine.Path("machine/machine.ini"), "rights=refused\n");
    Start();
    GoToOptions();
    const auto* icon = driver->Find<QWidget>("buttonIcon");
    EXPECT_FALSE(icon->property("needsRights").toBool());
    driver->Press(Qt::Key_Down);
    EXPECT_TRUE(icon->property("needsRights").toBool()) << "the shield";
    QString text;
    QTimer looks; // the box comes after a request for the web user id
    QObject::connect(&looks, &QTimer::timeout,
        [&]
        {
            if (QWidget* box = QApplication::activeModalWidget())
            {
                text = box->findChild<QLabel*>("message")->text();
                QTest::keyClick(box, Qt::Key_Escape);
            }
        });
    looks.start(5);
    driver->Press(Qt::Key_Return);
    EXPECT_TRUE(text.contains("needs the rights of an administrator")) << text.toStdString();
    EXPECT_EQ(driver->PageName(), "optionsPage");
    EXPECT_TRUE(driver->Find<QRadioButton>("allUsers")->isChecked());
    EXPECT_TRUE(events.empty());
}

TEST_F(InstallWizardTest, CancellingEndsWithItsExitCode)
{
    Start();
    driver->WithBox([this] { driver->Click("cancel"); }, [](QWidget& box)
        { QTest::mouseClick(box.findChild<QWidget*>("confirmationButton"), Qt::LeftButton); });
    EXPECT_TRUE(wizard->IsOver());
    EXPECT_EQ(wizard->Result().code, ExitCode::Cancelled);
    EXPECT_FALSE(QDir(Folder()).exists());
}

TEST_F(InstallWizardTest, TheFolderIsValidatedWhileItIsEdited)
{
    WriteFile(machine.Path("a file"), "content");
    Start();
    GoToOptions();
    const QString refused = "Can't access the specified destination folder";
    EXPECT_EQ(ErrorFor(machine.Path("a file")), refused);
    EXPECT_EQ(ErrorFor("relative"), refused);
    driver->Find<QLineEdit>("folder")->setText(machine.Path(QString("long/").repeated(3000)));
    driver->WaitForExamination();
    EXPECT_FALSE(driver->Find<QLabel>("error")->isVisible());
    const QString rightToLeft = machine.Path(QString::fromUtf8("תיקייה ותוכנה"));
    EXPECT_EQ(ErrorFor(rightToLeft), QString());
    EXPECT_TRUE(driver->Find<QLabel>("target")->text().contains(
        QChar(0x2066) + QDir::toNativeSeparators(rightToLeft + "/Vorlan Quillax")));
    EXPECT_EQ(wizard->Window().width(), 670);
}

TEST_F(InstallWizardTest, ThereMustBeSpaceForThePayload)
{
    Start("huge.7z");
    driver->Press(Qt::Key_Return);
    EXPECT_EQ(driver->PageName(), "optionsPage");
    EXPECT_EQ(driver->Find<QLabel>("error")->text(), "There is not enough disk space");
    EXPECT_FALSE(driver->Find<ButtonWithIcon>("forward")->isEnabled());
    driver->Press(Qt::Key_Return);
    EXPECT_TRUE(events.empty());
}

TEST_F(InstallWizardTest, AnArchiveThatIsMissingBeforeTheRunCanBePutBack)
{
    Start();
    GoToOptions();
    if (!archive->Remove())
        GTEST_SKIP() << "this system keeps a file that is open";
    const QString text = driver->WithBox([this] { driver->Press(Qt::Key_Return); });
    EXPECT_TRUE(text.contains("InstallerData.7z")) << text.toStdString();
    EXPECT_EQ(driver->PageName(), "optionsPage");
    driver->WithBox([this] { driver->Press(Qt::Key_Return); },
        [this](QWidget& box)
        {
            archive->Put(Payload("small.7z"));
            QTest::mouseClick(box.findChild<QWidget*>("retryButton"), Qt::LeftButton);
        });
    EXPECT_EQ(Count<Events::InstallationFinished>(), 1);
}

TEST_F(InstallWizardTest, TheFolderIsValidatedAgainBeforeTheRun)
{
    Start();
    GoToOptions();
    WriteFile(machine.Path("target"), "in the way");
    driver->Press(Qt::Key_Return);
    EXPECT_EQ(driver->PageName(), "optionsPage");
    EXPECT_TRUE(driver->Find<QLabel>("error")->isVisible());
    EXPECT_TRUE(events.empty());
}

TEST_F(InstallWizardTest, AFailureIsShownAndTheRunCanBeRepeated)
{
    QByteArray damaged = ReadFile(Payload("small.7z"));
    damaged.replace(5000, 100, QByteArray(100, 'x'));
    WriteFile(machine.Path("damaged.7z"), damaged);
    options.logFile = "the.log";
    Start("damaged.7z");
    GoToOptions();
    for (int attempt = 1; attempt <= 2; ++attempt)
    {
        driver->Press(Qt::Key_Return); // then the same without any page
        ASSERT_EQ(driver->PageName(), "resultPage");
        EXPECT_EQ(Count<Events::InstallationError>(), attempt);
        const QString text = driver->Find<QLabel>("resultText")->text();
        for (const char* part : {"InstallerData.7z", "damaged", "is incomplete",
                 "Download the "
                 "setup again.",
                 "the.log"})
            EXPECT_TRUE(text.contains(part)) << part << " in " << text.toStdString();
        EXPECT_FALSE(driver->Find<QCheckBox>("startNow")->isVisible());
    }
    EXPECT_TRUE(driver->WithBox([this] { driver->Click("openLog"); }).contains("cannot be opened"));
    WriteFile(options.logFile, "the log");
    LogViewer viewer;
    driver->Click("openLog");
    EXPECT_EQ(viewer.shown, QStringList(QFileInfo(options.logFile).absoluteFilePath()));
    driver->Press(Qt::Key_Escape);
    EXPECT_TRUE(wizard->IsOver());
    EXPECT_EQ(wizard->Result().code, ExitCode::Failed);
}

TEST_F(InstallWizardTest, ProgramsThatUseTheFilesAreListedAndClosedBeforeTheRun)
{
    ChildProgram quill(Folder() + "/quill.exe", "wait");
    ChildProgram tool(Folder() + "/tools/tool.exe", "wait");
    quill.Start();
    tool.Start();
    Start();
    GoToOptions();
    driver->Press(Qt::Key_Return);
    ASSERT_EQ(driver->PageName(), "inUsePage");
    QStringList lines;
    const auto* list = driver->Find<QListWidget>("programs");
    for (int row = 0; row < list->count(); ++row)
        lines << list->item(row)->text();
    QStringList expected{QString("quill.exe, process %1 (without a window)").arg(quill.Id()),
        QString("tool.exe, process %1 (without a window)").arg(tool.Id())};
    lines.sort();
    expected.sort();
    EXPECT_EQ(lines, expected);
    driver->Click("back"); // tries again
    EXPECT_EQ(driver->PageName(), "inUsePage");
    EXPECT_TRUE(events.empty() && quill.IsRunning() && tool.IsRunning());
    const auto closeThem = [this] { driver->Click("forward"); };
    if (QSysInfo::kernelType() == "winnt") // where a program without a window cannot be asked
    {
        EXPECT_TRUE(driver->WithBox(closeThem).contains("What is not saved in them is lost."));
        EXPECT_TRUE(quill.IsRunning());
        driver->WithBox(closeThem, [](QWidget& box)
            { QTest::mouseClick(box.findChild<QWidget*>("confirmationButton"), Qt::LeftButton); });
    }
    else
        closeThem();
    EXPECT_EQ(driver->PageName(), "resultPage");
    EXPECT_TRUE(quill.HasEnded() && tool.HasEnded());
    EXPECT_EQ(Count<Events::InstallationFinished>(), 1);
}

TEST(ProgressPageTest, ShowsThePositionAndListsFilesThatCouldNotBeCopied)
{
    ProgressPage page(QStringList(), "Installing %1");
    page.Retranslate("en_US");
    page.Show(Events::ProcessStarted{"EXTRACT_FILES"});
    page.Show(Events::InstallationProgress{0.456, {}, {}});
    EXPECT_EQ(page.findChild<QLabel*>("step")->text(), "Step 1 of 3: Placing the files...");
    EXPECT_EQ(page.findChild<QLabel*>("percent")->text(), "46 %");
    EXPECT_EQ(page.findChild<QProgressBar*>("bar")->value(), 456);
    page.Show(Events::InstallationProgress{7.0, "Data", {}});
    EXPECT_EQ(page.findChild<QProgressBar*>("bar")->value(), 1000);
    page.Show(Events::CopyFileError{"a.dll", "in use"});
    EXPECT_EQ(page.CopyErrors(), QStringList("a.dll: in use"));
    const auto* details = page.findChild<QListWidget*>("details");
    EXPECT_EQ(details->item(details->count() - 1)->text(), "a.dll: in use");

    ResultTexts texts;
    texts.list = page.CopyErrors();
    const ResultPage result(QStringList(), texts);
    EXPECT_EQ(result.findChild<QListWidget*>("list")->item(0)->text(), "a.dll: in use");
}

TEST(ProgressPageTest, ShowsBytesSpeedAndTimeLeftAndNumbersTheStepsThatHappen)
{
    double seconds = 0;
    ProgressPage page(QStringList(), "Installing %1", [&] { return seconds; });
    page.Retranslate("en_US");
    page.Begin(1024 * 1024);
    const auto text = [&](const char* name) { return page.findChild<QLabel*>(name)->text(); };
    EXPECT_EQ(text("step"), "Preparing...");
    EXPECT_EQ(text("percent"), "") << "nothing is known yet";
    page.Show(Events::ProcessStarted{"REMOVE_PREVIOUS_VERSION"});
    EXPECT_EQ(text("step"), "Preparing...") << "there may be no previous version";
    page.Show(Events::InstallationProgress{0.0, {}, "Uninstalling a previous version"});
    EXPECT_EQ(text("step"), "Step 1 of 4: Removing the previous version...");
    page.Show(Events::ProcessStarted{"EXTRACT_FILES"});
    EXPECT_EQ(text("step"), "Step 2 of 4: Placing the files...");
    for (; seconds <= 4; seconds += 0.5)
        page.Show(Events::InstallationProgress{(seconds + 1) / 10, {}, {}});
    EXPECT_EQ(text("measures").remove(QChar(0xb7)).simplified(),
        "512.0 kB of 1.0 MB 102.4 kB per second About 5 s left");
    EXPECT_EQ(page.Status(), "Step 2 of 4: Placing the files... About 5 s left");
    page.Show(Events::ProcessStarted{"UPDATE_REGISTRY"});
    EXPECT_EQ(text("step"), "Step 3 of 4: Registering the program...");
    EXPECT_EQ(text("measures"), "") << "nobody knows how long that takes";
    EXPECT_EQ(page.Status(), "Step 3 of 4: Registering the program...");
}

TEST_F(InstallWizardTest, TheLanguageChangesAllTextsImmediately)
{
    const QString german = "resources/locales/de_DE/InstallerGUI_de_DE.qm";
    QDir().mkpath(QFileInfo(german).path());
    WriteFile(german, ReadFile(QString(FRONTEND_FOLDER "/") + german));
    Start();
    auto* languages = driver->Find<QComboBox>("languages");
    languages->setCurrentIndex(languages->findData("fr_FR")); // its translation is missing
    EXPECT_EQ(driver->Find<QLabel>("heading")->text(), "Install Vorlan Quillax 24.5.1");
    languages->setCurrentIndex(languages->findData("de_DE"));
    EXPECT_EQ(driver->Find<QLabel>("heading")->text(), "Vorlan Quillax 24.5.1 installieren");
    EXPECT_EQ(driver->Find<QLabel>("buttonLabel")->text(), "&Installieren");
    GoToOptions();
    EXPECT_EQ(driver->Find<QLabel>("heading")->text(), "Installationsoptionen");
}

} // namespace

#include "InstallWizardTest.moc"
