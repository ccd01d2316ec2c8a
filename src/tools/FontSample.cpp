#include "tools/FontSample.h"

#include "widgets/grid/FlexGridColours.h"

#include <QFontMetricsF>

namespace {

constexpr int LeftMargin = 5;

} // namespace

FontSample::FontSample(QWidget *parent)
    : QFrame(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

QSize FontSample::sizeHint() const
{
    return {fontMetrics().averageCharWidth() * 44, fontMetrics().height() * 5};
}

void FontSample::setText(const QString &text)
{
    m_text = text;
    setAccessibleDescription(text);
    update();
}

void FontSample::setSampleFont(const QFont &font)
{
    m_font = font;
    update();
}

void FontSample::setColors(int foreColor, int backColor)
{
    m_foreColor = foreColor;
    m_backColor = backColor;
    update();
}

void FontSample::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    painter.setClipRect(contentsRect());
    DrawSample(painter);
    painter.end();
    QFrame::paintEvent(event);
}

void FontSample::DrawSample(QPainter &painter) const
{
    const QColor ground = FlexGridColours::ground(m_backColor, palette());
    painter.fillRect(contentsRect(), ground);
    painter.setPen(FlexGridColours::text(m_foreColor, palette(), ground));
    painter.setFont(m_font);
    const QFontMetricsF metrics(m_font, this);
    const double top = (height() - metrics.height()) / 2;
    painter.drawText(QPointF(LeftMargin, top + metrics.ascent()), m_text);
}
