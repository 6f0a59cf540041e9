#pragma once

#include <QLatin1String>
#include <QStringList>

// Another version of the same product is built for the tests of an update.
#ifndef VORLAN_VERSION_MINOR
#define VORLAN_VERSION_MINOR "5.1"
#endif

// The identity of the one product that this engine is built for.
namespace Vorlan::ProductProfile
{

inline constexpr QLatin1String companyName{"Vorlan"};
inline constexpr QLatin1String brandName{"vorlan"};
inline constexpr QLatin1String applicationId{"quillax"};
inline constexpr QLatin1String productName{"Quillax"};
inline constexpr QLatin1String shortName{"quill"};
inline constexpr QLatin1String versionMajor{"24"};
inline constexpr QLatin1String versionMinor{VORLAN_VERSION_MINOR};
inline constexpr QLatin1String versionText{"24." VORLAN_VERSION_MINOR};
inline constexpr QLatin1String applicationKey{"Quillax24"};
inline constexpr QLatin1String productFullName{"Vorlan Quillax"};
inline constexpr QLatin1String archiveFileName{"InstallerData.7z"};
inline constexpr QLatin1String uninstallerFileName{"uninst.exe"};
inline constexpr QLatin1String mainExecutable{"quill.exe"};
// Program that starts at logon; this product has none.
inline constexpr QLatin1String autoLaunchExecutable{""};
inline constexpr QLatin1String vendorDomain{"vorlan.example"};
inline constexpr QLatin1String defaultLocale{"en_US"};

// The languages that the product is translated into, in the order of preference.
inline QStringList SupportedLocales()
{
    return {"de_DE", "en_US", "es_ES", "fr_FR", "it_IT", "ja_JP", "nl_NL", "pl_PL", "pt_BR",
        "ru_RU", "tr_TR", "zh_CN", "ko_KR", "zh_TW"};
}

} // namespace Vorlan::ProductProfile
