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
    return WordsFor(OptionsFor(ApplyOptions(Proposal(), parsed.options), parsed.options));
}

TEST(InstallOptionsTest, WhatIsNotGivenStaysAsProposed)
{
    EXPECT_EQ(WordsAfter({}).mid(1).join(' '),
        "/LANG=fr_FR /ALLUSERS /SHORTCUTS=no /CONTEXTMENU=yes /AUTOLAUNCH=yes /STATISTICS=no");
}

TEST(InstallOptionsTest, WhatIsGivenReplacesTheProposalAndAllOfItCanBePassedOn)
{
    const QStringList words = WordsAfter({"/S", "/D=" + QDir::rootPath() + "a b/Vorlan Quillax",
        "/LANG=de_DE", "/ALLUSERS", "/LOG=a log", "/SHORTCUTS=yes", "/CONTEXTMENU=no",
        "/AUTOLAUNCH=no", "/STATISTICS=yes", "/REMOVEALL", "/JSON"});
    EXPECT_EQ(words.join(' '),
        "/S /D=" + QDir::rootPath() +
            "a b/Vorlan Quillax /LANG=de_DE /ALLUSERS /LOG=a log /SHORTCUTS=yes /CONTEXTMENU=no "
            "/AUTOLAUNCH=no /STATISTICS=yes /REMOVEALL /JSON");
    EXPECT_EQ(WordsAfter(words), words);
}

} // namespace
