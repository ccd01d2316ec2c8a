#include "widgets/grid/FlexGridCellText.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QTextLayout>

#include <algorithm>
#include <vector>

namespace {

/// More than any cell can show; a longer text would only cost time.
constexpr qsizetype LongestShown = 8192;

QTextOption optionsFor(const FlexGridCellText::Setting &setting, bool wrap)
{
    const bool rightToLeft = setting.text.isRightToLeft();
    Qt::Alignment across = setting.alignment & Qt::AlignHorizontal_Mask;
    if (rightToLeft && across == Qt::AlignLeft)
        across = Qt::AlignRight;
    QTextOption options(across);
    options.setTextDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
    options.setWrapMode(wrap ? QTextOption::WrapAtWordBoundaryOrAnywhere : QTextOption::NoWrap);
    return options;
}

/// The text as it is drawn: letters that stand apart from their accents are joined with them, since a font may have the
/// whole letter only.
QString shownText(const QString &text)
{
    return text.left(LongestShown).normalized(QString::NormalizationForm_C);
}

/// Lays out lines below each other until they would be higher than height; returns the height used and sets cut when
/// text is left over.
double layOut(QTextLayout &layout, double width, double height, bool &cut)
{
    double used = 0;
    cut = false;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        line.setPosition(QPointF(0, used));
        cut = layout.lineCount() > 1 && used + line.height() > height;
        if (cut)
            break;
        used += line.height();
    }
    layout.endLayout();
    return used;
}

double topOf(Qt::Alignment alignment, const QRectF &rect, double used)
{
    if (alignment & Qt::AlignTop || used > rect.height())
        return rect.top();
    return alignment & Qt::AlignBottom ? rect.bottom() - used : rect.top() + (rect.height() - used) / 2;
}

} // namespace

namespace FlexGridCellText {

Qt::Alignment alignmentOf(int value, const QString &text)
{
    static constexpr Qt::AlignmentFlag Across[] = {Qt::AlignLeft, Qt::AlignHCenter, Qt::AlignRight};
    static constexpr Qt::AlignmentFlag Down[] = {Qt::AlignTop, Qt::AlignVCenter, Qt::AlignBottom};
    if (value >= 0 && value < 9)
        return Across[value / 3] | Down[value % 3];
    bool number = false;
    text.toDouble(&number);
    return (number ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter;
}

void draw(QPainter &painter, const QRectF &rect, const Setting &setting)
{
    const QString text = shownText(setting.text);
    QTextLayout layout(text, setting.font, painter.device());
    layout.setTextOption(optionsFor(setting, setting.wrap));
    bool cut = false;
    const double used = layOut(layout, rect.width(), rect.height(), cut);
    const int lines = layout.lineCount() - (cut ? 1 : 0);
    const QPointF origin(rect.left(), topOf(setting.alignment, rect, used));
    const QTextLine last = layout.lineAt(lines - 1);
    cut = cut || last.naturalTextWidth() > rect.width();
    for (int i = 0; i < lines - (cut ? 1 : 0); ++i)
        layout.lineAt(i).draw(&painter, origin);
    if (!cut)
        return;

    const QFontMetricsF metrics(setting.font, painter.device());
    const QString rest = metrics.elidedText(text.mid(last.textStart()), Qt::ElideRight, rect.width());
    QTextLayout ending(rest, setting.font, painter.device());
    ending.setTextOption(optionsFor(setting, false));
    layOut(ending, rect.width(), rect.height(), cut);
    ending.draw(&painter, origin + QPointF(0, last.y()));
}

bool isCut(const QSizeF &size, const Setting &setting)
{
    QTextLayout layout(shownText(setting.text), setting.font);
    layout.setTextOption(optionsFor(setting, setting.wrap));
    bool cut = false;
    const double used = layOut(layout, size.width(), size.height(), cut);
    return cut || used > size.height() || layout.lineAt(layout.lineCount() - 1).naturalTextWidth() > size.width();
}

double heightFor(double width, const Setting &setting)
{
    QTextLayout layout(shownText(setting.text), setting.font);
    layout.setTextOption(optionsFor(setting, setting.wrap));
    bool cut = false;
    return layOut(layout, std::max(1.0, width), 1e9, cut);
}

} // namespace FlexGridCellText
