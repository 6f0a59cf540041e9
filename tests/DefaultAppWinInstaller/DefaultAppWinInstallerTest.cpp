#include "DefaultAppWinInstaller/DefaultAppWinInstaller.h"

#include "platform/Exception.h"
#include "support/Machine.h"

#include <QDir>
#include <QStringList>

#include <gtest/gtest.h>

using namespace Vorlan;

TEST(DefaultAppTest, TypesHaveTheNamesOfTheSettingsPage)
{
    EXPECT_EQ(PrintAppTypeToString(L"target=%ls", AppType::Video),
        L"target=SystemSettings_DefaultApps_Video");
    EXPECT_EQ(PrintAppTypeToString(L"%ls_Button", AppType::Audio),
        L"SystemSettings_DefaultApps_Audio_Button");
    EXPECT_EQ(PrintAppTypeToString(L"target=%ls", AppType::None), L"target=");
    EXPECT_EQ(PrintAppTypeToString(L"%ls_Button", AppType::None), L"_Button");
}

TEST(DefaultAppTest, UnknownTypeTellsWhatAndWhere)
{
    try
    {
        PrintAppTypeToString(L"%ls", static_cast<AppType>(3));
        FAIL() << "no exception";
    }
    catch (const Exception& error)
    {
        EXPECT_STREQ(
            error.what(), "Not found specified AppType in g_AppTypeNames. Possible forgot to add.");
        EXPECT_STREQ(*boost::get_error_info<boost::throw_function>(error), "PrintAppTypeToString");
        EXPECT_STREQ(
            *boost::get_error_info<boost::throw_file>(error), "DefaultAppWinInstaller.cpp");
        EXPECT_GT(*boost::get_error_info<boost::throw_line>(error), 0);
        EXPECT_FALSE(boost::get_error_info<ExceptionCallStack>(error)->empty());
    }
}

TEST(DefaultAppTest, RegistratorLiesInTheInstallation)
{
    EXPECT_EQ(GetAssociationRegistratorPath("C:\\apps"),
        "C:\\apps" + QString(QDir::separator()) + "AssociationRegistrator.exe");
}

// On Windows these are the system's own classes, as many of them as it has.
TEST(DefaultAppTest, EndsQuietlyWhateverTheSystemHas)
{
    const Machine machine;
    EXPECT_NO_THROW(
        SetDefaultApplication(AppType::Video, {".mp4"}, "Vorlan Quillax", machine.Path("apps")));
    EXPECT_EQ(machine.Log(), QStringList());
}
