#include "widgets/MultiLayerBackgroundFrame.h"

#include "base/ProductProfile.h"
#include "widgets/Picture.h"

#include <QFile>
#include <QPainter>

namespace Vorlan
{
namespace
{

constexpr QSize pictureSize{670, 302};
constexpr QPointF logoPosition{20.0, 10.0};

QString FallbackName()
{
    return ProductProfile::defaultLocale + QLatin1String(".png");
}

} // namespace

MultiLayerBackgroundFrame::MultiLayerBackgroundFrame(const QStringList& folders, QWidget* parent)
    : QFrame(parent),
      baseFolder(folders.value(0)),
      overlayFolders(folders.mid(1)),
      backPicture(pictureSize),
      logo(LoadPicture(QString(":/Icons/%1/logo.png").arg(ProductProfile::brandName)))
{
}

MultiLayerBackgroundFrame::MultiLayerBackgroundFrame(const QString& folder, QWidget* parent)
    : MultiLayerBackgroundFrame(QStringList(folder), parent)
{
}

QString MultiLayerBackgroundFrame::GetLocalizedImage(
    const QString& folder, const QString& locale, const QString& fallbackName)
{
    if (folder.isEmpty())
        return {};
    const QString localized = folder + locale + ".png";
    return QFile::exists(localized) ? localized : folder + fallbackName;
}

QPixmap MultiLayerBackgroundFrame::LoadBackground(const QString& locale)
{
    const QString path = GetLocalizedImage(baseFolder, locale, FallbackName());
    QPixmap picture = path.isEmpty() ? QPixmap() : LoadPicture(path);
    if (picture.isNull())
    {
        picture = QPixmap(pictureSize);
        picture.fill(Qt::white);
    }
    return picture;
}

void MultiLayerBackgroundFrame::SetGraphicsLocale(const QString& locale)
{
    backPicture = LoadBackground(locale);
    QPainter painter(&backPicture);
    for (const QString& folder : overlayFolders)
        painter.drawPixmap(0, 0, LoadPicture(GetLocalizedImage(folder, locale, FallbackName())));
    painter.drawPixmap(logoPosition, logo);
}

QPixmap MultiLayerBackgroundFrame::GetBackPixmap() const
{
    return backPicture;
}

void MultiLayerBackgroundFrame::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.fillRect(rect(), Qt::white);
    painter.drawPixmap(0, 0, backPicture);
    painter.end();
    QFrame::paintEvent(event);
}

} // namespace Vorlan
