#include "support/RegistryFiles.h"

#include <QFileInfo>
#include <QProcess>

namespace
{

class RegShowLinuxTest : public RegistryFiles
{
protected:
    // The program lies beside the tests' own.
    static QProcess& Run(QProcess& process, const QStringList& arguments)
    {
        const QString folder = QFileInfo(QFile::symLinkTarget("/proc/self/exe")).path();
        process.start(folder + "/reg-show", arguments);
        process.waitForFinished();
        return process;
    }
};

TEST_F(RegShowLinuxTest, EveryKeyWithValuesAndEveryEmptyOneIsABlockAndKeysAreSorted)
{
    using namespace std::string_literals;
    SetText(Key(), L"path", L"C:\\x");
    SetText(Key(), L"", L"a\tb");
    SetWide(Key(), L"list", REG_MULTI_SZ, L"one\0two\0\0"s);
    SetBytes(Key(), L"number", REG_DWORD, {255, 0, 0, 0});
    SetBytes(Key(), L"big", REG_QWORD, {1, 0, 0, 0, 1, 0, 0, 0});
    SetBytes(Key(), L"bytes", REG_BINARY, {1, 0xAB});
    RegCloseKey(MakeKey(Key(), L"z"));
    RegCloseKey(MakeKey(Key(), L"M\u00e4rz"));
    QProcess process;
    EXPECT_EQ(Run(process, {MachineFolder()}).exitCode(), 0);
    EXPECT_EQ(process.readAllStandardOutput().toStdString(),
        "[HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Run]\n"
        "\n"
        "[HKEY_CURRENT_USER\\Software\\VorlanPalTests]\n"
        "  path  REG_SZ  C:\\x\n"
        "  (Default)  REG_SZ  a\\x9b\n"
        "  list  REG_MULTI_SZ  one | two\n"
        "  number  REG_DWORD  0x000000ff (255)\n"
        "  big  REG_QWORD  0x0000000100000001 (4294967297)\n"
        "  bytes  REG_BINARY  01 ab\n"
        "\n"
        "[HKEY_CURRENT_USER\\Software\\VorlanPalTests\\M\u00e4rz]\n"
        "\n"
        "[HKEY_CURRENT_USER\\Software\\VorlanPalTests\\z]\n"
        "\n"
        "[HKEY_LOCAL_MACHINE\\Software\\Microsoft\\Windows\\CurrentVersion\\Run]\n"
        "\n");
}

TEST_F(RegShowLinuxTest, AFolderThatIsNotThereIsAnErrorAndIsNotMade)
{
    const QString folder = MachineFolder() + "/none";
    QProcess process;
    EXPECT_EQ(Run(process, {folder}).exitCode(), 1);
    EXPECT_EQ(process.readAllStandardError(),
        ("reg-show: there is no machine in " + folder + "\n").toUtf8());
    EXPECT_FALSE(QDir(folder).exists());
}

} // namespace
