#include "quiz/ProductPicture.h"

#include "resources/ResourceFiles.h"

ProductPicture::ProductPicture(QWidget *parent)
    : QWidget(parent)
    , m_drawing(ResourceFiles::contents(ResourceFiles::ProductPicture))
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void ProductPicture::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    m_drawing.render(&painter, QRectF(rect()));
}
