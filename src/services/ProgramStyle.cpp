#include "services/ProgramStyle.h"

#include "resources/Pictures.h"

#include <QPainter>
#include <QStyleOption>

#include <cmath>

namespace {

constexpr double LeastContrast = 3.0; ///< of a title's letters, which are white in every palette
constexpr double OutlineStrength = 0.5;
constexpr double FrameStrength = 0.3;
constexpr double OutlineRadius = 2.0;
constexpr int GroupTitleGap = 3; ///< pixels between the title of a group and its frame

double linear(double channel)
{
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

/// The brightness that an eye sees, 0 to 1.
double luminance(const QColor &colour)
{
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

/// The colour, darkened until white letters can be read on it.
QColor groundForWhite(QColor colour)
{
    while (1.05 / (luminance(colour) + 0.05) < LeastContrast)
        colour = colour.darker(110);
    return colour;
}

/// A line between text and ground, the nearer to the text the higher strength (0 to 1).
QColor lineColour(const QPalette &palette, double strength)
{
    const QColor text = palette.color(QPalette::WindowText);
    const QColor ground = palette.color(QPalette::Window);
    const auto between = [strength](float one, float other) { return float(one * strength + other * (1 - strength)); };
    return QColor::fromRgbF(between(text.redF(), ground.redF()), between(text.greenF(), ground.greenF()),
                            between(text.blueF(), ground.blueF()));
}

enum class Shape { None, Box, Round, Frame };

Shape shapeOf(QStyle::PrimitiveElement element, const QStyleOption &option)
{
    const bool highlighted = option.state & QStyle::State_HasFocus;
    switch (element) {
    case QStyle::PE_IndicatorCheckBox:
        return Shape::Box;
    case QStyle::PE_IndicatorRadioButton:
        return Shape::Round;
    case QStyle::PE_FrameLineEdit:
        return highlighted ? Shape::None : Shape::Box;
    case QStyle::PE_PanelButtonCommand: {
        const auto *button = qstyleoption_cast<const QStyleOptionButton *>(&option);
        const bool shown =
            !button || !(button->features & (QStyleOptionButton::Flat | QStyleOptionButton::DefaultButton));
        return shown && !highlighted ? Shape::Box : Shape::None;
    }
    case QStyle::PE_Frame:
        return Shape::Frame;
    default:
        return Shape::None;
    }
}

void drawOutline(QPainter &painter, const QStyleOption &option, Shape shape)
{
    const QRectF rect = QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.save();
    painter.setBrush(Qt::NoBrush);
    painter.setPen(lineColour(option.palette, shape == Shape::Frame ? FrameStrength : OutlineStrength));
    painter.setRenderHint(QPainter::Antialiasing);
    if (shape == Shape::Round)
        painter.drawEllipse(rect);
    else
        painter.drawRoundedRect(rect, OutlineRadius, OutlineRadius);
    painter.restore();
}

/// The entry with its picture in the colour of chosen text, as it is drawn on the highlight.
QStyleOptionMenuItem withChosenPicture(const QStyleOptionMenuItem &entry, int size, const QWidget *widget)
{
    QStyleOptionMenuItem chosen = entry;
    const double scale = widget ? widget->devicePixelRatioF() : 1.0;
    chosen.icon = QIcon(entry.icon.pixmap(QSize(size, size), scale, QIcon::Selected));
    return chosen;
}

} // namespace

/// Fusion draws outlines darker than the window. A desktop may have wrapped it in a style of its own.
bool ProgramStyle::hidesOutlines(const QStyleOption &option) const
{
    const QStyle *style = this;
    while (const auto *wrapping = qobject_cast<const QProxyStyle *>(style))
        style = wrapping->baseStyle();
    return style->inherits("QFusionStyle") && option.palette.color(QPalette::Window).lightnessF() < 0.5;
}

void ProgramStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                                 const QWidget *widget) const
{
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    const Shape shape = shapeOf(element, *option);
    if (shape != Shape::None && hidesOutlines(*option))
        drawOutline(*painter, *option, shape);
}

void ProgramStyle::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                               const QWidget *widget) const
{
    const auto *entry = qstyleoption_cast<const QStyleOptionMenuItem *>(option);
    const State chosen = State_Selected | State_Enabled;
    if (element == CE_MenuItem && entry && (entry->state & chosen) == chosen && !entry->icon.isNull()) {
        const int size = pixelMetric(PM_SmallIconSize, option, widget);
        const QStyleOptionMenuItem shown = withChosenPicture(*entry, size, widget);
        QProxyStyle::drawControl(element, &shown, painter, widget);
    } else {
        QProxyStyle::drawControl(element, option, painter, widget);
    }
}

void ProgramStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                                      const QWidget *widget) const
{
    const auto *title = qstyleoption_cast<const QStyleOptionTitleBar *>(option);
    if (control == CC_TitleBar && title && (title->titleBarState & State_Active)) {
        QStyleOptionTitleBar shown = *title;
        shown.palette.setColor(QPalette::Highlight, groundForWhite(title->palette.color(QPalette::Highlight)));
        QProxyStyle::drawComplexControl(control, &shown, painter, widget);
        return;
    }
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    const auto *slider = qstyleoption_cast<const QStyleOptionSlider *>(option);
    if (control == CC_ScrollBar && slider && hidesOutlines(*option)) {
        QStyleOption handle = *option;
        handle.rect = subControlRect(control, option, SC_ScrollBarSlider, widget);
        drawOutline(*painter, handle, Shape::Box);
    } else if (control == CC_SpinBox && hidesOutlines(*option)) {
        drawOutline(*painter, *option, Shape::Box);
    } else if (control == CC_GroupBox && hidesOutlines(*option)) {
        QStyleOption frame = *option;
        frame.rect = subControlRect(control, option, SC_GroupBoxFrame, widget);
        frame.rect.setTop(subControlRect(control, option, SC_GroupBoxLabel, widget).bottom() + GroupTitleGap);
        drawOutline(*painter, frame, Shape::Frame);
    }
}

QIcon ProgramStyle::standardIcon(StandardPixmap standard, const QStyleOption *option, const QWidget *widget) const
{
    if (standard == SP_ToolBarHorizontalExtensionButton || standard == SP_ToolBarVerticalExtensionButton)
        return picture(PictureMore);
    return QProxyStyle::standardIcon(standard, option, widget);
}

int ProgramStyle::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                            QStyleHintReturn *returnData) const
{
    if (hint == SH_DialogButtonBox_ButtonsHaveIcons)
        return 0;
    return QProxyStyle::styleHint(hint, option, widget, returnData);
}
