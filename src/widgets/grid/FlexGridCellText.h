#pragma once

#include <QFont>
#include <QRectF>
#include <QString>

class QPainter;

/// How a cell's text is set: wrapped or cut with an ellipsis, aligned as its script is read.
namespace FlexGridCellText {

/// Pixels kept free left and right of a text.
constexpr int Margin = 3;
constexpr int NumberMargin = 2; ///< of a row's number

struct Setting
{
    QString text;
    QFont font;
    Qt::Alignment alignment; ///< both directions; left means: where a reader of the text's script begins
    bool wrap = false;
};

/// The alignment that an alignment value (0 left top, 1 left centre, 2 left bottom, 3 to 5 centre, 6 to 8 right, 9 text
/// left and numbers right) means for a text.
Qt::Alignment alignmentOf(int value, const QString &text);

/// Draws the text into the rectangle in the painter's pen. Lines that do not fit in full are left out, save the first,
/// and the last line drawn ends in an ellipsis then.
void draw(QPainter &painter, const QRectF &rect, const Setting &setting);

/// Whether draw would leave out a part of the text in a rectangle of this size.
bool isCut(const QSizeF &size, const Setting &setting);

/// The height that the text needs in a cell of the given width, in pixels.
double heightFor(double width, const Setting &setting);

} // namespace FlexGridCellText
