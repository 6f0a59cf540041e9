#include "wizard/Page.h"

#include "wizard/ElidedLabel.h"

#include <QScrollArea>
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

void Page::MakeScrollable()
{
    auto* area = new QScrollArea(this);
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setFocusPolicy(Qt::NoFocus);
    auto* content = new QWidget(area);
    content->setObjectName("scrolled");
    auto* column = new QVBoxLayout(content);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(body->spacing());
    area->setWidget(content);
    body->addWidget(area, 1);
    body = column;
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
