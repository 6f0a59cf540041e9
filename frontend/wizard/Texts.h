#pragma once

#include <QString>

namespace Vorlan::FrontEnd
{

// A text of the windows in the language that is installed; English where there is no translation.
QString WizardText(const char* text);

// The same for what only an uninstallation says.
QString UninstallText(const char* text);

// What the windows call the product.
QString ProductTitle();

// The language's name in that language, as its speakers look for it.
QString LanguageName(const QString& locale);

// What a stage of the run does, for a person; the name of the stage where it is not known.
QString StageText(const QString& stageId);

// A number of bytes as a person reads it, in the given language.
QString SizeText(qint64 bytes, const QString& locale);

// A path that keeps its order of reading inside any other text, whatever letters it holds.
QString PathText(const QString& path);

} // namespace Vorlan::FrontEnd
