#include "widgets/grid/FlexGrid.h"

#include "platform/Twips.h"
#include "widgets/grid/FlexGridAccessible.h"
#include "widgets/grid/FlexGridView.h"

#include <QGuiApplication>
#include <QMetaProperty>
#include <QWheelEvent>

#include <algorithm>

FlexGrid::FlexGrid(QWidget *parent)
    : QWidget(parent)
    , m_view(new FlexGridView(m_state, this))
{
    m_state.look.Font = font();
    m_state.rightToLeft = QGuiApplication::isRightToLeft();
    m_state.cells.setRows(2);
    m_state.cells.setCols(2);
    setFocusProxy(m_view);
    connectView();
    applyFrame();
}

FlexGrid::~FlexGrid() = default;

void FlexGrid::connectView()
{
    connect(m_view, &FlexGridView::selectionWanted, this, &FlexGrid::select);
    connect(m_view, &FlexGridView::rowHeightWanted, this, [this](int row, int twips) { setRowHeight(row, twips); });
    connect(m_view, &FlexGridView::colWidthWanted, this, [this](int col, int twips) { setColWidth(col, twips); });
    connect(m_view, &FlexGridView::scrolled, this, &FlexGrid::Scroll);
    connect(m_view, &FlexGridView::laidOut, this, [this] { laidOut(); });
    connect(m_view, &FlexGridView::clicked, this, &FlexGrid::Click);
    connect(m_view, &FlexGridView::cellDoubleClicked, this, [this] { cellDoubleClicked(); });
    connect(m_view, &FlexGridView::keyPressed, this, &FlexGrid::KeyDown);
    connect(m_view, &FlexGridView::keyReleased, this, &FlexGrid::KeyUp);
    connect(m_view, &FlexGridView::characterTyped, this, &FlexGrid::typeCharacter);
    connect(m_view, &FlexGridView::inputMethodUsed, this, [this](QInputMethodEvent *event) { inputMethodUsed(event); });
    connect(m_view, &FlexGridView::focusArrived, this, [this] { gridFocused(); });
    const auto relay = [this](auto viewSignal, auto gridSignal) {
        connect(m_view, viewSignal, this, [this, gridSignal](int button, int shift, const QPointF &position) {
            const QPointF at = m_view->viewport()->mapTo(this, position);
            Q_EMIT(this->*gridSignal)
            (button, shift, float(at.x() * Twips::perPixelX()), float(at.y() * Twips::perPixelY()));
        });
    };
    relay(&FlexGridView::mousePressed, &FlexGrid::MouseDown);
    relay(&FlexGridView::mouseMoved, &FlexGrid::MouseMove);
    relay(&FlexGridView::mouseReleased, &FlexGrid::MouseUp);
}

void FlexGrid::typeCharacter(int character)
{
    Q_EMIT KeyPress(character);
    if (character != 0)
        characterTyped(character);
}

void FlexGrid::resizeEvent(QResizeEvent *)
{
    m_view->setGeometry(rect());
}

void FlexGrid::wheelEvent(QWheelEvent *event)
{
    if (!(event->modifiers() & Qt::ControlModifier)) {
        QWidget::wheelEvent(event);
        return;
    }
    // fine wheels send parts of a step
    m_wheelTurn += event->angleDelta().y();
    const int steps = m_wheelTurn / QWheelEvent::DefaultDeltasPerStep;
    m_wheelTurn -= steps * QWheelEvent::DefaultDeltasPerStep;
    if (steps != 0)
        Q_EMIT ZoomWanted(steps);
}

GridSelection FlexGrid::insideOf(GridSelection wanted) const
{
    if (!m_state.hasData())
        return {-1, -1, -1, -1};
    const auto inside = [](int &value, int first, int count) {
        if (value < 0)
            value = first;
        value = std::min(value, count - 1);
    };
    inside(wanted.Row, m_state.fixedRows, Rows());
    inside(wanted.RowSel, m_state.fixedRows, Rows());
    inside(wanted.Col, m_state.fixedCols, Cols());
    inside(wanted.ColSel, m_state.fixedCols, Cols());
    return wanted;
}

void FlexGrid::select(GridSelection wanted)
{
    const auto otherCell = [this](const GridSelection &selection) {
        return !m_state.selection.isCurrent(selection.Row, selection.Col);
    };
    wanted = insideOf(wanted);
    if (wanted == m_state.selection)
        return;
    if (otherCell(wanted)) {
        leavingCell();
        wanted = insideOf(wanted); // what leaving set off may have changed the grid
    }
    const bool entered = otherCell(wanted);
    m_state.selection = wanted;
    draw();
    if (entered)
        FlexGridAccessible::announceCurrentCell(*m_view);
    FlexGridAccessible::announceSelection(*m_view);
    if (entered) {
        Q_EMIT EnterCell();
        Q_EMIT RowColChange();
    }
    Q_EMIT SelChange();
}

void FlexGrid::restructured()
{
    layOutAgain();
    FlexGridAccessible::announceReset(*m_view);
    select(m_state.selection);
}

void FlexGrid::setRow(int row)
{
    if (row >= 0 && row < Rows())
        select({row, Col(), row, Col()});
}

void FlexGrid::setCol(int col)
{
    if (col >= 0 && col < Cols())
        select({Row(), col, Row(), col});
}

void FlexGrid::setRowSel(int row)
{
    if (row >= 0 && row < Rows())
        select({Row(), Col(), row, ColSel()});
}

void FlexGrid::setColSel(int col)
{
    if (col >= 0 && col < Cols())
        select({Row(), Col(), RowSel(), col});
}

void FlexGrid::Select(int row, int col, int rowSel, int colSel)
{
    if (m_state.cells.hasCell(row, col) && m_state.cells.hasCell(rowSel, colSel))
        select({row, col, rowSel, colSel});
}

void FlexGrid::draw()
{
    m_view->viewport()->update();
}

void FlexGrid::layOutAgain()
{
    m_view->layOutAgain();
}

void FlexGrid::setRedraw(bool redraw)
{
    m_redraw = redraw;
    m_view->setHeldBack(!redraw);
    propertyChanged("Redraw");
}

void FlexGrid::Refresh()
{
    layOutAgain();
    m_view->viewport()->repaint();
}

void FlexGrid::propertyChanged(const char *name)
{
    Q_EMIT PropertyChanged(QString::fromLatin1(name));
}

QVariantMap FlexGrid::saveProperties() const
{
    QVariantMap properties;
    const QMetaObject &meta = FlexGrid::staticMetaObject;
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i)
        properties.insert(QString::fromLatin1(meta.property(i).name()), meta.property(i).read(this));
    return properties;
}

void FlexGrid::loadProperties(const QVariantMap &properties)
{
    const QVariantMap defaults = FlexGrid().saveProperties();
    setFixedRows(0);
    setFixedCols(0);
    const QMetaObject &meta = FlexGrid::staticMetaObject;
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) {
        const QString name = QString::fromLatin1(meta.property(i).name());
        meta.property(i).write(this, properties.value(name, defaults.value(name)));
    }
}
