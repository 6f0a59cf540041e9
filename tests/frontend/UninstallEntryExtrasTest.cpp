#include "support/InstalledProduct.h"

namespace
{

class UninstallEntryExtrasTest : public InstalledProduct
{
protected:
    // The values of the page that documents them.
    QStringList Documented() const
    {
        const QString page =
            QString::fromUtf8(ReadFile(DOCUMENTATION_FOLDER "/registry-layout.md"));
        return page.section("```entry\n", 1)
            .section("\n```", 0, 0)
            .replace("{root}\\Software\\", "")
            .replace("{folder}", QDir::toNativeSeparators(product + '/'))
            .split('\n');
    }
};

TEST_F(UninstallEntryExtrasTest, AreWrittenByAnInstallationAndRemovedWithTheEntry)
{
    InstallCurrent();
    for (const QString& value : Documented())
        EXPECT_TRUE(Records().contains(value)) << value.toStdString();
    EXPECT_EQ(Documented().size(), 3);
    EXPECT_EQ(Uninstall({}).exitCode, 0);
    EXPECT_EQ(RegistryTree("HKEY_CURRENT_USER",
                  "Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Vorlan Quillax"),
        QStringList());
}

} // namespace
