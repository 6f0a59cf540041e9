#pragma once

#include <QPixmap>
#include <QSize>
#include <QString>

namespace Vorlan
{

// The picture of this file or resource. Where a screen shows more than one pixel per unit of length
// and the same picture lies beside it for twice the resolution ("name@2x.png"), it is that one. A
// picture that is missing or damaged is an empty one.
QPixmap LoadPicture(const QString& path);

// How large the picture is on the screen, in units that do not depend on the screen's resolution.
QSize PictureSize(const QPixmap& picture);

} // namespace Vorlan
