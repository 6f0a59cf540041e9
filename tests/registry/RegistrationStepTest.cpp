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

constexpr char key[] = "Software";

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

    // What lies below both roots; the date and time of the installation aside.
    static QStringList Records()
    {
        QStringList records;
        for (const QString& root : {QString("HKEY_CURRENT_USER"), QString("HKEY_LOCAL_MACHINE")})
        {
            for (const QString& line : RegistryTree(root, key))
            {
                if (!line.contains(": DateTime = "))
                    records += root.mid(5) + '\\' + line;
            }
        }
        return records;
    }

    static QString Root()
    {
        return GetParam() == QSettings::UserScope ? "CURRENT_USER\\" : "LOCAL_MACHINE\\";
    }

    // The documented layout of an installation without any option.
    QStringList InstalledRecords() const
    {
        const QDate today = QDate::currentDate();
        const QString date =
            QString("%1%2%3").arg(today.year()).arg(today.month()).arg(today.day());
        const QString product = Root() + "Vorlan\\Quillax24: ";
        const QString shell = Root() + "Microsoft\\Windows\\CurrentVersion\\";
        const QString autoplay = shell + "Explorer\\AutoplayHandlers\\";
        const QString handler = autoplay + "Handlers\\Vorlan Quillax.convert_autoplay: ";
        const QString entry = shell + "Uninstall\\Vorlan Quillax: ";
        const QString progId = "CURRENT_USER\\Classes\\Vorlan Quillax.convert_autoplay\\";
        const QString scheme = Root() + "Classes\\quillax";
        return {
            product + "ArchitectBits = REG_SZ x64",
            product + "Browser = REG_SZ chrome.exe",
            product + "ExePath = REG_SZ " + folder + "quill.exe",
            product + "InstallerName = REG_SZ setup.exe",
            product + "MainAppIpcId = REG_SZ quill",
            product + "ParentProductId = REG_SZ ",
            product + "PartnerName.OVERRIDE = REG_SZ ",
            product + "Path = REG_SZ " + folder,
            product + "ProductId = REG_SZ quillax",
            product + "VersionByInstaller = REG_SZ 24-5-1",
            product + "autoUpdate = REG_SZ true",
            product + "locale = REG_SZ fr_FR",
            Root() + "Vorlan\\User: WEBUID = REG_SZ web-id",
            shell + "App Paths\\Vorlan Quillax\\quill.exe: @ = REG_SZ " + folder + "quill.exe",
            autoplay +
                "EventHandlers\\PlayDVDMovieOnArrival: Vorlan Quillax.convert_autoplay = REG_SZ ",
            handler + "Action = REG_SZ Convert Video and Audio",
            handler + "DefaultIcon = REG_SZ \"" + folder + "quill.exe\",0",
            handler + "InvokeProgId = REG_SZ Vorlan Quillax.convert_autoplay",
            handler + "InvokeVerb = REG_SZ convert_autoplay",
            handler + "Provider = REG_SZ Vorlan",
            entry + "DisplayIcon = REG_SZ \"" + folder + "quill.exe\",0",
            entry + "DisplayName = REG_SZ Vorlan Quillax",
            entry + "DisplayVersion = REG_SZ 24.5.1",
            entry + "EstimatedSize = REG_DWORD 2",
            entry + "InstallDate = REG_SZ " + date,
            entry + "InstallLocation = REG_SZ " + folder,
            entry + "Language = REG_SZ fr_FR",
            entry + "Publisher = REG_SZ Vorlan",
            entry + "UninstallString = REG_SZ \"" + folder + "uninst.exe\"",
            progId + "DefaultIcon: @ = REG_SZ " + folder + "quill.exe",
            progId + "shell: @ = REG_SZ ",
            progId + "shell\\open\\command: @ = REG_SZ \"" + folder + "quill.exe\" \"%1\\\"",
            scheme + ": URL Protocol = REG_SZ ",
            scheme + "\\DefaultIcon: @ = REG_SZ " + folder + "VorlanLinkHelper.exe,0",
            scheme + "\\shell\\open\\command: @ = REG_SZ \"" + folder +
                "VorlanLinkHelper.exe\" \"%1\"",
        };
    }

    static QStringList Sorted(QStringList lines)
    {
        lines.sort();
        return lines;
    }

    Machine machine;
    const QString name = "setup.exe";
    const QString folder = QDir::toNativeSeparators(QCoreApplication::applicationDirPath() + '/');
    InstallerMediator mediator{{name, false, true, GetParam(), false}};
    MediatorAccess access{mediator};
    const QStringList before = Records();
};

} // namespace

