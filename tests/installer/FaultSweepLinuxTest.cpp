// Whole installations and uninstallations in which one thing fails, for each thing in turn; after
// each, a second run without faults must give what it gives without the first.
#include "support/ArchiveWriter.h"
#include "support/Machine.h"
#include "support/MachineRoot.h"
#include "support/RegistryTree.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>

#include <csignal>
#include <filesystem>

namespace fs = std::filesystem;

namespace
{

constexpr int timeLimitMs = 60000;
const QString product = "Vorlan Quillax";
const QString translation = "resources/locales/en_US/InstallerGUI_en_US.qm"; // of the verbs
const std::vector<ArchiveEntry> payload = {
    {"installergui.exe", "#!/bin/sh\nexit 0\n"},
    {"quill.exe", QByteArray(3000, 'q')},
    {"fonts.conf", "fonts"},
    {"libs/codec.dll", QByteArray(70000, 'c')},
};
// Lie beside the setup, too, and are copied from there in parallel.
const std::vector<ArchiveEntry> besideSetup = {
    {"plug-in 1.dll", QByteArray(50000, '1')},
    {"libs/plug-in 2.dll", QByteArray(50000, '2')},
    {"libs/more/plug-in 3.dll", QByteArray(50000, '3')},
};

struct Sweep
{
    const char* name;
    const char* fault;     // what happens to the first run: see support/SetupChild.cpp
    const char* operation; // of both runs
    bool isInstalled;      // whether the product is there before
    int stride;            // every so many faults are tried; all with $VORLAN_FULL_SWEEP
};

void PrintTo(const Sweep& sweep, std::ostream* out)
{
    *out << sweep.name;
}

// A setup folder, and a machine that can be put back to where it was.
class Scene
{
public:
    Scene()
    {
        for (const QString& name : {QString("setup-child.exe"), translation})
        {
            EXPECT_TRUE(QDir().mkpath(QFileInfo(Path("setup/" + name)).path()));
            EXPECT_TRUE(QFile::copy(FRONTEND_FOLDER "/" + name, Path("setup/" + name)));
        }
        WriteFile(Path("setup/InstallerData.7z"), CreateArchive(Entries()));
        for (const ArchiveEntry& entry : besideSetup)
            WriteFile(Path("setup/" + entry.name), entry.content);
        WriteFile(Path("machine/machine.ini"), "solidState=true\n");
    }

    static std::vector<ArchiveEntry> Entries()
    {
        std::vector<ArchiveEntry> entries = payload;
        entries.insert(entries.end(), besideSetup.begin(), besideSetup.end());
        return entries;
    }

    // The line that the child prints, or what ended it before.
    QString Run(const QString& operation, const QString& fault = QString()) const
    {
        QString program = Path("setup/setup-child.exe");
        if (operation == "uninstall")
            program = PlaceUninstaller();
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("VORLAN_TEST_FAULT", fault);
        environment.insert("VORLAN_MACHINE", Path("machine"));
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(Path("setup"));
        process.setStandardErrorFile(Path("errors.txt"));
        process.start(program, {operation});
        EXPECT_TRUE(process.waitForFinished(timeLimitMs)) << fault.toStdString();
        if (process.exitStatus() == QProcess::CrashExit)
            return QString("ended by signal %1").arg(process.exitCode());
        EXPECT_EQ(process.exitCode(), 0) << ReadFile(Path("errors.txt")).toStdString();
        return process.readAll().trimmed();
    }

    void Save() const { Copy("machine", "saved"); }
    void Restore() const { Copy("saved", "machine"); }

    QString ProductFolder() const
    {
        for (const QString& user : QDir(Path("machine/Users")).entryList(QDir::Dirs))
        {
            const QString folder = Path("machine/Users/" + user + "/AppData/Roaming/") + product;
            if (QDir(folder).exists())
                return folder;
        }
        return QString();
    }

    // Every file with its content, every folder, and every value of the registry, less what differs
    // between two runs without faults, and the reports of former failures.
    QStringList State() const
    {
        const MachineRoot machine(Path("machine"));
        QStringList state = RegistryTree("HKEY_CURRENT_USER", "Software") +
                            RegistryTree("HKEY_LOCAL_MACHINE", "Software");
        for (const QString& name : ListTree(Path("machine")))
            state +=
                name.endsWith('/') ? name : name + ": " + ReadFile(Path("machine/" + name)).toHex();
        return state.filter(QRegularExpression(
            "^(?!.*(: DateTime = |^registry/|^mutexes/|^Windows/|/Local/Vorlan/))"));
    }

