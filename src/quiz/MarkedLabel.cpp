#include "quiz/MarkedLabel.h"

#include "quiz/QuizColours.h"
#include "services/FormTexts.h"
#include "services/desktop/Contrast.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace {

const QChar VisibleBlank(0x2423);
constexpr double TypeStep = 0.9;
constexpr qsizetype MostShown = 2000; ///< more cannot be on two lines

constexpr double BoldShift = 0.6; ///< pixels

/// A line through or below letters is as thick as this share of their height.
constexpr double LineShare = 0.08;

} // namespace

void MarkedLabel::setFullText(const QString &text)
{
    m_marked = false;
    m_lines = 1;
    updateGeometry();
    FittedLabel::setFullText(text);
}

void MarkedLabel::setMarkedText(const QString &text, std::vector<MarkedPart> parts, const QString &note)
{
    m_marked = true;
    m_parts = std::move(parts);
    m_note = note;
    FittedLabel::setFullText(text);
    update();
}

QSize MarkedLabel::sizeHint() const
{
    QSize size = FittedLabel::sizeHint();
    size.rheight() += (m_lines - 1) * QFontMetrics(scaledFont(preferredType())).height();
    return size;
}

QString MarkedLabel::visibleText() const
{
    QString text = fullText();
    const auto show = [&text](qsizetype place) {
        if (text[place].isSpace())
            text[place] = VisibleBlank;
    };
    for (qsizetype i = 0; i < text.size() && text[i].isSpace(); ++i)
        show(i);
    for (qsizetype i = text.size() - 1; i >= 0 && text[i].isSpace(); --i)
        show(i);
    for (const MarkedPart &part : m_parts) {
        const bool blanks = QStringView(text).mid(part.start, part.length).trimmed().isEmpty();
        for (qsizetype i = part.start; blanks && i < part.start + part.length; ++i)
            show(i);
    }
    return text;
}

void MarkedLabel::layOut(const QString &text, const QFont &type)
{
    QTextOption option(alignment() & Qt::AlignRight ? Qt::AlignRight | Qt::AlignAbsolute
                                                    : Qt::AlignLeft | Qt::AlignAbsolute);
    option.setTextDirection(layoutDirection());
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    m_layout.clearLayout();
    m_layout.setText(text);
    m_layout.setFont(type);
    m_layout.setTextOption(option);
    m_layout.beginLayout();
    double top = 0;
    for (QTextLine line = m_layout.createLine(); line.isValid(); line = m_layout.createLine()) {
        line.setLineWidth(usableWidth());
        line.setPosition({0, top});
        top += line.height();
    }
    m_layout.endLayout();
}

bool MarkedLabel::cut(const QString &text, const QFont &type)
{
    if (m_layout.lineCount() <= MostLines)
        return false;
    const qsizetype last = m_layout.lineAt(MostLines - 1).textStart();
    layOut(text.left(last) + fittedText(text.mid(last), type, usableWidth()), type);
    return true;
}

void MarkedLabel::fit()
{
    if (!m_marked) {
        FittedLabel::fit();
        return;
    }
    QString text = visibleText();
    m_noteStart = text.size();
    if (!m_note.isEmpty())
        text += QStringLiteral("  ") + m_note;
    const bool tooLong = text.size() > MostShown;
    text.truncate(MostShown);
    double factor = preferredType();
    layOut(text, scaledFont(factor));
    while (m_layout.lineCount() > MostLines && factor > smallestType()) {
        factor = std::max(smallestType(), factor * TypeStep);
        layOut(text, scaledFont(factor));
    }
    m_cut = cut(text, scaledFont(factor)) || tooLong;
    showFitted(fullText(), scaledFont(factor));
    if (m_cut)
        setToolTip(FormTexts::plainToolTip(m_note.isEmpty() ? fullText() : fullText() + u'\n' + m_note));
    if (std::exchange(m_lines, std::max(1, m_layout.lineCount())) != m_lines)
        updateGeometry();
}

