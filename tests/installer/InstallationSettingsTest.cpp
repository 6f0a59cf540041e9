#include "base/InstallationSettings.h"

#include "platform/Path.h"
#include "support/Machine.h"

#include <QDir>

#include <gtest/gtest.h>

using Vorlan::InstallationSettings;

TEST(InstallationSettings, ChosenFolderEndsWithTheProductFolderOnce)
{
    InstallationSettings settings;
    settings.productFolderName = "Vorlan Quillax";
    const auto filtered = [&](QString folder)
    { return QDir::fromNativeSeparators(settings.GetFilteredDirectory(std::move(folder))); };

    EXPECT_EQ(filtered("/Apps"), "/Apps/Vorlan Quillax/");
    EXPECT_EQ(filtered("/Apps/"), "/Apps/Vorlan Quillax/");
    EXPECT_EQ(filtered("/Apps/Vorlan Quillax"), "/Apps/Vorlan Quillax/");
    EXPECT_EQ(filtered("/Apps/Vorlan Quillax/"), "/Apps/Vorlan Quillax/");
    EXPECT_EQ(filtered("\"/Apps/Vorlan Quillax\""), "/Apps/Vorlan Quillax/");
    EXPECT_EQ(filtered("/Apps/vorlan quillax/"), "/Apps/vorlan quillax/Vorlan Quillax/");
    EXPECT_EQ(filtered(""), "/Vorlan Quillax/");
}

TEST(InstallationSettings, MainExecutableLiesInTheInstallationFolder)
{
    InstallationSettings settings;
    settings.installDir = "/Apps/Vorlan Quillax/";
    settings.mainExeName = "quill.exe";
    EXPECT_EQ(settings.GetFullPathToMainAppExe(), "/Apps/Vorlan Quillax/quill.exe");
}

TEST(InstallationSettings, FolderIsValidAsLongAsItsVolumeHasTheBytes)
{
    const Machine machine;
    const QString folder = machine.Path("not/there/yet/");
    const std::int64_t available = Vorlan::Util::GetAvailableDiskSpace(folder.toStdString());
    ASSERT_GT(available, 0);

    QString error = "untouched";
    EXPECT_TRUE(InstallationSettings::IsValidPath(folder, available / 2, error));
    EXPECT_EQ(error, "untouched");
    EXPECT_FALSE(InstallationSettings::IsValidPath(folder, available * 2, error));
    EXPECT_EQ(error, "There is not enough disk space");
}

TEST(InstallationSettings, FolderThatCannotBeUsedIsRefusedBeforeTheDiskIsAsked)
{
    const Machine machine;
    WriteFile(machine.Path("file"), "");
    for (const QString& folder : {QString("relative"), QString(), machine.Path("a*b"),
             machine.Path("file/below"), machine.Path("nul/x")})
    {
        QString error;
        EXPECT_FALSE(InstallationSettings::IsValidPath(
            folder, std::numeric_limits<long long>::max(), error));
        EXPECT_EQ(error, "Can't access the specified destination folder") << folder.toStdString();
    }
}
