#include "print/PaintedSurface.h"

#include "platform/Twips.h"

#include <QFontMetricsF>
#include <QGlyphRun>
#include <QImage>
#include <QPaintEngine>
#include <QPainter>
#include <QRawFont>
#include <QTextBoundaryFinder>
#include <QTextLayout>

#include <algorithm>

namespace {

constexpr int PointsPerInch = 72;
constexpr int LineWidth = 10;                ///< twips
constexpr qreal PictureTwips = 1440 / 600.0; ///< size of a picture's pixel
constexpr char16_t FirstPicture = 0x2000;    ///< no letter before it is drawn as a picture

bool mayHoldPictures(const QString &text)
{
    return std::any_of(text.begin(), text.end(), [](QChar c) { return c >= FirstPicture; });
}

/// Whether the font draws coloured pictures.
bool drawsPictures(const QGlyphRun &run)
{
    const QRawFont font = run.rawFont();
    return !font.fontTable("CBLC").isEmpty() || !font.fontTable("COLR").isEmpty();
}

/// Draws text, its baseline at y, as a picture that is as high as a line.
void drawAsPicture(QPainter &painter, const QString &text, qreal x, qreal y, qreal width)
{
    const QFontMetricsF metrics(painter.font(), painter.device());
    const QRectF place(x, y - metrics.ascent(), width, metrics.height());
    QImage picture((place.size() / PictureTwips).toSize(), QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter picturePainter(&picture);
    picturePainter.setRenderHint(QPainter::SmoothPixmapTransform);
    picturePainter.scale(1 / PictureTwips, 1 / PictureTwips);
    picturePainter.setFont(painter.font());
    picturePainter.setPen(painter.pen());
    picturePainter.drawText(QPointF(0, metrics.ascent()), text);
    picturePainter.end();
    painter.drawImage(place, picture);
}

QTextLine layOut(QTextLayout &layout)
{
    layout.beginLayout();
    const QTextLine line = layout.createLine();
    layout.endLayout();
    return line;
}

/// The format of blanks that take this width all together.
QTextLayout::FormatRange gapOf(int from, int count, qreal width, const QFontMetricsF &metrics)
{
    QTextLayout::FormatRange gap{from, count, {}};
    gap.format.setFontLetterSpacing(100 * width / (count * metrics.horizontalAdvance(u' '))); // percent
    return gap;
}

} // namespace

PaintedSurface::PaintedSurface(QPainter &painter)
    : m_painter(painter)
{
}

QFont PaintedSurface::fontInTwips(const PrintFont &font)
{
    QFont result(font.Name);
    result.setPixelSize(font.Size * Twips::PerInch / PointsPerInch);
    result.setBold(font.Bold);
    result.setItalic(font.Italic);
    result.setHintingPreference(QFont::PreferNoHinting);
    return result;
}

void PaintedSurface::setFont(const PrintFont &font)
{
    if (font == m_font)
        return;
    m_font = font;
    m_painter.setFont(fontInTwips(font));
    m_ascent = QFontMetricsF(m_painter.font(), m_painter.device()).ascent();
}

void PaintedSurface::setForeColor(QRgb color)
{
    m_painter.setPen(QPen(QColor::fromRgb(color), LineWidth));
}

void PaintedSurface::drawText(int x, int y, const QString &text, bool rightToLeft)
{
    const QString shown = shownText(text);
    m_painter.setLayoutDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
    const qreal left = rightToLeft ? x - m_painter.fontMetrics().horizontalAdvance(shown) : x;
    const QPointF baseline(left, y + m_ascent);
    if (m_painter.paintEngine()->type() != QPaintEngine::Pdf || !mayHoldPictures(shown))
        m_painter.drawText(baseline, shown);
    else
        drawWithPictures(baseline, shown, rightToLeft);
}

void PaintedSurface::drawLine(int x1, int y1, int x2, int y2)
{
    m_painter.drawLine(x1, y1, x2, y2);
}

/// A PDF file knows glyphs by their outlines only; those without any are put over gaps. They do not get into the file
/// as glyphs: once the toolkit has embedded their font, the whole program measures it wrongly.
void PaintedSurface::drawWithPictures(QPointF baseline, const QString &text, bool rightToLeft)
{
    QTextLayout layout(text, m_painter.font(), m_painter.device());
    QTextOption option;
    option.setTextDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
    layout.setTextOption(option);
    QTextLine line = layOut(layout);
    const QFontMetricsF metrics(m_painter.font(), m_painter.device());
    QString others = text;
    QList<QTextLayout::FormatRange> gaps;
    QTextBoundaryFinder letters(QTextBoundaryFinder::Grapheme, text);
    for (int from = 0, to; (to = int(letters.toNextBoundary())) >= 0; from = to) {
        const int count = to - from;
        const QList<QGlyphRun> runs = line.glyphRuns(from, count);
        if (std::none_of(runs.begin(), runs.end(), drawsPictures))
            continue;
        const qreal begin = line.cursorToX(from);
        const qreal end = line.cursorToX(to);
        const qreal width = std::abs(end - begin);
        drawAsPicture(m_painter, text.mid(from, count), baseline.x() + std::min(begin, end), baseline.y(), width);
        others.replace(from, count, QString(count, u' '));
        gaps += gapOf(from, count, width, metrics);
    }
    if (gaps.isEmpty()) {
        m_painter.drawText(baseline, text);
        return;
    }
    layout.setText(others);
    layout.setFormats(gaps);
    line = layOut(layout);
    line.draw(&m_painter, baseline - QPointF(0, line.ascent()));
}

QString PaintedSurface::shownText(const QString &text)
{
    return text.normalized(QString::NormalizationForm_C);
}