TEST_P(RegistrationStepTest, InstallationWritesTheDocumentedLayoutAndNothingElse)
{
    access.AddRegistryInfo();
    EXPECT_EQ(Sorted(Records().filter(" = ")), Sorted(InstalledRecords()));

    access.AddRegistryInfo();
    EXPECT_EQ(Sorted(Records().filter(" = ")), Sorted(InstalledRecords()));
}

TEST_P(RegistrationStepTest, RemovalLeavesThePersonsChoices)
{
    access.AddRegistryInfo();
    RegistrySettings older(
        (GetParam() == QSettings::UserScope ? "HKEY_CURRENT_USER" : "HKEY_LOCAL_MACHINE") +
        QString("\\Software\\Classes\\quillax24"));
    older.setValue("URL Protocol", "");
    access.RemoveRegistryInfo();

    QStringList left = InstalledRecords().filter("\\Vorlan\\");
    for (const char* removed : {": Path = ", ": ArchitectBits = ", ": InstallerName = "})
        left.removeOne(left.filter(removed).first());
    EXPECT_EQ(Sorted(Records().filter(" = ")), Sorted(left));
}

TEST_P(RegistrationStepTest, RemovalOfTheSettingsLeavesTheUsersWebIdOnly)
{
    for (const bool byUser : {true, false})
    {
        access.AddRegistryInfo();
        mediator.OnDeleteUserSettings(byUser);
        access.Settings().removeAllOnUninstall = !byUser;
        access.RemoveRegistryInfo();
        EXPECT_EQ(
            Records().filter(" = "), QStringList(Root() + "Vorlan\\User: WEBUID = REG_SZ web-id"));
    }
    EXPECT_TRUE(Records().contains(Root() + "Vorlan\\Quillax24:"));
}

TEST_P(RegistrationStepTest, ContextMenuHasAVerbForEveryExtensionInTheSystemsLanguage)
{
    access.Settings().contextMenuConvert = 2;
    access.AddRegistryInfo();
    const auto verbs = [](const QString& text)
    { return Records().filter("SystemFileAssociations").filter(text); };
    EXPECT_EQ(verbs(" = ").size(), 2 * 32);
    EXPECT_EQ(verbs("\\Shell\\Konvertieren in\\Command: @ = ").size(), 32);

    access.Settings().contextMenuOpenWith = 2;
    access.AddRegistryInfo();
    EXPECT_EQ(verbs(" = ").size(), 4 * 32);
    EXPECT_TRUE(Records().contains(Root() + "Classes\\SystemFileAssociations\\.mp4\\Shell\\" +
                                   QString::fromUtf8("\xC3\x96"
                                                     "ffnen mit") +
                                   "\\Command: @ = REG_SZ \"" + folder + "quill.exe\" \"%1\""));

    access.RemoveRegistryInfo();
    EXPECT_EQ(verbs(" = "), QStringList());
}

TEST_P(RegistrationStepTest, ForeignValuesOfOurKeysSurviveTheRemoval)
{
    RegistrySettings foreign(
        (GetParam() == QSettings::UserScope ? "HKEY_CURRENT_USER" : "HKEY_LOCAL_MACHINE") +
        QString("\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\AutoplayHandlers\\"
                "EventHandlers"));
    foreign.setValue("PlayDVDMovieOnArrival/Foreign.handler", "");
    access.AddRegistryInfo();
    access.RemoveRegistryInfo();
    EXPECT_TRUE(foreign.contains("PlayDVDMovieOnArrival/Foreign.handler"));
}

INSTANTIATE_TEST_SUITE_P(Scopes, RegistrationStepTest,
    testing::Values(QSettings::UserScope, QSettings::SystemScope),
    [](const auto& scope) { return scope.param == QSettings::UserScope ? "User" : "AllUsers"; });
