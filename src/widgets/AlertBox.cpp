#include "widgets/AlertBox.h"

#include <QMessageBox>

namespace Vorlan
{

int AlertBox::error(QWidget* parent, const QString& text, bool retry)
{
    return QMessageBox::critical(parent, QString(), text,
        retry ? QMessageBox::Retry | QMessageBox::Cancel : QMessageBox::Ok);
}

} // namespace Vorlan
