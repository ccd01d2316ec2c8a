#include "progress/BarChart.h"

#include "resources/StringTable.h"
#include "services/rules/TextDigits.h"

#include <QAccessibleWidget>

namespace {

constexpr int Margin = 4;        // pixels
constexpr int LeastHeight = 40;  // pixels, of the bars
constexpr int UsualHeight = 90;  // pixels, of the bars
constexpr int LeastBarWidth = 3; // pixels, with the gap
constexpr int WidestBar = 60;    // pixels, unless a text below is wider
constexpr int TextGap = 6;       // pixels between the texts below
constexpr double Gap = 0.2;      // of the room for a bar

QAccessibleInterface *chartForScreenReaders(const QString &, QObject *object)
{
    auto *chart = qobject_cast<BarChart *>(object);
    return chart ? new QAccessibleWidget(chart, QAccessible::Chart) : nullptr;
}

} // namespace

BarChart::BarChart(QWidget *parent)
    : QWidget(parent)
{
    static const bool isKnown = (QAccessible::installFactory(chartForScreenReaders), true);
    Q_UNUSED(isKnown)
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void BarChart::setBars(const QString &title, std::vector<Bar> bars)
{
    m_title = title;
    m_bars = std::move(bars);
    m_highest = 0;
    for (const Bar &bar : m_bars)
        m_highest = std::max(m_highest, bar.value);
    measureTexts();
    m_current = hasFocus() ? std::min(m_current, int(m_bars.size()) - 1) : None;
    setAccessibleName(m_title);
    goTo(m_current);
    updateGeometry();
}

void BarChart::measureTexts()
{
    m_widestText = 0;
    for (const Bar &bar : m_bars)
        m_widestText = std::max(m_widestText, fontMetrics().horizontalAdvance(bar.below) + TextGap);
}

QString BarChart::asText() const
{
    return m_title + u'\n' + numbers();
}

QString BarChart::numbers() const
{
    QStringList lines;
    for (int i = 0; i < int(m_bars.size()); ++i)
        lines += name(i);
    return lines.join(u'\n');
}

QString BarChart::name(int bar) const
{
    const Bar &shown = m_bars[size_t(bar)];
    return resText(14425).arg(shown.label, TextDigits::numbers().toString(shown.value));
}

QSize BarChart::sizeHint() const
{
    const QSize usual(std::max(260, int(m_bars.size()) * 4), UsualHeight + 3 * fontMetrics().height() + 2 * Margin);
    return usual.expandedTo(minimumSizeHint());
}

QSize BarChart::minimumSizeHint() const
{
    const int title = QFontMetrics(titleFont()).horizontalAdvance(m_title);
    return {std::max(title, int(m_bars.size()) * LeastBarWidth) + 2 * Margin,
            LeastHeight + 3 * fontMetrics().height() + 2 * Margin};
}

QFont BarChart::titleFont() const
{
    QFont bold = font();
    bold.setBold(true);
    return bold;
}

QRectF BarChart::barsArea() const
{
    const int line = fontMetrics().height();
    return QRectF(rect()).adjusted(Margin, 2 * line + Margin, -Margin, -line - Margin);
}

/// The bar at its full height, from left to right as the window's language reads.
QRectF BarChart::place(int bar) const
{
    const QRectF area = barsArea();
    const double room = std::min(area.width() / double(m_bars.size()), double(std::max(WidestBar, m_widestText)));
    const int position = isRightToLeft() ? int(m_bars.size()) - 1 - bar : bar;
    const double start = isRightToLeft() ? area.right() - room * double(m_bars.size()) : area.left();
    return {start + position * room, area.top(), room, area.height()};
}

void BarChart::goTo(int bar)
{
    m_current = bar;
    update();
    setAccessibleDescription(bar == None ? numbers() : name(bar));
}

bool BarChart::event(QEvent *event)
{
    if (event->type() == QEvent::FontChange) {
        measureTexts();
        updateGeometry();
    }
    return QWidget::event(event);
}

void BarChart::keyPressEvent(QKeyEvent *event)
{
    const int last = int(m_bars.size()) - 1;
    const int onward = isRightToLeft() ? -1 : 1;
    const bool any = !m_bars.empty();
    if (any && (event->key() == Qt::Key_Left || event->key() == Qt::Key_Right))
        goTo(std::clamp(m_current + (event->key() == Qt::Key_Right ? onward : -onward), 0, last));
    else if (any && (event->key() == Qt::Key_Home || event->key() == Qt::Key_End))
        goTo(event->key() == Qt::Key_Home ? 0 : last);
    else
        QWidget::keyPressEvent(event);
}

void BarChart::mouseMoveEvent(QMouseEvent *event)
{
    int found = None;
    for (int i = 0; i < int(m_bars.size()); ++i) {
        const QRectF bar = place(i);
        if (event->position().x() >= bar.left() && event->position().x() < bar.right())
            found = i;
    }
    goTo(found);
}

void BarChart::leaveEvent(QEvent *event)
{
    goTo(None);
    QWidget::leaveEvent(event);
}

void BarChart::focusInEvent(QFocusEvent *event)
{
    if (m_current == None && !m_bars.empty())
        goTo(0);
    QWidget::focusInEvent(event);
}

void BarChart::focusOutEvent(QFocusEvent *event)
{
    goTo(None);
    QWidget::focusOutEvent(event);
}

void BarChart::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    paintTexts(painter);
    if (!m_bars.empty())
        paintBars(painter);
}

