#include "base/ProductProfile.h"
#include "support/Machine.h"

#include <QDir>
#include <QRegularExpression>
#include <QTranslator>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

#include <map>

namespace Vorlan
{
namespace
{

struct Translation
{
    QString text;
    bool finished = true;
};

// Key: context, source text and disambiguation, joined by line feeds.
using Catalogue = std::map<QString, Translation>;

void ReadMessage(QXmlStreamReader& xml, const QString& context, Catalogue& catalogue)
{
    QString source;
    QString comment;
    Translation translation;
    while (xml.readNextStartElement())
    {
        if (xml.name() == "translation")
        {
            translation.finished = !xml.attributes().hasAttribute("type");
            translation.text = xml.readElementText();
        }
        else
        {
            (xml.name() == "source" ? source : comment) = xml.readElementText();
        }
    }
    catalogue[context + '\n' + source + '\n' + comment] = translation;
}

void ReadContext(QXmlStreamReader& xml, Catalogue& catalogue)
{
    QString context;
    while (xml.readNextStartElement())
    {
        if (xml.name() == "name")
        {
            context = xml.readElementText();
        }
        else
        {
            ReadMessage(xml, context, catalogue);
        }
    }
}

Catalogue ReadCatalogue(const QString& locale)
{
    QFile file(QString(FRONTEND_SOURCES "/resources/locales/%1/InstallerGUI_%1.ts").arg(locale));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << file.fileName().toStdString();
    QXmlStreamReader xml(&file);
    Catalogue catalogue;
    EXPECT_TRUE(xml.readNextStartElement());
    while (xml.readNextStartElement())
    {
        ReadContext(xml, catalogue);
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    return catalogue;
}

// Placeholders, targets of links, and marks of mnemonics.
QStringList PlaceholdersOf(const QString& text)
{
    QStringList placeholders;
    const QRegularExpression place("%\\d|href=\"\\w+\"|&");
    for (auto matches = place.globalMatch(text); matches.hasNext();)
    {
        placeholders << matches.next().captured();
    }
    placeholders.sort();
    return placeholders;
}

class TranslationsTest : public testing::TestWithParam<std::string>
{
};

TEST_P(TranslationsTest, EveryTextIsTranslatedWithItsPlaceholders)
{
    const Catalogue english = ReadCatalogue("en_US");
    const Catalogue catalogue = ReadCatalogue(QString::fromStdString(GetParam()));
    EXPECT_GE(english.size(), 16u);
    EXPECT_EQ(catalogue.size(), english.size());
    for (const auto& [key, translation] : catalogue)
    {
        EXPECT_EQ(english.count(key), 1u) << key.toStdString();
        EXPECT_TRUE(translation.finished) << key.toStdString();
        EXPECT_FALSE(translation.text.trimmed().isEmpty()) << key.toStdString();
        EXPECT_EQ(PlaceholdersOf(translation.text), PlaceholdersOf(key)) << key.toStdString();
    }
}

TEST_P(TranslationsTest, TheCompiledFileHoldsTheSameTexts)
{
    QTranslator translator;
    ASSERT_TRUE(translator.load(QString(FRONTEND_FOLDER "/resources/locales/%1/InstallerGUI_%1.qm")
                                    .arg(QString::fromStdString(GetParam()))));
    for (const auto& [key, translation] : ReadCatalogue(QString::fromStdString(GetParam())))
    {
        const QStringList parts = key.split('\n');
        const QString text = translator.translate(parts[0].toUtf8().constData(),
            parts[1].toUtf8().constData(), parts[2].toUtf8().constData());
        EXPECT_EQ(text, translation.text) << key.toStdString();
    }
}

// "context, source" of each text that a source file of the windows translates.
QStringList TextsIn(const QString& source)
{
    static const QRegularExpression call(
        "(WizardText|UninstallText|QT_TRANSLATE_NOOP\\(\"Wizard\",|translate\\(\"Wizard\",|"
        "translate\\(\"Uninstaller\",)\\(?\\s*((?:\"(?:[^\"\\\\]|\\\\.)*\"\\s*)+)");
    static const QRegularExpression between("\"\\s+\"");
    QStringList texts;
    for (auto matches = call.globalMatch(source); matches.hasNext();)
    {
        const QRegularExpressionMatch match = matches.next();
        const QString context = match.captured(1).contains("Uninstall") ? "Uninstaller" : "Wizard";
        QString text = match.captured(2).trimmed().remove(between);
        text = text.mid(1, text.size() - 2).replace("\\\"", "\"");
        texts << context + '\n' + text + '\n';
    }
    return texts;
}

TEST(TranslationSourcesTest, EveryTextOfTheWindowsIsInTheCatalogue)
{
    const Catalogue english = ReadCatalogue("en_US");
    int count = 0;
    for (const char* folder : {FRONTEND_SOURCES, FRONTEND_SOURCES "/wizard"})
    {
        for (const QFileInfo& file : QDir(folder).entryInfoList({"*.cpp"}))
        {
            for (const QString& key : TextsIn(QString::fromUtf8(ReadFile(file.filePath()))))
            {
                EXPECT_EQ(english.count(key), 1u)
                    << file.fileName().toStdString() << key.toStdString();
                ++count;
            }
        }
    }
    EXPECT_GE(count, 67);
}

std::vector<std::string> SupportedLocales()
{
    std::vector<std::string> locales;
    for (const QString& locale : ProductProfile::SupportedLocales())
    {
        locales.push_back(locale.toStdString());
    }
    return locales;
}

INSTANTIATE_TEST_SUITE_P(Locales, TranslationsTest, testing::ValuesIn(SupportedLocales()),
    [](const auto& row) { return row.param; });

TEST(TranslationFoldersTest, ThereIsOneForEachSupportedLanguage)
{
    QStringList expected = ProductProfile::SupportedLocales();
    expected.sort();
    const QDir folder(FRONTEND_SOURCES "/resources/locales");
    EXPECT_EQ(folder.entryList(QDir::AllEntries | QDir::NoDotAndDotDot, QDir::Name), expected);
}

} // namespace
} // namespace Vorlan
