// A machine of its own for each test of the Windows calls.
#pragma once

#include <memory>
#include <string>

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

#include <windows.h>

#include "support/MachineRoot.h"

// The test gets an empty folder for files and an empty key for values, and both are gone after it.
class PalMachine : public ::testing::Test
{
protected:
    static constexpr const wchar_t* keyPath = L"Software\\VorlanPalTests";

    void SetUp() override
    {
        ASSERT_TRUE(testFolder.isValid());
        ASSERT_TRUE(QDir(testFolder.path()).mkdir("files"));
        machineRoot = std::make_unique<MachineRoot>(MachineFolder());
        ASSERT_EQ(RegCreateKeyExW(HKEY_CURRENT_USER, keyPath, 0, nullptr, REG_OPTION_NON_VOLATILE,
                      KEY_ALL_ACCESS, nullptr, &ownKey, nullptr),
            ERROR_SUCCESS);
    }

    void TearDown() override
    {
        EXPECT_EQ(RegCloseKey(ownKey), ERROR_SUCCESS);
        machineRoot.reset();
    }

    HKEY Key() const { return ownKey; }

    // A file or folder in the test's own folder.
    std::wstring PathOf(const std::wstring& name) const
    {
        return (testFolder.path() + "/files/").toStdWString() + name;
    }

    QString MachineFolder() const { return testFolder.path() + "/machine"; }

private:
    QTemporaryDir testFolder;
    std::unique_ptr<MachineRoot> machineRoot;
    HKEY ownKey = nullptr;
};
