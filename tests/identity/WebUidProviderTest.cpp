#include "identity/WebUidProvider.h"

#include "installer/InstallerMediator.h"
#include "registry/RegistrySettings.h"
#include "support/Environment.h"
#include "support/Machine.h"
#include "support/TestServers.h"
#include "transfer/HttpTransfer.h"

#include <QUuid>

#include <gtest/gtest.h>

using namespace Vorlan;
using TestServers::Address;
using Results = WebUidProvider::WebUidResults;

namespace
{

class WebUidProviderTest : public testing::Test
{
protected:
    static void Store(const QString& key, const QString& id)
    {
        RegistrySettings(QSettings::UserScope, "Vorlan", key).setValue("WEBUID", id);
    }

    // The service answers as the first part of the token says.
    void UseService(const QString& kind)
    {
        token = kind + QUuid::createUuid().toString(QUuid::WithoutBraces);
        qputenv("VORLAN_WEBUID_URL", Address("http", "/identity/" + token).toUtf8());
    }

    QStringList Asked() const
    {
        const auto text = Networking::FetchText({Address("http", "/asked?token=" + token)});
        return QString(text.body).split('\n', Qt::SkipEmptyParts);
    }

    std::pair<QString, Results> Resolve(const QStringList& arguments = {},
        const QString& fileName = {}, bool prefersArguments = false)
    {
        const QString name = "setup.exe";
        const InstallerMediator mediator({name, false, true, QSettings::UserScope, false});
        return WebUidProvider::GetWebUid(
            mediator, arguments, fileName, false, prefersArguments, {}, "bundle & co");
    }

    // The results of six sources that hold nothing, but for those given.
    static Results With(const Results& found)
    {
        Results results = found;
        for (const char* source :
            {"REG_USER_WEBUID", "REG_PRODUCT_WEBUID", "WI_WEBUID", "FILE_WEBUID"})
            results.insert({source, "NOT_VALID_"});
        return results;
    }

    void SetUp() override { UseService("good-"); }

    Machine machine;
    const Environment environment{"VORLAN_WEBUID_URL", ""};
    QString token;
};

} // namespace

TEST_F(WebUidProviderTest, WithoutAnIdTheServiceGivesOne)
{
    const auto [id, results] =
        Resolve({"setup.exe", "/webuid=lower-case-key", "/WEBUID"}, "a_Wopen");
    EXPECT_EQ(id, "new-id-0001");
    EXPECT_EQ(
        results, With({{"API_WEBUID", "new-id-0001"}, {"MERGE_WEBUID_RESULT", "not attempted"}}));
    EXPECT_EQ(Asked(),
        QStringList("request app=quillax&bundle_name=bundle & co&source=QTI&version=24.5.1"));
    EXPECT_EQ(machine.Log().last(), "Using webUid =  \"new-id-0001\"");
}

TEST_F(WebUidProviderTest, WithoutTheServiceThereIsNone)
{
    const Results none = With({{"API_WEBUID", ""}, {"MERGE_WEBUID_RESULT", "not attempted"}});
    for (const char* kind : {"refusing-", "garbled-"})
    {
        UseService(kind);
        EXPECT_EQ(Resolve(), std::make_pair(QString(), none)) << kind;
        EXPECT_EQ(Asked().size(), 1) << kind;
    }
    for (const QString& address : {QString("off"), Address("closed")})
    {
        const Environment elsewhere("VORLAN_WEBUID_URL", address);
        EXPECT_EQ(Resolve(), std::make_pair(QString(), none)) << address.toStdString();
    }
}

TEST_F(WebUidProviderTest, SameIdInTwoPlacesIsChosenOnce)
{
    Store("User", "same-id-1");
    Store("Quillax24", "same-id-1");
    EXPECT_EQ(
        Resolve(), std::make_pair(QString("same-id-1"),
                       With({{"REG_USER_WEBUID", "same-id-1"}, {"REG_PRODUCT_WEBUID", "same-id-1"},
                           {"MERGE_WEBUID_RESULT", "not attempted"}})));
    EXPECT_EQ(Asked(), QStringList());
}

TEST_F(WebUidProviderTest, FirstValidIdIsChosenAndTheOthersAreMerged)
{
    Store("User", "invalid id");
    Store("Quillax24", "product-id");
    const QStringList arguments{"/WEBUID=command=id", "/WEBUID=second-argument"};
    EXPECT_EQ(Resolve(arguments, "setup_Wfile-name-id_x_Wno_.exe"),
        std::make_pair(QString("product-id"),
            Results({{"REG_USER_WEBUID", "NOT_VALID_invalid id"},
                {"REG_PRODUCT_WEBUID", "product-id"}, {"WI_WEBUID", "NOT_VALID_command=id"},
                {"FILE_WEBUID", "file-name-id"}, {"MERGE_WEBUID_RESULT", "success"}})));
    EXPECT_EQ(Asked(), QStringList("merge id=product-id&other=file-name-id"));

    UseService("refusing-");
    EXPECT_EQ(Resolve({"/WEBUID=command-id"}).second["MERGE_WEBUID_RESULT"], "fail");
    EXPECT_EQ(Asked(), QStringList("merge id=product-id&other=command-id"));
}

TEST_F(WebUidProviderTest, PreferredArgumentWinsAndTakesTheProductsIdAlong)
{
    Store("User", "user-id-1");
    EXPECT_EQ(Resolve({"/WEBUID=command-id"}, "a_Wfile-name-id_", true),
        std::make_pair(QString("command-id"),
            Results({{"WI_WEBUID", "command-id"}, {"REG_PRODUCT_WEBUID", "NOT_VALID_"},
                {"MERGE_WEBUID_RESULT", "success"}})));
    EXPECT_EQ(Asked(), QStringList()); // the product has no id that could be merged

    EXPECT_EQ(Resolve({"/WEBUID=short"}, {}, true).first, "user-id-1");
}

TEST_F(WebUidProviderTest, StoredIdIsTakenAsItIs)
{
    Store("Quillax24", "?");
    const QString name = "setup.exe";
    const InstallerMediator mediator({name, false, true, QSettings::UserScope, false});
    EXPECT_EQ(WebUidProvider::GetWebUid(
                  mediator, {"/WEBUID=command-id"}, "a_Wfile-name-id_", true, true, {}, "b"),
        std::make_pair(QString("?"), Results()));
    EXPECT_EQ(Asked(), QStringList());
}

TEST_F(WebUidProviderTest, IdsHaveTheirSyntaxAndTheirPlaces)
{
    const App::WebUidManager manager({});
    EXPECT_TRUE(manager.isValidWebUid("aZ09-bcd"));
    EXPECT_TRUE(manager.isValidWebUid(std::string(64, 'a')));
    for (const std::string& id : {std::string("1234567"), std::string(65, 'a'),
             std::string("with blank"), std::string("under_score"), std::string("line-end\n"),
             std::string("\xC3\xA9t\xC3\xA9-\xC3\xA9t\xC3\xA9")})
    {
        EXPECT_FALSE(manager.isValidWebUid(id)) << id;
    }
    Store("User", "UNDEFINED id");
    Store("App", "of an application");
    EXPECT_EQ(manager.getUserWebUid(), "");
    EXPECT_EQ(manager.getWebUidFromRegistryKey("App", "Vorlan"), "of an application");
    Store("User", "user-id-1");
    EXPECT_EQ(manager.getUserWebUid(), "user-id-1");
}
