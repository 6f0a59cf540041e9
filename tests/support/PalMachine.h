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
        ASSERT_TRUE(m_folder.isValid());
        ASSERT_TRUE(QDir(m_folder.path()).mkdir("files"));
        m_machine = std::make_unique<MachineRoot>(MachineFolder());
        ASSERT_EQ(RegCreateKeyExW(HKEY_CURRENT_USER, keyPath, 0, nullptr, REG_OPTION_NON_VOLATILE,
                      KEY_ALL_ACCESS, nullptr, &m_key, nullptr),
            ERROR_SUCCESS);
    }

    void TearDown() override
    {
        EXPECT_EQ(RegCloseKey(m_key), ERROR_SUCCESS);
        m_machine.reset();
    }

    HKEY Key() const { return m_key; }

    // A file or folder in the test's own folder.
    std::wstring PathOf(const std::wstring& name) const
    {
        return (m_folder.path() + "/files/").toStdWString() + name;
    }

    QString MachineFolder() const { return m_folder.path() + "/machine"; }

private:
    QTemporaryDir m_folder;
    std::unique_ptr<MachineRoot> m_machine;
    HKEY m_key = nullptr;
};
