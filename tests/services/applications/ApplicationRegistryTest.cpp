#include "platform/ApplicationRegistry.h"
#include "registry/RegistrySettings.h"
#include "support/Machine.h"

#include <gtest/gtest.h>

using namespace Vorlan;

TEST(ApplicationRegistry, DependentApplicationsAreFoundInEveryRootAndView)
{
    const Machine machine;
    // The 32-bit view of this user's software is the 64-bit one.
    const char* const places[] = {"HKEY_CURRENT_USER\\Software", "HKEY_LOCAL_MACHINE\\Software",
        "HKEY_LOCAL_MACHINE\\Software\\WOW6432Node"};
    std::vector<std::string> expected;
    for (const char* place : places)
    {
        expected.push_back("Child" + std::to_string(expected.size()));
        RegistrySettings key(
            QString(place) + "\\Vorlan\\" + QString::fromStdString(expected.back()));
        key.setValue("ParentProductId", "quillax");
    }
    RegistrySettings("HKEY_CURRENT_USER\\Software\\Vorlan\\Stranger")
        .setValue("ParentProductId", "another");

    std::vector<std::string> found;
    for (const auto& child : App::getAllChildApplications(
             App::CreateApplicationRegistry(App::ParsingOptions()), "quillax"))
        found.push_back(child.key);
    EXPECT_EQ(found, expected);
}
