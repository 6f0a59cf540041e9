// A product that the front end has installed on a machine of its own.
#pragma once

#include "installer/Shortcuts.h"
#include "support/ArchiveWriter.h"
#include "support/Machine.h"
#include "support/RegistryTree.h"
#include "support/SetupRun.h"

#include <gtest/gtest.h>

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QSysInfo>

#include <thread>

inline constexpr int timeLimitMs = 60000;
inline const QString translation = "resources/locales/en_US/InstallerGUI_en_US.qm";
class InstalledProduct : public testing::Test
{
protected:
    // The product as a setup would bring it, with the engine of that folder.
    QByteArray Product(const QString& engineFolder, const QString& note) const
    {
        const QString bin = FRONTEND_FOLDER;
        return CreateArchive({
            {"installergui.exe", ReadFile(bin + "/installergui.exe")},
            {ENGINE_FILE_NAME, ReadFile(engineFolder + '/' + ENGINE_FILE_NAME)},
            {"quill.exe", ReadFile(bin + "/test-program.exe")},
            {"fonts.conf", "fonts"},
            {"libs/codec.dll", "codec of " + note.toUtf8()},
            {note + ".txt", "note"},
            {translation, ReadFile(bin + '/' + translation)},
        });
    }

    void Install(const QString& engineFolder, const QString& note, const QStringList& options = {})
    {
        QFile::remove(setup.SetupFolder() + '/' + ENGINE_FILE_NAME);
        ASSERT_TRUE(QFile::copy(
            engineFolder + '/' + ENGINE_FILE_NAME, setup.SetupFolder() + '/' + ENGINE_FILE_NAME));
        setup.AddArchiveContent(Product(engineFolder, note));
        const auto result = setup.Start(QStringList("/S") + options);
        ASSERT_EQ(result.exitCode, 0) << result.errors.toStdString();
    }
    void InstallCurrent() { Install(FRONTEND_FOLDER, "new"); }

    SetupRun::Result Uninstall(const QStringList& options)
    {
        return setup.StartFrom(product, "uninst.exe", QStringList("/S") + options);
    }

    // The files of the installed product without what is the same in every version.
    QStringList Files() const
    {
        QStringList files = ListTree(product);
        for (const QString& common :
            files.filter(QRegularExpression("/$|^resources/|^uninst.data/|" ENGINE_FILE_NAME)))
            files.removeAll(common);
        return files;
    }

    static QStringList Entry()
    {
        return RegistryTree(
            "HKEY_CURRENT_USER", "Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall")
            .filter("DisplayVersion");
    }

    // The values that this user's and all users' software has got since the test began, less the
    // program's path.
    QStringList Records() const
    {
        QStringList records = AllRecords();
        for (const QString& former : formerRecords)
            records.removeOne(former);
        records.replaceInStrings(QDir::toNativeSeparators(product + "/quill.exe"), QString());
        return records;
    }

    static QStringList Links()
    {
        return ListTree(Vorlan::GetStandardLocation(Vorlan::StandardLocation::Programs)) +
               ListTree(Vorlan::GetStandardLocation(Vorlan::StandardLocation::Desktop));
    }

    // Waits for the script that deletes what was in use, and returns what lies beside the folder.
    static QStringList LeftBeside(const QString& folder)
    {
        const QDir parent = QFileInfo(folder).dir();
        const auto left = [&parent]
        { return parent.entryList({"Vorlan Quillax*"}, QDir::AllEntries | QDir::Hidden); };
        const QDeadlineTimer deadline(timeLimitMs);
        while (!left().filter("Vorlan Quillax.").isEmpty() && !deadline.hasExpired())
            std::this_thread::yield();
        return left();
    }
    QStringList LeftBesideProduct() const { return LeftBeside(product); }

    Machine machine{Machine::Registry::OfStartedPrograms};
    SetupRun setup;
    const QString product =
        QDir::fromNativeSeparators(Vorlan::GetStandardLocation(Vorlan::StandardLocation::AppData)) +
        "/Vorlan Quillax";

private:
    static QStringList AllRecords()
    {
        const QStringList records = (RegistryTree("HKEY_CURRENT_USER", "Software") +
                                     RegistryTree("HKEY_LOCAL_MACHINE", "Software"))
                                        .filter(" = ");
        // Windows notes there where the folders that it was asked for lie, and Wine what fonts and
        // network cards it finds.
        return records.filter(
            QRegularExpression("^(?!.*\\\\Shell Folders:|Wine\\\\|.*\\\\NetworkCards\\\\)"));
    }

    const QStringList formerRecords = AllRecords();
};

inline const QStringList installedFiles = {"InstallerMessage.vbs", "Vorlan Quillax.url",
    "libs/codec.dll", "new.txt", "quill.exe", "uninst.exe"};
inline const QStringList allLinks = {"Vorlan Quillax/", "Vorlan Quillax/Site Vorlan Quillax.lnk",
    "Vorlan Quillax/Uninstall Vorlan Quillax.lnk", "Vorlan Quillax/Vorlan Quillax.lnk",
    "Vorlan Quillax.lnk"};
