#include "quiz/MarkArea.h"

#include "resources/Pictures.h"

MarkArea::MarkArea(QWidget *parent)
    : QWidget(parent)
{
    setFixedSize(Side, Side);
}

void MarkArea::setMark(int pictureNumber)
{
    m_mark = pictureNumber;
    update();
}

void MarkArea::clear()
{
    setMark(0);
}

void MarkArea::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    picture(m_mark).paint(&painter, rect()); // 0 has none
}
