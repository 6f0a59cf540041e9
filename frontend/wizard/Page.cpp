#include "wizard/Page.h"

#include "wizard/ElidedLabel.h"

#include <QVBoxLayout>

namespace Vorlan::FrontEnd
{

Page::Page(const char* name, const QStringList& pictureLayers, Shape pictureShape)
    : layers(pictureLayers), shape(pictureShape), body(new QVBoxLayout(this))
{
    setObjectName(name);
    body->setContentsMargins(40, 22, 40, 8);
    body->setSpacing(8);
}

QLabel* Page::AddHeading()
{
    auto* heading = new QLabel(this);
    heading->setObjectName("heading");
    heading->setWordWrap(true);
    body->addWidget(heading);
    return heading;
}

QLabel* Page::AddText(const char* name)
{
    auto* text = new QLabel(this);
    text->setObjectName(name);
    text->setWordWrap(true);
    text->setTextFormat(Qt::PlainText);
    body->addWidget(text);
    return text;
}

QLabel* Page::AddLine(const char* name)
{
    auto* line = new ElidedLabel(this);
    line->setObjectName(name);
    body->addWidget(line);
    return line;
}

} // namespace Vorlan::FrontEnd
