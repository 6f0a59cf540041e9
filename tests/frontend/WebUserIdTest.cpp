#include "support/Environment.h"
#include "support/SetupRun.h"
#include "support/TestServers.h"
#include "transfer/HttpTransfer.h"

#include <QUuid>

#include <gtest/gtest.h>

using namespace Vorlan;

TEST(WebUserIdTest, IsRequestedIfTheCommandLineHasNone)
{
    const QString token = "good-" + QUuid::createUuid().toString(QUuid::WithoutBraces);
    const Environment service(
        "VORLAN_WEBUID_URL", TestServers::Address("http", "/identity/" + token));
    SetupRun setup; // copies the environment for its programs
    setup.AddArchive("small.7z");
    const auto result = setup.Start({"/S", "/WEBUID=no id"});
    EXPECT_EQ(result.exitCode, 0) << result.errors.toStdString();
    Networking::HttpRequest asked;
    asked.url = TestServers::Address("http", "/asked?token=" + token);
    EXPECT_EQ(Networking::FetchText(asked).body,
        "request app=quillax&bundle_name=&source=QTI&version=24.5.1");
}
