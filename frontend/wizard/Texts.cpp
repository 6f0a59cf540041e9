#include "wizard/Texts.h"

#include "base/ProductProfile.h"

#include <QCoreApplication>
#include <QLocale>
#include <QMap>

#include <algorithm>

namespace Vorlan::FrontEnd
{

QString WizardText(const char* text)
{
    return QCoreApplication::translate("Wizard", text);
}

QString UninstallText(const char* text)
{
    return QCoreApplication::translate("Uninstaller", text);
}

QString ProductTitle()
{
    return ProductProfile::productFullName;
}

QString LanguageName(const QString& locale)
{
    static const QMap<QString, QString> names{
        {"de_DE", QStringLiteral("Deutsch")},
        {"en_US", QStringLiteral("English")},
        {"es_ES", QStringLiteral("Español")},
        {"fr_FR", QStringLiteral("Français")},
        {"it_IT", QStringLiteral("Italiano")},
        {"ja_JP", QStringLiteral("日本語")},
        {"ko_KR", QStringLiteral("한국어")},
        {"nl_NL", QStringLiteral("Nederlands")},
        {"pl_PL", QStringLiteral("Polski")},
        {"pt_BR", QStringLiteral("Português (Brasil)")},
        {"ru_RU", QStringLiteral("Русский")},
        {"tr_TR", QStringLiteral("Türkçe")},
        {"zh_CN", QStringLiteral("简体中文")},
        {"zh_TW", QStringLiteral("繁體中文")},
    };
    return names.value(locale, locale);
}

QString SizeText(qint64 bytes, const QString& locale)
{
    return QLocale(locale).formattedDataSize(bytes, 1, QLocale::DataSizeTraditionalFormat);
}

// Without a letter from right to left they are left out: fonts that lack them show boxes.
QString PathText(const QString& path)
{
    const bool isMixed = std::any_of(path.begin(), path.end(),
        [](QChar letter)
        {
            const QChar::Direction direction = letter.direction();
            return direction == QChar::DirR || direction == QChar::DirAL;
        });
    if (!isMixed)
        return path;
    constexpr QChar beginIsolate(0x2066);
    constexpr QChar endIsolate(0x2069);
    return beginIsolate + path + endIsolate;
}

} // namespace Vorlan::FrontEnd
