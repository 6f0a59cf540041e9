#include "InstallOptions.h"

#include "base/TriState.h"

#include <gtest/gtest.h>

using namespace Vorlan;
using namespace Vorlan::FrontEnd;

namespace
{

// What an earlier installation has, unlike every default.
InstallationSettings Proposal()
{
    InstallationSettings settings;
    settings.locale = "fr_FR";
    settings.installDir = QDir::rootPath() + "apps/Vorlan Quillax/";
    settings.scope = QSettings::SystemScope;
    settings.createShortcuts = false;
    settings.contextMenuConvert = TriState::chosen;
    settings.contextMenuOpenWith = TriState::chosen;
    settings.autoLaunch = TriState::chosen;
    settings.sendStatistics = TriState::declined;
    settings.productFolderName = "Vorlan Quillax";
    return settings;
}

QStringList WordsAfter(const QStringList& words)
{
    const ParsedCommandLine parsed = ParseCommandLine(words);
    EXPECT_EQ(parsed.error, "");
    return WordsFor(ApplyOptions(Proposal(), parsed.options));
}

TEST(InstallOptionsTest, WhatIsNotGivenStaysAsProposed)
{
    EXPECT_EQ(WordsAfter({}), WordsFor(Proposal()));
    EXPECT_EQ(WordsFor(Proposal()).mid(1).join(' '),
        "/LANG=fr_FR /ALLUSERS /SHORTCUTS=no /CONTEXTMENU=yes /AUTOLAUNCH=yes /STATISTICS=no");
}

TEST(InstallOptionsTest, WhatIsGivenReplacesTheProposal)
{
    const QStringList given{
        "/LANG=de_DE", "/SHORTCUTS=yes", "/CONTEXTMENU=no", "/AUTOLAUNCH=no", "/STATISTICS=yes"};
    EXPECT_EQ(WordsAfter(given).mid(1).join(' '),
        "/LANG=de_DE /ALLUSERS /SHORTCUTS=yes /CONTEXTMENU=no /AUTOLAUNCH=no /STATISTICS=yes");
    EXPECT_EQ(WordsAfter(WordsAfter(given)), WordsAfter(given)) << "the words say all of it";
}

} // namespace