QColor MarkedLabel::colourOf(Mark mark) const
{
    return Contrast::readable(mark == Mark::Right ? QuizColours::Right : QuizColours::Wrong, palette());
}

QList<QTextLayout::FormatRange> MarkedLabel::colours() const
{
    QList<QTextLayout::FormatRange> ranges;
    const auto add = [&ranges](qsizetype start, qsizetype length, const QColor &colour) {
        QTextCharFormat format;
        format.setForeground(colour);
        if (length > 0)
            ranges.push_back({int(start), int(length), format});
    };
    for (const MarkedPart &part : m_parts)
        add(part.start, part.length, colourOf(part.mark));
    const QColor muted = palette().color(QPalette::PlaceholderText);
    add(m_noteStart, m_layout.text().size() - m_noteStart, Contrast::readable(muted, palette()));
    return ranges;
}

std::vector<QRectF> MarkedLabel::places(const MarkedPart &part) const
{
    std::vector<QRectF> found;
    const int end = int(std::min(part.start + part.length, m_layout.text().size()));
    for (int i = int(part.start); i < end; i = m_layout.nextCursorPosition(i)) {
        const QTextLine line = m_layout.lineForTextPosition(i);
        const double from = line.cursorToX(i, QTextLine::Leading);
        const double to = line.cursorToX(i, QTextLine::Trailing);
        const QRectF letter(std::min(from, to), line.y(), std::abs(to - from), line.height());
        const bool goesOn = !found.empty() && found.back().top() == letter.top() &&
                            found.back().adjusted(-1, 0, 1, 0).intersects(letter);
        if (goesOn)
            found.back() |= letter;
        else
            found.push_back(letter);
    }
    return found;
}

/// Letters that are marked are drawn twice, a little apart: that makes them bold without changing their shape.
void MarkedLabel::drawPart(QPainter &painter, const MarkedPart &part, QPointF origin) const
{
    const QFontMetricsF metrics(m_layout.font());
    const double thickness = std::max(2.0, metrics.height() * LineShare);
    for (const QRectF &place : places(part)) {
        const QRectF at = place.translated(origin);
        painter.save();
        painter.setClipRect(at);
        m_layout.draw(&painter, origin + QPointF(BoldShift, 0), colours());
        painter.restore();
        const double middle = part.mark == Mark::Surplus ? metrics.ascent() - metrics.xHeight() / 2
                                                         : metrics.ascent() + metrics.descent() * 0.7;
        painter.fillRect(QRectF(at.left(), at.top() + middle - thickness / 2, at.width(), thickness),
                         colourOf(part.mark));
    }
}

void MarkedLabel::drawGap(QPainter &painter, const MarkedPart &part, QPointF origin) const
{
    const int place = int(part.start);
    const QTextLine line = m_layout.lineForTextPosition(place);
    if (!line.isValid() || (m_cut && part.start >= m_layout.text().size()))
        return;
    const double side = line.descent() * 0.9;
    const double middle = std::clamp(line.cursorToX(place), side, std::max(side, usableWidth() - side));
    const QPointF top = origin + QPointF(middle, line.y() + line.ascent());
    QPainterPath wedge(top);
    wedge.lineTo(top + QPointF(side, side * 1.2));
    wedge.lineTo(top + QPointF(-side, side * 1.2));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(wedge, colourOf(part.mark));
}

void MarkedLabel::paintEvent(QPaintEvent *event)
{
    if (!m_marked) {
        FittedLabel::paintEvent(event);
        return;
    }
    QPainter painter(this);
    painter.setPen(palette().color(foregroundRole()));
    const QRectF room = contentsRect();
    const QPointF origin(room.left() + (alignment() & Qt::AlignRight ? room.width() - usableWidth() : 0),
                         room.top() + (room.height() - m_layout.boundingRect().height()) / 2);
    m_layout.draw(&painter, origin, colours());
    for (const MarkedPart &part : m_parts) {
        if (part.mark == Mark::Gap)
            drawGap(painter, part, origin);
        else
            drawPart(painter, part, origin);
    }
}
