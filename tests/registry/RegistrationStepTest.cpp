#include "installer/InstallerMediator.h"

#include "registry/RegistrySettings.h"
#include "support/Machine.h"
#include "support/MediatorAccess.h"
#include "support/RegistryTree.h"

#include <QCoreApplication>
#include <QDate>
#include <QDir>

#include <gtest/gtest.h>

using namespace Vorlan;

namespace
{

class RegistrationStepTest : public testing::TestWithParam<QSettings::Scope>
{
protected:
    RegistrationStepTest()
    {
        // Translations of the context-menu labels lie beside the program.
        QDir::setCurrent(QCoreApplication::applicationDirPath());
        InstallationSettings& settings = access.Settings();
        settings.systemLocale = "de_DE";
        settings.locale = "fr_FR";
        settings.browser = "chrome.exe";
        settings.requiredSpace = 2048;
        settings.userInfo.webUid = "web-id";
        // What the uninstaller, which runs from there, takes for the installation folder.
        settings.installDir = folder;
    }

    // What lies below both roots and is none of the keys that the system has anyway.
    QStringList Records() const
    {
        QStringList records;
        for (const QString& root : {QString("HKEY_CURRENT_USER"), QString("HKEY_LOCAL_MACHINE")})
        {
            for (const QString& line : RegistryTree(root, "Software"))
            {
                const bool belongsToSystem = line.contains("\\Explorer\\Shell Folders:") ||
                                             line.contains("\\Explorer\\User Shell Folders:");
                if (!belongsToSystem)
                    records += root + "\\Software\\" + line;
            }
        }
        for (const char* root : {"HKEY_CURRENT_USER", "HKEY_LOCAL_MACHINE"})
        {
            for (const QString& line : Documented("shared", root))
                records.removeAll(line);
        }
        records.sort();
        return records;
    }

    static QString Root()
    {
        return GetParam() == QSettings::UserScope ? "HKEY_CURRENT_USER" : "HKEY_LOCAL_MACHINE";
    }

    // A list of the page that documents the layout, with this installation's values.
    QStringList Documented(const QString& list, const QString& root = Root()) const
    {
        const QDate today = QDate::currentDate();
        const QString page =
            QString::fromUtf8(ReadFile(DOCUMENTATION_FOLDER "/registry-layout.md"));
        const QMap<QString, QString> values = {{"{root}", root}, {"{folder}", folder},
            {"{browser}", "chrome.exe"}, {"{installer}", name}, {"{language}", "fr_FR"},
            {"{webuid}", "web-id"}, {"{KiB}", "2"},
            {"{time}",
                RegistrySettings(GetParam(), "Vorlan", "Quillax24").value("DateTime").toString()},
            {"{date}", QString("%1%2%3").arg(today.year()).arg(today.month()).arg(today.day())}};
        QString block = page.section("```" + list + '\n', 1, 1).section("\n```", 0, 0);
        for (auto value = values.begin(); value != values.end(); ++value)
            block.replace(value.key(), value.value());
        QStringList lines = block.split('\n');
        lines.sort();
        lines.removeDuplicates();
        return lines;
    }

    Machine machine;
    const QString name = "setup.exe";
    const QString folder = QDir::toNativeSeparators(QCoreApplication::applicationDirPath() + '/');
    InstallerMediator mediator{{name, false, true, GetParam(), false}};
    MediatorAccess access{mediator};
};

} // namespace

TEST_P(RegistrationStepTest, InstallationWritesTheDocumentedLayoutAndNothingElse)
{
    const QStringList before = Records();
    access.AddRegistryInfo();
    const QStringList records = Documented("records");
    EXPECT_GT(records.size(), 40);
    EXPECT_EQ(Records(), records);

    access.AddRegistryInfo();
    EXPECT_EQ(Records(), Documented("records"));

    mediator.OnDeleteUserSettings(true);
    access.RemoveRegistryInfo();
    RegistrySettings(GetParam(), "Vorlan", "User").remove("WEBUID");
    EXPECT_EQ(Records(), before + QStringList(Root() + "\\Software\\Vorlan\\User:"));
}

TEST_P(RegistrationStepTest, RemovalLeavesThePersonsChoices)
{
    access.AddRegistryInfo();
    QStringList left = Documented("records").filter("\\Vorlan\\");
    for (const char* removed :
        {": Path = ", ": ArchitectBits = ", ": InstallerName = ", ": DateTime = "})
        left.removeOne(left.filter(removed).first());
    RegistrySettings(Root() + "\\Software\\Classes\\quillax24").setValue("URL Protocol", "");

    access.RemoveRegistryInfo();
    EXPECT_EQ(Records(), left);
}

TEST_P(RegistrationStepTest, RemovalOfTheSettingsLeavesTheUsersWebIdOnly)
{
    for (const bool byUser : {true, false})
    {
        access.AddRegistryInfo();
        mediator.OnDeleteUserSettings(byUser);
        access.Settings().removeAllOnUninstall = !byUser;
        access.RemoveRegistryInfo();
        EXPECT_EQ(Records(), QStringList({Root() + "\\Software\\Vorlan\\Quillax24:",
                                 Root() + "\\Software\\Vorlan\\User: WEBUID = REG_SZ web-id"}));
    }
}

TEST_P(RegistrationStepTest, ContextMenuHasAVerbForEveryExtensionInTheSystemsLanguage)
{
    access.Settings().contextMenuConvert = 2;
    access.AddRegistryInfo();
    const auto verbs = [this](const QString& text)
    { return Records().filter("SystemFileAssociations").filter(text); };
    EXPECT_EQ(verbs(" = ").size(), 2 * 32);
    EXPECT_EQ(verbs("\\Shell\\Konvertieren in\\Command: @ = ").size(), 32);

    access.Settings().contextMenuOpenWith = 2;
    access.AddRegistryInfo();
    EXPECT_EQ(verbs(" = ").size(), 4 * 32);
    EXPECT_TRUE(
        Records().contains(Root() + "\\Software\\Classes\\SystemFileAssociations\\.mp4\\Shell\\" +
                           QString::fromUtf8("\xC3\x96"
                                             "ffnen mit") +
                           "\\Command: @ = REG_SZ \"" + folder + "quill.exe\" \"%1\""));

    access.RemoveRegistryInfo();
    EXPECT_EQ(verbs(" = "), QStringList());
}

TEST_P(RegistrationStepTest, VerbWithoutATranslationIsLeftOutAndNamed)
{
    access.Settings().systemLocale = "xx_XX";
    access.Settings().contextMenuConvert = 2;
    access.AddRegistryInfo();
    EXPECT_EQ(Records().filter("\\Shell\\"), QStringList());
    EXPECT_TRUE(machine.Log().contains(
        "The verb Convert to is left out: it is not translated to \"xx_XX\""));
}

TEST_P(RegistrationStepTest, ForeignValuesOfOurKeysSurviveTheRemoval)
{
    RegistrySettings foreign(
        Root() + "\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\AutoplayHandlers\\"
                 "EventHandlers");
    foreign.setValue("PlayDVDMovieOnArrival/Foreign.handler", "");
    access.AddRegistryInfo();
    access.RemoveRegistryInfo();
    EXPECT_TRUE(foreign.contains("PlayDVDMovieOnArrival/Foreign.handler"));
}

INSTANTIATE_TEST_SUITE_P(Scopes, RegistrationStepTest,
    testing::Values(QSettings::UserScope, QSettings::SystemScope),
    [](const auto& scope) { return scope.param == QSettings::UserScope ? "User" : "AllUsers"; });