    QString Path(const QString& name) const { return root.filePath(name); }

private:
    // The uninstaller deletes itself, and what it deletes is the folder that it lies in.
    QString PlaceUninstaller() const
    {
        const fs::path program = (ProductFolder() + "/uninst.exe").toStdString();
        fs::remove(program);
        fs::create_hard_link(Path("setup/setup-child.exe").toStdString(), program);
        return QString::fromStdString(program.native());
    }

    void Copy(const QString& from, const QString& to) const
    {
        fs::remove_all(Path(to).toStdString());
        fs::copy(Path(from).toStdString(), Path(to).toStdString(),
            fs::copy_options::recursive | fs::copy_options::copy_symlinks);
    }

    QTemporaryDir root;
};

QString Difference(const QStringList& actual, const QStringList& expected)
{
    QString text;
    for (const QString& line : actual)
        text += expected.contains(line) ? "" : "\n+ " + line.left(200);
    for (const QString& line : expected)
        text += actual.contains(line) ? "" : "\n- " + line.left(200);
    return text;
}

// What the first run must end with: it has been killed, or there is one end signal, the state that
// belongs to it and no open handle.
bool IsCleanEnd(const QString& end, const QString& fault)
{
    static const QRegularExpression clean("^(InstallationFinished; state 2|InstallationError; "
                                          "state 0|cannot start: [^;]+); 0 open; fault$");
    return fault == "kill" ? end == QString("ended by signal %1").arg(SIGKILL)
                           : clean.match(end).hasMatch();
}

class FaultSweepTest : public testing::TestWithParam<Sweep>
{
protected:
    // The first run with that fault and the second without any; false when there is no such fault.
    bool Try(const Sweep& sweep, int number, const QStringList& expected)
    {
        scene.Restore();
        const QString first =
            scene.Run(sweep.operation, QString("%1 %2").arg(sweep.fault).arg(number));
        if (first == complete)
            return false;
        EXPECT_TRUE(IsCleanEnd(first, sweep.fault)) << first.toStdString();
        if (first.startsWith("InstallationFinished") && QString("install") == sweep.operation)
            ExpectWholeFiles();
        EXPECT_EQ(scene.Run(sweep.operation), complete);
        EXPECT_EQ(Difference(scene.State(), expected), "");
        return true;
    }

    void ExpectWholeFiles() const
    {
        for (const ArchiveEntry& entry : Scene::Entries())
        {
            const QString name = entry.name == "installergui.exe" ? "uninst.exe" : entry.name;
            if (name != "fonts.conf") // moved away
            {
                EXPECT_EQ(ReadFile(scene.ProductFolder() + '/' + name), entry.content);
            }
        }
    }

    const QString complete = "InstallationFinished; state 2; 0 open; no fault";
    Scene scene;
};

TEST_P(FaultSweepTest, SecondRunGivesWhatItGivesWithoutTheFault)
{
    const Sweep& sweep = GetParam();
    if (sweep.isInstalled)
    {
        ASSERT_EQ(scene.Run("install"), complete);
    }
    scene.Save();
    ASSERT_EQ(scene.Run(sweep.operation), complete);
    const QStringList expected = scene.State();

    const int stride = qEnvironmentVariableIsSet("VORLAN_FULL_SWEEP") ? 1 : sweep.stride;
    int number = 1;
    for (bool isFault = true; isFault && !HasFatalFailure(); number += stride)
    {
        SCOPED_TRACE(std::string(sweep.fault) + ' ' + std::to_string(number));
        isFault = Try(sweep, number, expected);
    }
    EXPECT_GT(number, 3 * stride);
    std::cout << "tried every " << stride << " of up to " << number - stride << " faults\n";
}

INSTANTIATE_TEST_SUITE_P(Sweeps, FaultSweepTest,
    testing::Values(Sweep{"CallFailsInFirstInstallation", "call", "install", false, 29},
        Sweep{"CallFailsInReinstallation", "call", "install", true, 29},
        Sweep{"CallFailsInUninstallation", "call", "uninstall", true, 29},
        Sweep{"FirstInstallationIsKilled", "kill", "install", false, 29},
        Sweep{"ReinstallationIsKilled", "kill", "install", true, 11},
        Sweep{"UninstallationIsKilled", "kill", "uninstall", true, 29},
        Sweep{"DiskIsFullInFirstInstallation", "full", "install", false, 29},
        Sweep{"DiskIsFullInReinstallation", "full", "install", true, 11},
        Sweep{"DiskIsFullInUninstallation", "full", "uninstall", true, 29}),
    [](const auto& sweep) { return std::string(sweep.param.name); });

} // namespace
