#include "base/Localization.h"

#include <QTranslator>

namespace Vorlan
{

QString TranslateForLocale(const QString& locale, const std::string& text)
{
    QTranslator translator;
    translator.load("resources/locales/" + locale + "/InstallerGUI_" + locale + ".qm");
    return translator.translate("Vorlan::InstallerMediator", text.c_str());
}

} // namespace Vorlan
