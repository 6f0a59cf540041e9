#pragma once

#include <QLatin1String>
#include <QStringList>

/// Another version of the same product is built for the tests of an update.
#ifndef VORLAN_VERSION_MINOR
#define VORLAN_VERSION_MINOR "5.1"
#endif

/// The identity of the one product that this engine is built for. Changing it means another build
/// of the library; a front end reads it.
namespace Vorlan::ProductProfile
{

inline constexpr QLatin1String companyName{"Vorlan"};    ///< publisher, and the company's key
inline constexpr QLatin1String brandName{"vorlan"};      ///< in names of resources and addresses
inline constexpr QLatin1String applicationId{"quillax"}; ///< known to the vendor's services
inline constexpr QLatin1String productName{
    "Quillax"};                                    ///< for people, where "settings.ini" has none
inline constexpr QLatin1String shortName{"quill"}; ///< of the main application, between programs
inline constexpr QLatin1String versionMajor{"24"}; ///< first number of versionText
inline constexpr QLatin1String versionMinor{VORLAN_VERSION_MINOR};      ///< the others
inline constexpr QLatin1String versionText{"24." VORLAN_VERSION_MINOR}; ///< that of project() too
inline constexpr QLatin1String applicationKey{"Quillax24"};         ///< product key, folder of logs
inline constexpr QLatin1String productFullName{"Vorlan Quillax"};   ///< folder, shortcuts, list
inline constexpr QLatin1String archiveFileName{"InstallerData.7z"}; ///< beside the program
inline constexpr QLatin1String uninstallerFileName{"uninst.exe"}; ///< name of the placed front end
inline constexpr QLatin1String mainExecutable{"quill.exe"};       ///< what is started and linked to
/// Program that starts at logon; this product has none.
inline constexpr QLatin1String autoLaunchExecutable{""};
inline constexpr QLatin1String vendorDomain{"vorlan.example"}; ///< of all addresses
inline constexpr QLatin1String defaultLocale{
    "en_US"}; ///< for a system whose language is not supported

/// The languages that the product is translated into, in the order of preference.
inline QStringList SupportedLocales()
{
    return {"de_DE", "en_US", "es_ES", "fr_FR", "it_IT", "ja_JP", "nl_NL", "pl_PL", "pt_BR",
        "ru_RU", "tr_TR", "zh_CN", "ko_KR", "zh_TW"};
}

} // namespace Vorlan::ProductProfile
