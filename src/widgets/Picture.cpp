#include "widgets/Picture.h"

#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>

namespace Vorlan
{

QPixmap LoadPicture(const QString& path)
{
    if (qGuiApp->devicePixelRatio() > 1.0)
    {
        const QString suffix = '.' + QFileInfo(path).suffix();
        const QString finer = path.chopped(suffix.size()) + "@2x" + suffix;
        if (QFile::exists(finer))
            return QPixmap(finer); // Qt takes the resolution from the name
    }
    return QPixmap(path);
}

QSize PictureSize(const QPixmap& picture)
{
    return picture.size() / picture.devicePixelRatio();
}

} // namespace Vorlan
