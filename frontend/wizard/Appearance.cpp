#include "wizard/Appearance.h"

#include "wizard/Texts.h"

#include <QApplication>
#include <QFile>
#include <QIcon>
#include <QPalette>
#include <QStyle>
#include <QStyleFactory>

namespace Vorlan::FrontEnd
{

void EnableHighDpi()
{
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
        Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
}

void ApplyStyle(QApplication& application)
{
    QApplication::setApplicationName(ProductTitle());
    QApplication::setWindowIcon(QIcon(":/Icons/quill.png"));
    QApplication::setStyle(QStyleFactory::create("Fusion"));
    QPalette palette = QApplication::style()->standardPalette();
    palette.setColor(QPalette::Link, QColor("#2f6aa8"));
    palette.setColor(QPalette::Highlight, QColor("#1f3a5f"));
    QApplication::setPalette(palette);
    QFile sheet(":/Styles/wizard.qss");
    sheet.open(QIODevice::ReadOnly);
    application.setStyleSheet(QString::fromUtf8(sheet.readAll()));
}

} // namespace Vorlan::FrontEnd
