#pragma once

#include <QString>

#include <string>

namespace Vorlan
{

// The translation of a text into one language, whatever language the program itself runs in. Read
// from "resources/locales/<locale>/InstallerGUI_<locale>.qm" below the current folder; empty when
// that file is missing or does not hold the text.
QString TranslateForLocale(const QString& locale, const std::string& text);

} // namespace Vorlan
