#pragma once

#include <QString>

namespace Vorlan::FrontEnd
{

// A text of the windows, translated by the installed translator; English without a translation.
QString WizardText(const char* text);

// The same for texts of the uninstallation only.
QString UninstallText(const char* text);

// The product's name in the windows.
QString ProductTitle();

// The native name of the language.
QString LanguageName(const QString& locale);

// A number of bytes with a unit, formatted for the given language.
QString SizeText(qint64 bytes, const QString& locale);

// The path, in directional isolates where its direction could depend on the text around it.
QString PathText(const QString& path);

} // namespace Vorlan::FrontEnd
