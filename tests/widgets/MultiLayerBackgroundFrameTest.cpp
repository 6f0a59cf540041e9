#include "widgets/MultiLayerBackgroundFrame.h"
#include "support/Machine.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QImage>

using namespace Vorlan;

namespace
{

class Frame : public MultiLayerBackgroundFrame
{
public:
    using MultiLayerBackgroundFrame::GetBackPixmap;
    using MultiLayerBackgroundFrame::GetLocalizedImage;
    using MultiLayerBackgroundFrame::MultiLayerBackgroundFrame;
    using MultiLayerBackgroundFrame::SetGraphicsLocale;
};

class MultiLayerBackgroundFrameTest : public testing::Test
{
protected:
    // A picture of one colour; only its right half where it lies over others.
    QString AddPicture(const QString& name, const QColor& color, bool isHalf = false) const
    {
        QImage image(670, 302, QImage::Format_ARGB32);
        image.fill(isHalf ? QColor(Qt::transparent) : color);
        for (int y = 0; isHalf && y < image.height(); ++y)
            for (int x = 335; x < image.width(); ++x)
                image.setPixelColor(x, y, color);
        const QString path = machine.Path(name);
        EXPECT_TRUE(QDir().mkpath(QFileInfo(path).path()));
        EXPECT_TRUE(image.save(path));
        return path;
    }

    // Colours at the left and the right of what the frame composes for a locale.
    static std::pair<QColor, QColor> Composed(Frame& frame, const QString& locale)
    {
        frame.SetGraphicsLocale(locale);
        const QImage image = frame.GetBackPixmap().toImage();
        EXPECT_EQ(image.size(), QSize(670, 302));
        return {image.pixelColor(5, 295), image.pixelColor(665, 295)};
    }

    Machine machine;
    const std::pair<QColor, QColor> white{Qt::white, Qt::white};
};

TEST_F(MultiLayerBackgroundFrameTest, ComposesTheLayersOfALanguageAnew)
{
    AddPicture("base/en_US.png", Qt::blue);
    AddPicture("base/de_DE.png", Qt::green);
    AddPicture("over/en_US.png", Qt::red, true);
    Frame frame(QStringList{machine.Path("base/"), machine.Path("over/")}, nullptr);
    EXPECT_EQ(Composed(frame, "en_US"), (std::pair<QColor, QColor>(Qt::blue, Qt::red)));
    EXPECT_EQ(Composed(frame, "de_DE"), (std::pair<QColor, QColor>(Qt::green, Qt::red)));
    EXPECT_EQ(Composed(frame, "xx_XX"), (std::pair<QColor, QColor>(Qt::blue, Qt::red)));

    Frame single(machine.Path("base/"), nullptr);
    EXPECT_EQ(Composed(single, "de_DE"), (std::pair<QColor, QColor>(Qt::green, Qt::green)));
}

TEST_F(MultiLayerBackgroundFrameTest, AMissingOrDamagedPictureIsDrawnAsNothing)
{
    Frame nothing(QStringList(), nullptr);
    EXPECT_EQ(Composed(nothing, "en_US"), white);
    Frame missing(QStringList{machine.Path("missing/"), machine.Path("none/")}, nullptr);
    EXPECT_EQ(Composed(missing, "en_US"), white);

    const QString picture = AddPicture("base/en_US.png", Qt::blue);
    AddPicture("over/en_US.png", Qt::red);
    WriteFile(machine.Path("over/de_DE.png"), ReadFile(picture).left(60));
    Frame damaged(QStringList{machine.Path("base/"), machine.Path("over/")}, nullptr);
    EXPECT_EQ(Composed(damaged, "de_DE"), (std::pair<QColor, QColor>(Qt::blue, Qt::blue)));
}

TEST_F(MultiLayerBackgroundFrameTest, FindsThePictureOfALanguage)
{
    const QString german = AddPicture("base/de_DE.png", Qt::green);
    const QString folder = machine.Path("base/");
    Frame frame(QStringList(), nullptr);
    EXPECT_EQ(frame.GetLocalizedImage("", "de_DE", "en_US.png"), "");
    EXPECT_EQ(frame.GetLocalizedImage(folder, "de_DE", "en_US.png"), german);
    EXPECT_EQ(frame.GetLocalizedImage(folder, "fr_FR", "none.png"), folder + "none.png");
}

TEST_F(MultiLayerBackgroundFrameTest, PaintsThePictureAtTheTopLeftOnWhite)
{
    AddPicture("base/en_US.png", Qt::blue);
    Frame frame(machine.Path("base/"), nullptr);
    frame.SetGraphicsLocale("en_US");
    for (const QSize& size : {QSize(700, 330), QSize(200, 100)})
    {
        frame.resize(size);
        const QImage image = frame.grab().toImage();
        EXPECT_EQ(image.pixelColor(199, 99), QColor(Qt::blue));
        if (size.width() > 670)
        {
            EXPECT_EQ(image.pixelColor(669, 301), QColor(Qt::blue));
            EXPECT_EQ(image.pixelColor(670, 301), QColor(Qt::white));
            EXPECT_EQ(image.pixelColor(669, 302), QColor(Qt::white));
        }
    }
}

TEST_F(MultiLayerBackgroundFrameTest, TheLayerSetsNameTheirFolders)
{
    EXPECT_EQ(LayerSets::installerWithTaglines,
        QStringList({":/Installer/Backgrounds/", ":/Installer/Taglines/"}));
    EXPECT_EQ(LayerSets::installProgress, QStringList(":/Installer/InstallProgress/"));
    EXPECT_EQ(LayerSets::uninstallStart, QStringList(":/Installer/UninstallStart/"));
    EXPECT_EQ(LayerSets::uninstallProgress, QStringList(":/Installer/UninstallProgress/"));
}

} // namespace
