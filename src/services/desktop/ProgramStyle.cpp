#include "services/desktop/ProgramStyle.h"

#include "resources/Pictures.h"
#include "resources/TextLanguage.h"
#include "services/desktop/Contrast.h"
#include "services/rules/TextDigits.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QStyleOption>

namespace {

constexpr double LeastContrast = 3.0; ///< of a title's letters, which are white in every palette
constexpr double OutlineStrength = 0.5;
constexpr double FrameStrength = 0.3;
constexpr double OutlineRadius = 2.0;
constexpr int SeparatorMargin = 5; ///< pixels beside the line between entries of a menu
constexpr int GroupTitleGap = 3;   ///< pixels between the title of a group and its frame

/// The colour, darkened until white letters can be read on it.
QColor groundForWhite(QColor colour)
{
    while (Contrast::between(colour, Qt::white) < LeastContrast)
        colour = colour.darker(110);
    return colour;
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
    case QStyle::PE_PanelMenu:
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
    painter.setPen(Contrast::towardsText(option.palette, shape == Shape::Frame ? FrameStrength : OutlineStrength));
    painter.setRenderHint(QPainter::Antialiasing);
    if (shape == Shape::Round)
        painter.drawEllipse(rect);
    else
        painter.drawRoundedRect(rect, OutlineRadius, OutlineRadius);
    painter.restore();
}

void drawSeparator(QPainter &painter, const QStyleOption &option)
{
    const QRect &rect = option.rect;
    painter.save();
    painter.setPen(Contrast::towardsText(option.palette, FrameStrength));
    painter.drawLine(rect.left() + SeparatorMargin, rect.center().y(), rect.right() - SeparatorMargin,
                     rect.center().y());
    painter.restore();
}

/// Gives the entry a check mark in the place of its picture: a plate behind the picture, which is all that the style
/// would show, is no mark to the eye.
void showCheckMark(QStyleOptionMenuItem &entry)
{
    if (!entry.checked || entry.icon.isNull())
        return;
    entry.icon = picture(PictureChecked);
    entry.checked = false;
}

/// Gives the chosen entry its picture in the colour of chosen text, as it is drawn on the highlight.
void showChosenPicture(QStyleOptionMenuItem &entry, int size, const QWidget *widget)
{
    const QStyle::State chosen = QStyle::State_Selected | QStyle::State_Enabled;
    if ((entry.state & chosen) != chosen || entry.icon.isNull())
        return;
    const double scale = widget ? widget->devicePixelRatioF() : 1.0;
    entry.icon = QIcon(entry.icon.pixmap(QSize(size, size), scale, QIcon::Selected));
}

/// Lets the signs of a shortcut, as in "Ctrl++", stay where they are in a menu that is written from right to left.
void isolateShortcut(QStyleOptionMenuItem &entry)
{
    const qsizetype tab = entry.text.indexOf(u'\t');
    if (tab >= 0)
        entry.text.replace(tab + 1, entry.text.size(), TextLanguage::isolated(entry.text.mid(tab + 1)));
}

/// The title bar of a document with letters and signs that can be read. Fusion gives the letters of an active one a
/// shadow in the colour of text, and black signs to the buttons of an inactive one, both also where windows are dark.
QStyleOptionTitleBar readableTitle(const QStyleOptionTitleBar &title, bool dark)
{
    QStyleOptionTitleBar shown = title;
    shown.text = TextLanguage::isolated(title.text);
    const bool active = title.titleBarState & QStyle::State_Active;
    const QColor ground = title.palette.color(active ? QPalette::Highlight : QPalette::Window);
    if (active || dark)
        shown.palette.setColor(QPalette::Highlight, groundForWhite(ground));
    if (dark) {
        shown.titleBarState |= QStyle::State_Active;
        shown.palette.setColor(QPalette::Text, Qt::black);
    }
    return shown;
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

void ProgramStyle::drawEntry(QStyleOptionMenuItem entry, QPainter *painter, const QWidget *widget) const
{
    showCheckMark(entry);
    showChosenPicture(entry, pixelMetric(PM_SmallIconSize, &entry, widget), widget);
    isolateShortcut(entry);
    QProxyStyle::drawControl(CE_MenuItem, &entry, painter, widget);
    if (entry.menuItemType == QStyleOptionMenuItem::Separator && hidesOutlines(entry))
        drawSeparator(*painter, entry);
}

void ProgramStyle::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                               const QWidget *widget) const
{
    const auto *entry = qstyleoption_cast<const QStyleOptionMenuItem *>(option);
    if (element == CE_MenuItem && entry) {
        drawEntry(*entry, painter, widget);
        return;
    }
    const auto *item = qstyleoption_cast<const QStyleOptionViewItem *>(option);
    if (element == CE_ItemViewItem && item && item->direction == Qt::RightToLeft) {
        QStyleOptionViewItem shown = *item;
        shown.text = TextLanguage::isolated(item->text); // a word or a path, as it reads by itself
        QProxyStyle::drawControl(element, &shown, painter, widget);
        return;
    }
    const auto *box = qstyleoption_cast<const QStyleOptionComboBox *>(option);
    if (element == CE_ComboBoxLabel && box && box->direction == Qt::RightToLeft) {
        QStyleOptionComboBox shown = *box;
        shown.currentText = TextLanguage::isolated(box->currentText); // as in its list
        QProxyStyle::drawControl(element, &shown, painter, widget);
        return;
    }
    QProxyStyle::drawControl(element, option, painter, widget);
}

void ProgramStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                                      const QWidget *widget) const
{
    const auto *title = qstyleoption_cast<const QStyleOptionTitleBar *>(option);
    if (control == CC_TitleBar && title) {
        const QStyleOptionTitleBar shown = readableTitle(*title, hidesOutlines(*option));
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
    switch (standard) {
    case SP_ToolBarHorizontalExtensionButton:
    case SP_ToolBarVerticalExtensionButton:
        return picture(PictureMore);
    case SP_TitleBarMinButton:
        return picture(PictureMinimize);
    case SP_TitleBarMaxButton:
        return picture(PictureMaximize);
    case SP_TitleBarNormalButton:
        return picture(PictureRestore);
    case SP_TitleBarCloseButton:
        return picture(PictureClose);
    default:
        return QProxyStyle::standardIcon(standard, option, widget);
    }
}

int ProgramStyle::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                            QStyleHintReturn *returnData) const
{
    if (hint == SH_DialogButtonBox_ButtonsHaveIcons || hint == SH_EtchDisabledText)
        return 0;
    if (hint == SH_UnderlineShortcut && QGuiApplication::isRightToLeft() && !m_altHeld)
        return 0;
    return QProxyStyle::styleHint(hint, option, widget, returnData);
}

void ProgramStyle::polish(QApplication *application)
{
    QProxyStyle::polish(application);
    if (QGuiApplication::isRightToLeft())
        application->installEventFilter(this);
}

void ProgramStyle::polish(QWidget *widget)
{
    QProxyStyle::polish(widget);
    const QLocale numbers = TextDigits::numbers();
    if (qobject_cast<QAbstractSpinBox *>(widget) && widget->locale().zeroDigit() != numbers.zeroDigit())
        widget->setLocale(numbers);
}

bool ProgramStyle::eventFilter(QObject *watched, QEvent *event)
{
    const bool key = event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease;
    if (key && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Alt)
        setAltHeld(event->type() == QEvent::KeyPress);
    else if (event->type() == QEvent::ApplicationDeactivate)
        setAltHeld(false);
    return QProxyStyle::eventFilter(watched, event);
}

void ProgramStyle::setAltHeld(bool held)
{
    if (held == m_altHeld)
        return;
    m_altHeld = held;
    for (QWidget *widget : QApplication::allWidgets())
        widget->update();
}
