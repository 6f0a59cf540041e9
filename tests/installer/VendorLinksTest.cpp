#include "installer/InstallerMediator.h"

#include "platform/System.h"
#include "support/Machine.h"

#include <gtest/gtest.h>

using namespace Vorlan;
using URL = InstallerMediator::URL;

namespace
{

class VendorLinksTest : public testing::Test
{
protected:
    // The address with the machine's hash taken out, once it is seen to be one.
    QString Expand(const QString& address) const
    {
        QString url = address;
        EXPECT_TRUE(url.contains("huid=" + hash + '&')) << url.toStdString();
        return url.replace(hash, "HASH");
    }

    Machine machine;
    const QString name = "setup.exe";
    InstallerMediator mediator{{name, false, true, QSettings::UserScope, false}};
    const QString hash = QString::fromStdString(Util::SHA1("quillax:" + Platform::MachineId()));
};

} // namespace

TEST_F(VendorLinksTest, EachPageHasItsAddress)
{
    mediator.OnLocaleChanged("pt_BR");
    const QString query =
        "app=quillax&module=installer&version=24-5-1&lang=pt_br&partner=&huid=HASH"
        "&build_name=&brand=vorlan&utm_nooverride=1&market=global";
    const QString host = "https://links.vorlan.example";
    EXPECT_EQ(Expand(mediator.GetUrl(URL::ThanksForYourInterest)),
        host + "/thanks-for-your-interest/?" + query);
    EXPECT_EQ(Expand(mediator.GetUrl(URL::UninstallPage)), host + "/uninstall/?" + query);
    EXPECT_EQ(Expand(mediator.GetUrl(URL::StartPage)), host + "/?asrc=start&" + query);
    EXPECT_EQ(Expand(mediator.GetUrl(URL::PrivacyPolicy)), host + "/privacy/?" + query);
    EXPECT_EQ(Expand(mediator.GetUrl(URL::Ideas)), host + "/ideas/?asrc=uninstallerideas&" + query);
    EXPECT_EQ(Expand(mediator.GetUrl(URL::BuyFromUninstaller)),
        host + "/buyuninstall/?asrc=uninstaller&app=quillax&app_ver=24-5-1&lang=pt_br&partner="
               "&huid=HASH&build_name=&brand=vorlan&utm_nooverride=1&market=global");
    EXPECT_EQ(mediator.GetUrl(static_cast<URL>(6)), "");
}

TEST_F(VendorLinksTest, TemplateIsExpandedWithTheSettingsFile)
{
    mediator.GetProductSettings()->setValue("PARTNER", "shop & co");
    mediator.GetProductSettings()->setValue("BUILD_NAME", 7);
    EXPECT_EQ(mediator.GetUrl("https://x.example/?<PARTNER>,<PARTNER>,<BUILD_NAME>,<OTHER>,<app>"),
        "https://x.example/?shop & co,shop & co,7,<OTHER>,<app>");
    EXPECT_EQ(mediator.GetUrl("https://x.example/plain"), "https://x.example/plain");
    EXPECT_TRUE(mediator.GetUrl("-TAIL_WITH_ARGS-").startsWith("app=quillax&app_ver=24-5-1&lang="));
}
