#include "StageTexts.h"

#include <QMap>
#include <QtGlobal>

namespace Vorlan::FrontEnd
{

const char* StageText(const QString& stageId)
{
    static const QMap<QString, const char*> texts{
        {"REMOVE_PREVIOUS_VERSION",
            QT_TRANSLATE_NOOP("Wizard", "Removing the previous version...")},
        {"EXTRACT_FILES", QT_TRANSLATE_NOOP("Wizard", "Placing the files...")},
        {"UPDATE_REGISTRY", QT_TRANSLATE_NOOP("Wizard", "Registering the program...")},
        {"CHECK_ACCELERATIONS", QT_TRANSLATE_NOOP("Wizard", "Checking hardware acceleration...")},
        {"DOWNLOAD_ADDITIONAL_DATA", QT_TRANSLATE_NOOP("Wizard", "Downloading additional data...")},
        {"PERFORM_AFTER_INSTALL_ACTION", QT_TRANSLATE_NOOP("Wizard", "Finishing...")},
    };
    return texts.value(stageId, nullptr);
}

} // namespace Vorlan::FrontEnd
