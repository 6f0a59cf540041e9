// A machine of its own for each test of the Windows calls.
#pragma once

#include <string>

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDir>
#include <QTemporaryDir>

#include <windows.h>

// On Linux the machine root is a fresh folder. Windows has one registry for all tests that run at
// the same time: there HKEY_CURRENT_USER is redirected to a key of this process. On both systems
// the test gets an empty folder for files and an empty key for values, and both are gone after it.
class PalMachine : public ::testing::Test
{
protected:
    static constexpr const wchar_t* keyPath = L"Software\\VorlanPalTests";

    void SetUp() override
    {
        ASSERT_TRUE(m_folder.isValid());
        m_formerMachine = qgetenv("VORLAN_MACHINE");
        qputenv("VORLAN_MACHINE", MachineFolder().toUtf8());
        ASSERT_TRUE(QDir(m_folder.path()).mkdir("files"));
        RedirectRegistry();
        DeleteTree(HKEY_CURRENT_USER, keyPath);
        ASSERT_EQ(RegCreateKeyExW(HKEY_CURRENT_USER, keyPath, 0, nullptr, REG_OPTION_NON_VOLATILE,
                      KEY_ALL_ACCESS, nullptr, &m_key, nullptr),
            ERROR_SUCCESS);
    }

    void TearDown() override
    {
        EXPECT_EQ(RegCloseKey(m_key), ERROR_SUCCESS);
        qputenv("VORLAN_MACHINE", MachineFolder().toUtf8());
        DeleteTree(HKEY_CURRENT_USER, keyPath);
        RestoreRegistry();
        qputenv("VORLAN_MACHINE", m_formerMachine);
    }

    HKEY Key() const { return m_key; }

    // A file or folder in the test's own folder.
    std::wstring PathOf(const std::wstring& name) const
    {
        return (m_folder.path() + "/files/").toStdWString() + name;
    }

    QString MachineFolder() const { return m_folder.path() + "/machine"; }

    static void DeleteTree(HKEY parent, const wchar_t* path)
    {
        HKEY key = nullptr;
        if (RegOpenKeyExW(parent, path, 0, KEY_READ, &key) != ERROR_SUCCESS)
            return;
        wchar_t name[256];
        DWORD length = 256;
        while (RegEnumKeyExW(key, 0, name, &length, nullptr, nullptr, nullptr, nullptr) ==
               ERROR_SUCCESS)
        {
            DeleteTree(key, name);
            length = 256;
        }
        RegCloseKey(key);
        ASSERT_EQ(RegDeleteKeyW(parent, path), ERROR_SUCCESS);
    }

private:
#ifdef _WIN32
    static std::wstring OwnRoot()
    {
        return L"Software\\VorlanPalTests-" + std::to_wstring(QCoreApplication::applicationPid());
    }

    static void RedirectRegistry()
    {
        HKEY root = nullptr;
        ASSERT_EQ(RegCreateKeyExW(HKEY_CURRENT_USER, OwnRoot().c_str(), 0, nullptr,
                      REG_OPTION_NON_VOLATILE, KEY_ALL_ACCESS, nullptr, &root, nullptr),
            ERROR_SUCCESS);
        EXPECT_EQ(RegOverridePredefKey(HKEY_CURRENT_USER, root), ERROR_SUCCESS);
        RegCloseKey(root);
    }

    static void RestoreRegistry()
    {
        EXPECT_EQ(RegOverridePredefKey(HKEY_CURRENT_USER, nullptr), ERROR_SUCCESS);
        DeleteTree(HKEY_CURRENT_USER, OwnRoot().c_str());
    }
#else
    static void RedirectRegistry() {}
    static void RestoreRegistry() {}
#endif

    QTemporaryDir m_folder;
    QByteArray m_formerMachine;
    HKEY m_key = nullptr;
};
