#include "registry/RegistrySettings.h"

#include <Pal.h>

#include <QSize>

#include "support/RegistryFiles.h"

namespace
{

using Vorlan::RegistrySettings;

class RegistrySettingsLinuxTest : public RegistryFiles
{
protected:
    const QString m_path = "HKEY_CURRENT_USER\\Software\\VorlanPalTests\\Settings";
};

TEST_F(RegistrySettingsLinuxTest, AKeyThatMayNotBeMadeIsReadAndRefusesChanges)
{
    RegistrySettings(m_path).setValue("value", "text");
    const WarningLog log;
    RegistrySettings settings(m_path);
    const Pal::ScopedFault refused("RegCreateKeyExW", ERROR_ACCESS_DENIED);
    EXPECT_EQ(settings.value("value"), QVariant("text"));
    settings.setValue("value", "other");
    EXPECT_EQ(settings.status(), QSettings::AccessError);
    settings.remove("value");
    EXPECT_EQ(settings.value("value"), QVariant("text"));
    EXPECT_EQ(
        WarningLog::Lines(), QStringList{"Registry value cannot be written: \"value\", error 5"});
}

TEST_F(RegistrySettingsLinuxTest, AFailedWriteIsTheStatusFromThenOn)
{
    RegistrySettings settings(m_path);
    {
        const WarningLog log;
        const Pal::ScopedFault full("RegSetValueExW", ERROR_DISK_FULL);
        settings.setValue("value", "text");
        EXPECT_EQ(WarningLog::Lines(),
            QStringList{"Registry value cannot be written: \"value\", error 112"});
    }
    settings.setValue("value", "text");
    EXPECT_EQ(settings.value("value"), QVariant("text"));
    EXPECT_EQ(settings.status(), QSettings::AccessError);
}

TEST_F(RegistrySettingsLinuxTest, EmptyKeysAndGroupsThatWereNeverBegunAreRefusedWithAWarning)
{
    const WarningLog log;
    RegistrySettings settings(m_path);
    settings.setValue("", "text");
    EXPECT_EQ(settings.value("", "default"), QVariant());
    settings.endGroup();
    EXPECT_EQ(WarningLog::Lines(),
        (QStringList{"RegistrySettings::setValue: empty key", "RegistrySettings::value: empty key",
            "RegistrySettings::endGroup: no group was begun"}));
    EXPECT_EQ(settings.childKeys(), QStringList{});
}

TEST_F(RegistrySettingsLinuxTest, TypesThatNothingStoresAreRefused)
{
    const WarningLog log;
    RegistrySettings settings(m_path);
    for (const QVariant& value : {QVariant(QSize(5, 6)), QVariant(QStringList{"one", "", "two"})})
    {
        settings.setValue("value", value);
        EXPECT_FALSE(settings.contains("value"));
    }
    EXPECT_EQ(
        WarningLog::Lines(), (QStringList{"Registry value cannot be written: \"value\", error 50",
                                 "Registry value cannot be written: \"value\", error 50"}));
    EXPECT_EQ(settings.status(), QSettings::AccessError);
}

TEST_F(RegistrySettingsLinuxTest, WithoutAnOrganisationNothingIsStored)
{
    const WarningLog log;
    RegistrySettings settings(QSettings::UserScope, "", "Settings");
    EXPECT_EQ(settings.status(), QSettings::AccessError);
    settings.setValue("value", "text");
    EXPECT_FALSE(settings.contains("value"));
    EXPECT_EQ(settings.fileName(), "");
}

TEST_F(RegistrySettingsLinuxTest, NoCallThatFailsLeavesAHandleOpen)
{
    const std::vector<std::string> before = Pal::OpenHandles();
    bool fired = true;
    for (unsigned call = 1; fired; ++call)
    {
        const WarningLog log;
        const Pal::ScopedFault fault(
            "*", ERROR_GEN_FAILURE, call, Pal::ScopedFault::Expect::MayStayUnused);
        {
            RegistrySettings settings(m_path);
            settings.setValue("G/value", "text");
            EXPECT_LE(settings.childGroups().size(), 1);
            settings.remove("");
        }
        fired = fault.Fired();
        EXPECT_EQ(Pal::OpenHandles(), before) << call;
    }
    EXPECT_TRUE(SubKeyNames(Key()).empty());
}

} // namespace
