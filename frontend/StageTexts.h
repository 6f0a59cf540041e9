#pragma once

#include <QString>

namespace Vorlan::FrontEnd
{

// What a stage of an installation does, in English, for the translations to find; null for an
// unknown stage.
const char* StageText(const QString& stageId);

} // namespace Vorlan::FrontEnd
