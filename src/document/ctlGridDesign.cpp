#include "document/ctlGrid.h"

#include <QPainter>
#include <QPainterPath>

namespace {

constexpr int PointerSize = 32; // logical pixels
constexpr int PointerScale = 2; // drawn finer, for screens that show it so
constexpr int CustomPointer = 99;

/// The grid's own mouse pointer: a thick cross with an outline that shows on every ground.
QPixmap pointerImage()
{
    QPixmap image(PointerSize * PointerScale, PointerSize * PointerScale);
    image.setDevicePixelRatio(PointerScale);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath cross;
    cross.addRect(14, 7, 4, 18);
    cross.addRect(7, 14, 18, 4);
    painter.setPen(QPen(Qt::black, 2));
    painter.setBrush(Qt::white);
    painter.drawPath(cross.simplified());
    return image;
}

} // namespace

QVariantMap ctlGrid::documentDesign()
{
    QFont font(QStringLiteral("Arial"));
    font.setPointSizeF(9.75);
    return {{QStringLiteral("Cols"), 3},
            {QStringLiteral("Rows"), 101},
            {QStringLiteral("FixedCols"), 1},
            {QStringLiteral("FixedRows"), 1},
            {QStringLiteral("BackColorFixed"), FlexGridLook::ButtonFaceColour},
            {QStringLiteral("ForeColorFixed"), FlexGridLook::ButtonTextColour},
            {QStringLiteral("BackColorSel"), FlexGridLook::HighlightColour},
            {QStringLiteral("ForeColorSel"), FlexGridLook::HighlightTextColour},
            {QStringLiteral("MouseIcon"), pointerImage()},
            {QStringLiteral("MousePointer"), CustomPointer},
            {QStringLiteral("Font"), font}};
}
