#include "platform/Proxy.h"
#include "platform/System.h"
#include "support/Machine.h"
#include "support/RegistryCalls.h"
#include "support/TestServers.h"

#include <gtest/gtest.h>

using namespace Vorlan;

namespace
{

void AppendNumber(std::vector<BYTE>& bytes, DWORD number)
{
    for (int shift = 0; shift < 32; shift += 8)
        bytes.push_back(static_cast<BYTE>(number >> shift));
}

void AppendText(std::vector<BYTE>& bytes, const std::string& text)
{
    AppendNumber(bytes, static_cast<DWORD>(text.size()));
    bytes.insert(bytes.end(), text.begin(), text.end());
}

// The connection settings as Windows stores them: a mark, a counter, what is switched on, the
// proxies, the hosts without one, the script.
void StoreConnection(DWORD flags, const std::string& proxies, const std::string& bypass,
    const std::string& script = {})
{
    std::vector<BYTE> bytes;
    for (const DWORD number : {DWORD{70}, DWORD{1}, flags})
        AppendNumber(bytes, number);
    for (const std::string& text : {proxies, bypass, script})
        AppendText(bytes, text);
    const HKEY key = MakeKey(HKEY_CURRENT_USER,
        L"Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings\\Connections");
    EXPECT_EQ(SetBytes(key, L"DefaultConnectionSettings", REG_BINARY, bytes), ERROR_SUCCESS);
    RegCloseKey(key);
}

constexpr DWORD usesProxy = 2;
constexpr DWORD usesScript = 4;

class ProxyWindowsTest : public testing::Test
{
protected:
    std::string AddressFor(const std::string& url) { return provider.getProxy(url).address; }

    Machine machine;
    Networking::NativeProxyProvider provider;
};

TEST_F(ProxyWindowsTest, WithoutSettingsEveryHostIsReachedDirectly)
{
    EXPECT_EQ(AddressFor("https://links.example/x"), "");
}

TEST_F(ProxyWindowsTest, AProxyServesItsSchemeOnly)
{
    StoreConnection(usesProxy, "http=plain:1;https=secure:2", "");
    EXPECT_EQ(AddressFor("http://links.example/x"), "http://plain:1");
    EXPECT_EQ(AddressFor("https://links.example/x"), "http://secure:2");
    StoreConnection(usesProxy, "http=plain:1", "");
    EXPECT_EQ(AddressFor("https://links.example/x"), "");
    StoreConnection(usesProxy, "any:3", "");
    EXPECT_EQ(AddressFor("https://links.example/x"), "http://any:3");
}

TEST_F(ProxyWindowsTest, HostsOfTheListAreReachedDirectly)
{
    StoreConnection(usesProxy, "any:3", "*.Intern.example;<local>;one.example");
    EXPECT_EQ(AddressFor("https://a.intern.example/"), "");
    EXPECT_EQ(AddressFor("https://computer/"), "");
    EXPECT_EQ(AddressFor("https://one.example:80/"), "");
    EXPECT_EQ(AddressFor("https://xone.example/"), "http://any:3");
}

TEST_F(ProxyWindowsTest, AScriptDecidesBeforeTheListAndAlsoForADirectConnection)
{
    const auto script = [](const char* answer)
    {
        const QString text = QString("function FindProxyForURL(url, host) { return '%1'; }");
        return TestServers::Address(
            "http", "/text?text=" + QUrl::toPercentEncoding(text.arg(answer)))
            .toStdString();
    };
    StoreConnection(usesProxy | usesScript, "static:3", "", script("DIRECT"));
    EXPECT_EQ(AddressFor("http://links.example/x"), "");
    StoreConnection(usesProxy | usesScript, "static:3", "", script("PROXY scripted:4"));
    EXPECT_EQ(AddressFor("http://links.example/x"), "http://scripted:4");
    StoreConnection(
        usesProxy | usesScript, "static:3", "", TestServers::Address("closed", "/x").toStdString());
    EXPECT_EQ(AddressFor("http://links.example/x"), "http://static:3");
}

TEST(SystemWindowsTest, TheVersionIsThatOfTheSystemAndNotOfTheManifest)
{
    EXPECT_TRUE(Core::IsGreaterOrEqualThen({10, 0, 0}));
    EXPECT_TRUE(Core::IsGreaterOrEqualThen({6, 1, 7601}));
    EXPECT_FALSE(Core::IsGreaterOrEqualThen({10, 0, 99999}));
    EXPECT_FALSE(Core::IsGreaterOrEqualThen({11, 0, 0}));
}

} // namespace
