#include "registry/RegistrySettings.h"

#include <cstring>

#include "support/PalMachine.h"
#include "support/RegistryCalls.h"

namespace
{

using Vorlan::RegistrySettings;
using Bytes = std::vector<BYTE>;
using namespace std::string_literals;

class RegistrySettingsTest : public PalMachine
{
protected:
    const QString m_path = "HKEY_CURRENT_USER\\Software\\VorlanPalTests\\Settings";

    // What the registry itself holds, in the settings' key or below it.
    static std::optional<ValueSeen> Stored(const std::wstring& subKey, const std::wstring& name)
    {
        const HKEY key = MakeKey(HKEY_CURRENT_USER, keyPath + L"\\Settings"s + subKey, KEY_READ);
        const auto seen = SeeValue(key, name);
        RegCloseKey(key);
        return seen;
    }

    void PutText(DWORD type, const std::wstring& text) const
    {
        const HKEY key = MakeKey(Key(), L"Settings");
        SetWide(key, L"value", type, text);
        RegCloseKey(key);
    }

    void PutBytes(DWORD type, const Bytes& data) const
    {
        const HKEY key = MakeKey(Key(), L"Settings");
        SetBytes(key, L"value", type, data);
        RegCloseKey(key);
    }
};

template <typename Number>
Bytes BytesOf(Number number)
{
    Bytes bytes(sizeof(number));
    std::memcpy(bytes.data(), &number, sizeof(number));
    return bytes;
}

Bytes Utf16BytesOf(const QString& text)
{
    const auto* bytes = reinterpret_cast<const BYTE*>(text.utf16());
    return Bytes(bytes, bytes + text.size() * 2);
}

TEST_F(RegistrySettingsTest, TextIsStoredAsTextAndReadBack)
{
    struct Case
    {
        QVariant value;
        std::wstring stored;
        QVariant readBack;
    };
    const Case cases[] = {
        {true, L"true", "true"},
        {false, L"false", "false"},
        {"text", L"text", "text"},
        {"", L"", ""},
        {QString::fromUtf8("\u4e2d \U0001F3B5"), L"\u4e2d \U0001F3B5",
            QString::fromUtf8("\u4e2d \U0001F3B5")},
        {"@home", L"@@home", "@home"},
        {"@@", L"@@@", "@@"},
        {2.5, L"2.5", "2.5"},
        {QByteArray("ab\xE4"), L"@ByteArray(ab\u00e4)", QByteArray("ab\xE4")},
        {"@Size(5 6)", L"@@Size(5 6)", "@Size(5 6)"},
        {QVariant(), L"@Invalid()", QVariant()},
    };
    for (const Case& each : cases)
    {
        RegistrySettings settings(m_path);
        settings.setValue("value", each.value);
        const auto seen = Stored(L"", L"value");
        ASSERT_TRUE(seen);
        EXPECT_EQ(seen->type, DWORD{REG_SZ});
        EXPECT_EQ(seen->Text(), each.stored + L'\0');
        EXPECT_EQ(settings.value("value", "default"), each.readBack);
        EXPECT_EQ(settings.status(), QSettings::NoError);
    }
}

TEST_F(RegistrySettingsTest, NumbersAreStoredAsNumbersAndReadBackSigned)
{
    struct Case
    {
        QVariant value;
        DWORD type;
        Bytes stored;
        QVariant readBack;
    };
    const Case cases[] = {
        {-2, REG_DWORD, BytesOf(-2), -2},
        {7u, REG_DWORD, BytesOf(7u), 7},
        {0xFFFFFFFFu, REG_DWORD, BytesOf(0xFFFFFFFFu), -1},
        {qlonglong(1) << 40, REG_QWORD, BytesOf(qint64(1) << 40), qlonglong(1) << 40},
        {qulonglong(5), REG_QWORD, BytesOf(qint64(5)), qlonglong(5)},
    };
    for (const Case& each : cases)
    {
        RegistrySettings settings(m_path);
        settings.setValue("value", each.value);
        const auto seen = Stored(L"", L"value");
        ASSERT_TRUE(seen);
        EXPECT_EQ(seen->type, each.type);
        EXPECT_EQ(seen->data, each.stored);
        const QVariant value = settings.value("value");
        EXPECT_EQ(value, each.readBack);
        EXPECT_EQ(value.userType(), each.readBack.userType());
    }
}

TEST_F(RegistrySettingsTest, ListsAreStoredAsLists)
{
    RegistrySettings settings(m_path);
    settings.setValue("list", QStringList{"one", "@two"});
    EXPECT_EQ(Stored(L"", L"list")->type, DWORD{REG_MULTI_SZ});
    EXPECT_EQ(Stored(L"", L"list")->Text(), L"one\0@@two\0\0"s);
    EXPECT_EQ(settings.value("list"), QVariant(QStringList{"one", "@two"}));

    settings.setValue("none", QStringList{});
    EXPECT_EQ(Stored(L"", L"none")->type, DWORD{REG_MULTI_SZ});
    EXPECT_EQ(settings.value("none").toStringList(), QStringList{});

    settings.setValue("mixed", QVariantList{"text", 5u, true});
    EXPECT_EQ(settings.value("mixed"), QVariant(QStringList{"text", "5", "true"}));
}

TEST_F(RegistrySettingsTest, WhatHoldsAZeroIsStoredAsItsUtf16Units)
{
    RegistrySettings settings(m_path);
    const QString text = QString("a") + QChar::Null + "b";
    settings.setValue("value", text);
    EXPECT_EQ(Stored(L"", L"value")->type, DWORD{REG_BINARY});
    EXPECT_EQ(Stored(L"", L"value")->data, Utf16BytesOf("@String(" + text + ")"));
    EXPECT_EQ(settings.value("value"), QVariant(text));

    const QByteArray bytes("\0\xFF", 2);
    settings.setValue("value", bytes);
    EXPECT_EQ(Stored(L"", L"value")->type, DWORD{REG_BINARY});
    EXPECT_EQ(settings.value("value"), QVariant(bytes));
}

TEST_F(RegistrySettingsTest, ValuesOfOtherProgramsAreRead)
{
    const RegistrySettings settings(m_path);
    PutText(REG_EXPAND_SZ, L"%PATH%\0"s);
    EXPECT_EQ(settings.value("value"), QVariant("%PATH%"));
    PutText(REG_SZ, L"cut\0off\0"s);
    EXPECT_EQ(settings.value("value"), QVariant("cut"));
    PutText(REG_SZ, L"open");
    EXPECT_EQ(settings.value("value"), QVariant("open"));
    PutText(REG_MULTI_SZ, L"one\0two"s);
    EXPECT_EQ(settings.value("value"), QVariant(QStringList{"one", "two"}));
    PutBytes(REG_BINARY, {'a', 0, 'b', 0});
    EXPECT_EQ(settings.value("value"), QVariant("ab"));
    PutBytes(REG_NONE, {});
    EXPECT_EQ(settings.value("value"), QVariant(""));
}

TEST_F(RegistrySettingsTest, ASlashLeadsIntoSubKeysAndABackslashIsPartOfAName)
{
    RegistrySettings settings(m_path);
    settings.setValue("Sub/Deep/value", "deep");
    settings.setValue("//Sub//twice/", "cleaned");
    settings.setValue("back\\slash", "name");
    EXPECT_EQ(Stored(L"\\Sub\\Deep", L"value")->Text(), L"deep\0"s);
    EXPECT_EQ(Stored(L"\\Sub", L"twice")->Text(), L"cleaned\0"s);
    EXPECT_EQ(Stored(L"", L"back/slash")->Text(), L"name\0"s);
    EXPECT_EQ(settings.value("SUB/deep/VALUE"), QVariant("deep"));
    EXPECT_EQ(settings.childKeys(), QStringList{"back\\slash"});
    EXPECT_EQ(settings.childGroups(), QStringList{"Sub"});
}

TEST_F(RegistrySettingsTest, DefaultAndADotNameTheDefaultValue)
{
    RegistrySettings settings(m_path);
    settings.setValue("Default", "first");
    EXPECT_EQ(Stored(L"", L"")->Text(), L"first\0"s);
    EXPECT_EQ(settings.value("."), QVariant("first"));
    settings.setValue("Sub/.", "second");
    EXPECT_EQ(Stored(L"\\Sub", L"")->Text(), L"second\0"s);
    EXPECT_EQ(settings.childKeys(), QStringList{"."});
    settings.remove("Default");
    EXPECT_FALSE(settings.contains("."));
    EXPECT_TRUE(settings.contains("Sub/Default"));
}

TEST_F(RegistrySettingsTest, ChildrenAreListedSortedInEachGroup)
{
    RegistrySettings settings(m_path);
    for (const char* key : {"b", "a", "G/z", "G/y", "G/H/x", "F/w"})
        settings.setValue(key, 1);
    EXPECT_EQ(settings.childKeys(), (QStringList{"a", "b"}));
    EXPECT_EQ(settings.childGroups(), (QStringList{"F", "G"}));
    settings.beginGroup("/G/");
    EXPECT_EQ(settings.group(), "G");
    EXPECT_EQ(settings.childKeys(), (QStringList{"y", "z"}));
    settings.beginGroup("H");
    EXPECT_EQ(settings.group(), "G/H");
    EXPECT_EQ(settings.value("x"), QVariant(1));
    settings.endGroup();
    settings.endGroup();
    EXPECT_EQ(settings.group(), "");
    settings.beginGroup("none");
    EXPECT_EQ(settings.childKeys(), QStringList{});
}

TEST_F(RegistrySettingsTest, ReadingMakesTheKeyAndConstructionDoesNot)
{
    const RegistrySettings settings(m_path);
    EXPECT_TRUE(SubKeyNames(Key()).empty());
    EXPECT_EQ(settings.value("none", "default"), QVariant("default"));
    EXPECT_FALSE(settings.contains("none"));
    EXPECT_EQ(SubKeyNames(Key()), std::vector<std::wstring>{L"Settings"});
}

TEST_F(RegistrySettingsTest, RemovingANameRemovesTheValueAndTheGroup)
{
    RegistrySettings settings(m_path);
    settings.setValue("name", 1);
    settings.setValue("name/value", 2);
    settings.setValue("name/sub/value", 3);
    settings.setValue("other", 4);
    settings.remove("name");
    settings.remove("was never there");
    EXPECT_EQ(settings.childKeys(), QStringList{"other"});
    EXPECT_EQ(settings.childGroups(), QStringList{});
    EXPECT_EQ(settings.status(), QSettings::NoError);
}

TEST_F(RegistrySettingsTest, RemovingNothingInAGroupRemovesTheGroup)
{
    RegistrySettings settings(m_path);
    settings.setValue("G/a", 1);
    settings.setValue("G/H/b", 2);
    settings.setValue("c", 3);
    settings.beginGroup("G");
    settings.remove("");
    settings.endGroup();
    EXPECT_EQ(settings.childGroups(), QStringList{});
    EXPECT_EQ(settings.childKeys(), QStringList{"c"});
}

TEST_F(RegistrySettingsTest, RemovingNothingOutsideAllGroupsDeletesTheKeyAtTheEnd)
{
    {
        RegistrySettings settings(m_path);
        settings.setValue("Default", 0);
        settings.setValue("a", 1);
        settings.setValue("G/H/b", 2);
        settings.remove("");
        EXPECT_EQ(settings.childKeys(), QStringList{});
        EXPECT_EQ(settings.childGroups(), QStringList{});
        EXPECT_EQ(SubKeyNames(Key()), std::vector<std::wstring>{L"Settings"});
    }
    EXPECT_TRUE(SubKeyNames(Key()).empty());
}

TEST_F(RegistrySettingsTest, TheFileNameIsThePathBehindABackslash)
{
    EXPECT_EQ(RegistrySettings(m_path).fileName(), "\\" + m_path);
    EXPECT_EQ(RegistrySettings(m_path + "\\").fileName(), "\\" + m_path + "\\");
    EXPECT_EQ(RegistrySettings("\\" + m_path).fileName(), "\\" + m_path);
    EXPECT_EQ(
        RegistrySettings("HKLM\\Software\\X").fileName(), "\\HKEY_LOCAL_MACHINE\\Software\\X");
    EXPECT_EQ(RegistrySettings(QSettings::UserScope, "Vorlan", "Quillax24").fileName(),
        "\\HKEY_CURRENT_USER\\Software\\Vorlan\\Quillax24");
    EXPECT_EQ(RegistrySettings(QSettings::SystemScope, "Vorlan", "Quillax24").fileName(),
        "\\HKEY_LOCAL_MACHINE\\Software\\Vorlan\\Quillax24");
}

TEST_F(RegistrySettingsTest, APathThatBeginsWithNoRootNamesNoKey)
{
    for (const char* path : {"Software\\X", "hkey_current_user\\Software\\X", ""})
    {
        RegistrySettings settings(path);
        EXPECT_EQ(settings.fileName(), "");
        EXPECT_EQ(settings.value("value", "default"), QVariant("default"));
        EXPECT_EQ(settings.status(), QSettings::NoError);
        settings.setValue("value", "text");
        EXPECT_FALSE(settings.contains("value"));
        EXPECT_EQ(settings.status(), QSettings::AccessError);
    }
}

TEST_F(RegistrySettingsTest, AKeyThatIsFilledAgainAfterItWasEmptiedStays)
{
    {
        RegistrySettings settings(m_path);
        settings.setValue("old", 1);
        settings.remove("");
        settings.setValue("new", 2);
    }
    EXPECT_EQ(RegistrySettings(m_path).childKeys(), QStringList{"new"});
}

TEST_F(RegistrySettingsTest, ScopeOrganisationAndApplicationNameTheSameKeyAsItsPath)
{
    RegistrySettings settings(QSettings::UserScope, "VorlanPalTests", "Settings");
    settings.setValue("value", "text");
    EXPECT_EQ(Stored(L"", L"value")->Text(), L"text\0"s);
    EXPECT_EQ(RegistrySettings(m_path + "\\").value("value"), QVariant("text"));
}

} // namespace