void BarChart::paintTexts(QPainter &painter) const
{
    const int line = fontMetrics().height();
    const QRect head = rect().adjusted(Margin, 0, -Margin, 0);
    painter.setFont(titleFont());
    painter.drawText(head, Qt::AlignLeading | Qt::AlignTop | Qt::TextSingleLine, m_title);
    painter.setFont(font());
    const QString told =
        m_current == None ? resText(14427).arg(TextDigits::numbers().toString(m_highest)) : name(m_current);
    painter.drawText(head.translated(0, line), Qt::AlignLeading | Qt::AlignTop | Qt::TextSingleLine, told);
}

void BarChart::paintBars(QPainter &painter) const
{
    const QRectF area = barsArea();
    for (int i = 0; i < int(m_bars.size()); ++i) {
        const Bar &bar = m_bars[size_t(i)];
        const QRectF room = place(i);
        const double height = room.height() * bar.value / std::max(1, m_highest);
        QRectF shape(room.left() + room.width() * Gap / 2, area.bottom() - height, room.width() * (1 - Gap), height);
        if (bar.value > 0 && shape.height() < 1)
            shape.setTop(shape.bottom() - 1); // one word among thousands shows too
        painter.fillRect(shape, palette().color(QPalette::Highlight));
        if (i == m_current)
            painter.drawRect(QRectF(room.left(), area.top(), room.width() - 1, area.height()));
    }
    painter.drawLine(area.bottomLeft(), area.bottomRight());
    paintTextsBelow(painter);
}

/// A text that would run into the one before is left out.
void BarChart::paintTextsBelow(QPainter &painter) const
{
    const double baseline = barsArea().bottom() + fontMetrics().ascent() + 1;
    QRectF before;
    for (int i = 0; i < int(m_bars.size()); ++i) {
        const QString &below = m_bars[size_t(i)].below;
        const double middle = place(i).center().x();
        const double width = fontMetrics().horizontalAdvance(below);
        const double start = std::clamp(middle - width / 2, 0.0, std::max(0.0, this->width() - width));
        const QRectF room(start, 0, width + TextGap - 1, 1);
        if (below.isEmpty() || room.intersects(before))
            continue;
        before = room;
        painter.drawText(QPointF(start, baseline), below);
    }
}
