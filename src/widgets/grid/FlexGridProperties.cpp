#include "widgets/grid/FlexGrid.h"

#include "widgets/grid/FlexGridView.h"

#include <QScrollBar>

#include <algorithm>

template <typename T> void FlexGrid::changeLook(T &field, const T &value, const char *name)
{
    if constexpr (std::is_same_v<T, int> || std::is_same_v<T, bool>) {
        if (field == value)
            return;
    }
    field = value;
    draw();
    propertyChanged(name);
}

void FlexGrid::setAppearance(int appearance)
{
    changeLook(m_state.look.Appearance, std::clamp(appearance, 0, 1), "Appearance");
    applyFrame();
}

void FlexGrid::setBorderStyle(int style)
{
    changeLook(m_state.look.BorderStyle, std::clamp(style, 0, 1), "BorderStyle");
    applyFrame();
}

void FlexGrid::applyFrame()
{
    if (m_state.look.BorderStyle == 0)
        m_view->setFrameStyle(QFrame::NoFrame);
    else if (m_state.look.Appearance == 0)
        m_view->setFrameStyle(QFrame::Box | QFrame::Plain);
    else
        m_view->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    layOutAgain();
}

void FlexGrid::setAllowBigSelection(bool allow)
{
    changeLook(m_state.look.AllowBigSelection, allow, "AllowBigSelection");
}

void FlexGrid::setAllowUserResizing(int resizing)
{
    changeLook(m_state.look.AllowUserResizing, std::clamp(resizing, 0, 3), "AllowUserResizing");
}

void FlexGrid::setBackColor(int colour)
{
    changeLook(m_state.look.BackColor, colour, "BackColor");
}

void FlexGrid::setBackColorBkg(int colour)
{
    changeLook(m_state.look.BackColorBkg, colour, "BackColorBkg");
}

void FlexGrid::setBackColorFixed(int colour)
{
    changeLook(m_state.look.BackColorFixed, colour, "BackColorFixed");
}

void FlexGrid::setBackColorSel(int colour)
{
    changeLook(m_state.look.BackColorSel, colour, "BackColorSel");
}

void FlexGrid::setForeColor(int colour)
{
    changeLook(m_state.look.ForeColor, colour, "ForeColor");
}

void FlexGrid::setForeColorFixed(int colour)
{
    changeLook(m_state.look.ForeColorFixed, colour, "ForeColorFixed");
}

void FlexGrid::setForeColorSel(int colour)
{
    changeLook(m_state.look.ForeColorSel, colour, "ForeColorSel");
}

void FlexGrid::setGridColor(int colour)
{
    changeLook(m_state.look.GridColor, colour, "GridColor");
}

void FlexGrid::setGridColorFixed(int colour)
{
    changeLook(m_state.look.GridColorFixed, colour, "GridColorFixed");
}

void FlexGrid::setGridLines(int lines)
{
    changeLook(m_state.look.GridLines, std::clamp(lines, 0, 3), "GridLines");
}

void FlexGrid::setGridLinesFixed(int lines)
{
    changeLook(m_state.look.GridLinesFixed, std::clamp(lines, 0, 3), "GridLinesFixed");
}

void FlexGrid::setGridLineWidth(int pixels)
{
    changeLook(m_state.look.GridLineWidth, std::clamp(pixels, 1, 10), "GridLineWidth");
}

void FlexGrid::setHighLight(int mode)
{
    changeLook(m_state.look.HighLight, std::clamp(mode, 0, 2), "HighLight");
}

void FlexGrid::setEnabled(bool enabled)
{
    QWidget::setEnabled(enabled);
    propertyChanged("Enabled");
}

void FlexGrid::setFillStyle(int style)
{
    changeLook(m_state.look.FillStyle, std::clamp(style, 0, 1), "FillStyle");
}

void FlexGrid::setFocusRect(int rect)
{
    changeLook(m_state.look.FocusRect, std::clamp(rect, 0, 2), "FocusRect");
}

void FlexGrid::setGridFont(const QFont &font)
{
    changeLook(m_state.look.Font, font, "Font");
    layOutAgain();
}

void FlexGrid::setMergeCells(int mode)
{
    m_state.look.MergeCells = std::clamp(mode, 0, 4);
    draw();
}

void FlexGrid::setMouseIcon(const QPixmap &icon)
{
    changeLook(m_state.look.MouseIcon, icon, "MouseIcon");
    m_view->applyPointer();
}

void FlexGrid::setMousePointer(int pointer)
{
    if (pointer == m_state.look.MousePointer)
        return;
    changeLook(m_state.look.MousePointer, pointer, "MousePointer");
    m_view->applyPointer();
}

void FlexGrid::setPictureType(int type)
{
    changeLook(m_state.look.PictureType, std::clamp(type, 0, 1), "PictureType");
}

void FlexGrid::setRightToLeft(bool rightToLeft)
{
    changeLook(m_state.rightToLeft, rightToLeft, "RightToLeft");
    m_view->setLayoutDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
    layOutAgain();
}

void FlexGrid::setScrollBars(int bars)
{
    changeLook(m_state.look.ScrollBars, std::clamp(bars, 0, 3), "ScrollBars");
    const auto policy = [bars](int bit) { return bars & bit ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff; };
    m_view->setHorizontalScrollBarPolicy(policy(1));
    m_view->setVerticalScrollBarPolicy(policy(2));
    layOutAgain();
}

void FlexGrid::setScrollTrack(bool track)
{
    changeLook(m_state.look.ScrollTrack, track, "ScrollTrack");
    m_view->horizontalScrollBar()->setTracking(track);
    m_view->verticalScrollBar()->setTracking(track);
}

void FlexGrid::setSelectionMode(int mode)
{
    changeLook(m_state.look.SelectionMode, std::clamp(mode, 0, 2), "SelectionMode");
}

void FlexGrid::setTextStyle(int style)
{
    changeLook(m_state.look.TextStyle, std::clamp(style, 0, 4), "TextStyle");
}

void FlexGrid::setTextStyleFixed(int style)
{
    changeLook(m_state.look.TextStyleFixed, std::clamp(style, 0, 4), "TextStyleFixed");
}

void FlexGrid::setWordWrap(bool wrap)
{
    changeLook(m_state.look.WordWrap, wrap, "WordWrap");
}
