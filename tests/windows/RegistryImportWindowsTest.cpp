#include "support/Machine.h"
#include "support/RegistrySamples.h"

#include <QProcess>

#include <gtest/gtest.h>

namespace
{

class RegistryImportWindowsTest : public testing::Test
{
protected:
    // regedit is another process, and sees the true registry.
    void SetUp() override { DeleteTree(HKEY_CURRENT_USER, samplesKey); }
    void TearDown() override { DeleteTree(HKEY_CURRENT_USER, samplesKey); }

    static void Import(const QString& file)
    {
        ASSERT_TRUE(QFile::exists(file)) << file.toStdString();
        ASSERT_EQ(QProcess::execute("regedit", {"/S", QDir::toNativeSeparators(file)}), 0);
    }

    static void ExpectStored(const RegistrySample& sample)
    {
        HKEY key = nullptr;
        ASSERT_EQ(RegOpenKeyExW(HKEY_CURRENT_USER, (samplesKey + (L'\\' + sample.subKey)).c_str(),
                      0, KEY_READ, &key),
            ERROR_SUCCESS);
        const std::optional<ValueSeen> seen = SeeValue(key, sample.name);
        RegCloseKey(key);
        ASSERT_TRUE(seen);
        EXPECT_EQ(seen->type, sample.type);
        if (sample.text.empty())
            EXPECT_EQ(seen->data, sample.bytes);
        else
            EXPECT_EQ(seen->Text(), sample.text);
    }
};

} // namespace

TEST_F(RegistryImportWindowsTest, RegeditReadsWhatThePlatformLayerWrote)
{
    Import(Payload("samples.reg"));
    std::size_t expectedValues = 0;
    for (const RegistrySample& sample : RegistrySamples())
    {
        SCOPED_TRACE(QString::fromStdWString(sample.subKey + L": " + sample.name).toStdString());
        ExpectStored(sample);
        expectedValues += sample.subKey == L"Texts";
    }
    const HKEY texts = MakeKey(HKEY_CURRENT_USER, samplesKey + std::wstring(L"\\Texts"));
    EXPECT_EQ(ValueNames(texts).size(), expectedValues);
    RegCloseKey(texts);

    const HKEY samples = MakeKey(HKEY_CURRENT_USER, samplesKey);
    EXPECT_EQ(SubKeyNames(samples), (std::vector<std::wstring>{L"Bytes", L"empty key", L"Numbers",
                                        L"Texts", L"\u97f3\u697d \u00fc key"}));
    RegCloseKey(samples);
}
