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

/// A line of text in the painter's font.
class LaidOutText
{
public:
    LaidOutText(const QString &text, QPainter &painter, bool rightToLeft)
        : m_painter(painter)
        , m_layout(text, painter.font(), painter.device())
    {
        QTextOption option;
        option.setTextDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
        m_layout.setTextOption(option);
        layOut();
    }

    QTextLine line() const { return m_layout.lineAt(0); }

    /// Puts blanks of this width, all together, in place of letters.
    void leaveGap(int from, int count, qreal width)
    {
        const qreal blank = QFontMetricsF(m_painter.font(), m_painter.device()).horizontalAdvance(u' ');
        QTextLayout::FormatRange gap{from, count, {}};
        gap.format.setFontLetterSpacing(100 * width / (count * blank));
        m_layout.setText(m_layout.text().replace(from, count, QString(count, u' ')));
        m_layout.setFormats(m_layout.formats() << gap);
        layOut();
    }

    void draw(QPointF baseline) const { line().draw(&m_painter, baseline - QPointF(0, line().ascent())); }

private:
    void layOut()
    {
        m_layout.beginLayout();
        m_layout.createLine();
        m_layout.endLayout();
    }

    QPainter &m_painter;
    QTextLayout m_layout;
};

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
    const LaidOutText whole(text, m_painter, rightToLeft);
    LaidOutText others(text, m_painter, rightToLeft);
    QTextBoundaryFinder letters(QTextBoundaryFinder::Grapheme, text);
    for (int from = 0, to; (to = int(letters.toNextBoundary())) >= 0; from = to) {
        const QList<QGlyphRun> runs = whole.line().glyphRuns(from, to - from);
        if (std::none_of(runs.begin(), runs.end(), drawsPictures))
            continue;
        const qreal begin = whole.line().cursorToX(from), end = whole.line().cursorToX(to);
        drawAsPicture(m_painter, text.mid(from, to - from), baseline.x() + std::min(begin, end), baseline.y(),
                      std::abs(end - begin));
        others.leaveGap(from, to - from, std::abs(end - begin));
    }
    others.draw(baseline);
}

QString PaintedSurface::shownText(const QString &text)
{
    return text.normalized(QString::NormalizationForm_C);
}
