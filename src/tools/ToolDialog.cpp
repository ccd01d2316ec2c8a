#include "tools/ToolDialog.h"

#include "document/ctlGrid.h"
#include "document/frmDoc.h"
#include "tools/rules/DialogPlace.h"
#include "widgets/grid/FlexGridView.h"

#include <QScreen>
#include <QStyle>

ToolDialog::ToolDialog(frmDoc &document, QWidget *owner)
    : QDialog(owner)
    , m_document(&document)
{
    setWindowIcon(document.windowIcon());
}

QPoint ToolDialog::preferredPlace(const QRect &owner, const QSize &frame) const
{
    QRect centred(QPoint(), frame);
    centred.moveCenter(owner.center());
    return centred.topLeft();
}

void ToolDialog::place()
{
    const QRect owner = parentWidget()->window()->frameGeometry();
    const QSize frame = frameSize();
    move(DialogPlace::topLeft(
        {frame, preferredPlace(owner, frame), owner, screen()->availableGeometry(), shownSelection()}));
}

bool ToolDialog::hidesSelection() const
{
    return frameGeometry().intersects(shownSelection());
}

void ToolDialog::setVisible(bool visible)
{
    // the window manager keeps a place that the window has before it is shown
    if (visible && isHidden()) {
        adjustSize();
        place();
    }
    QDialog::setVisible(visible);
}

/// The part of the selection that is shown, in pixels of the screen.
QRect ToolDialog::shownSelection() const
{
    const ctlGrid &grid = *document().Rutor();
    const GridSelection selection = document().selection();
    const int top = std::clamp(grid.TopRow(), selection.top(), selection.bottom());
    const FlexGridView &view = *grid.hwndGrid();
    const QRect cells = view.cellRect(top, selection.left()) | view.cellRect(selection.bottom(), selection.right());
    const QRect shown = cells.translated(view.viewport()->pos()) & grid.rect();
    return shown.translated(grid.mapToGlobal(QPoint()));
}

/// The dialog's size with its frame, also before the window system has given it one.
QSize ToolDialog::frameSize() const
{
    const QSize extra = frameGeometry().size() - size();
    const int titleBar = style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, this);
    return size() + (extra.isNull() ? QSize(0, titleBar) : extra);
}
