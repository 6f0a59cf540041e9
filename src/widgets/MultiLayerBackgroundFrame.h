#pragma once

#include "base/Export.h"

#include <QFrame>
#include <QPixmap>
#include <QStringList>

namespace Vorlan
{

/// The pictures of the front ends' pages: folders of resources, the background first. A folder's
/// text ends with "/"; it holds a picture for each language, "<locale>.png", "en_US.png" for all
/// others.
namespace LayerSets
{

/// First page of an installation, with a tagline over the picture.
inline const QStringList installerWithTaglines{":/Installer/Backgrounds/", ":/Installer/Taglines/"};
inline const QStringList installProgress{":/Installer/InstallProgress/"};     ///< while it runs
inline const QStringList uninstallStart{":/Installer/UninstallStart/"};       ///< before one
inline const QStringList uninstallProgress{":/Installer/UninstallProgress/"}; ///< while it runs

} // namespace LayerSets

/// Shows a picture that is composed of layers in one language: a background, what lies over it, and
/// the maker's logo (":/Icons/<brand>/logo.png"). 670 by 302 pixels, drawn from the upper left
/// corner; "name@2x.png" beside a picture is taken on screens with two pixels per unit. A frame of
/// a front end derives from it and calls SetGraphicsLocale before it is shown. To be used on the
/// application's thread.
class INSTALLER_EXPORT MultiLayerBackgroundFrame : public QFrame
{
public:
    /// Takes the folders of the layers, the background first; nothing is loaded but the logo.
    MultiLayerBackgroundFrame(const QStringList& folders, QWidget* parent);
    /// The same for a background alone.
    MultiLayerBackgroundFrame(const QString& folder, QWidget* parent);

protected:
    /// Composes the picture anew. A layer that is missing or damaged is left out; white stands for
    /// a background that is.
    void SetGraphicsLocale(const QString& locale);

    /// The picture of a folder for a language, or the one with the fallback's name, which may be
    /// missing; empty for no folder.
    QString GetLocalizedImage(
        const QString& folder, const QString& locale, const QString& fallbackName);

    /// The picture as it was composed last.
    QPixmap GetBackPixmap() const;

    /// Draws the picture on white.
    void paintEvent(QPaintEvent* event) override;

private:
    QPixmap LoadBackground(const QString& locale);

    QString baseFolder;
    QStringList overlayFolders;
    QPixmap backPicture;
    QPixmap logo;
};

} // namespace Vorlan
