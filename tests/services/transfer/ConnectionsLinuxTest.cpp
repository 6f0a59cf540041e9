// What Wine does not show: it checks no certificate by itself, and takes a reset for an ordinary
// end.
#include "platform/WebConfig.h"
#include "support/Environment.h"
#include "support/Machine.h"
#include "support/TestServers.h"
#include "transfer/HttpTransfer.h"

#include <QFile>

#include <gtest/gtest.h>

using namespace Vorlan;
using namespace Vorlan::Networking;
using TestServers::Address;

namespace
{

TextAnswer Ask(const QString& address, const std::string& authorities = {})
{
    HttpRequest request;
    request.url = address;
    request.policy.authorities = authorities;
    return FetchText(request);
}

} // namespace

TEST(ConnectionsLinuxTest, OnlyATrustedCertificateForThatHostIsAccepted)
{
    const std::string trusted = TestServers::Certificate().toStdString();
    const QString https = Address("https", "/text?text=safe");
    EXPECT_EQ(Ask(https, trusted).body, "safe");
    EXPECT_EQ(Ask(Address("http", "/redirect?to=" + https), trusted).body, "safe");

    const TextAnswer downgraded =
        Ask(Address("https", "/redirect?to=" + Address("http", "/text")), trusted);
    EXPECT_EQ(downgraded.answer.code, TransferCode::RedirectRefused);

    const QString otherHost = QString(https).replace("127.0.0.1", "localhost");
    for (const auto& answer : {Ask(https), Ask(Address("http", "/redirect?to=" + https)),
             Ask(otherHost, trusted), Ask(https, "no such file")})
    {
        EXPECT_EQ(answer.answer.code, TransferCode::NotTrusted);
        EXPECT_EQ(answer.body, "");
    }

    const Machine machine;
    const Environment service("VORLAN_CONFIG_URL", Address("https", "/echo"));
    EXPECT_EQ(App::WebConfig::RequestWebConfig({}), App::WebConfig::ExitCode::NotTrusted);
    EXPECT_FALSE(QFile::exists(App::WebConfig::ReceivedConfigPath()));
}

TEST(ConnectionsLinuxTest, ResetIsNotTheEndOfABody)
{
    EXPECT_EQ(Ask(Address("http", "/reset")).answer.code, TransferCode::Incomplete);
}
