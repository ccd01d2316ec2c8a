#include "widgets/FlexGridView.h"
#include "widgets/FlexGrid.h"

#include <QScrollBar>
#include <QSignalSpy>

namespace {

/// A shown grid of 200 rows and three word columns of 20 and 100 pixels that notes what it raises.
class ShownGrid : public ::testing::Test
{
protected:
    ShownGrid()
    {
        grid.setRows(201);
        grid.setCols(4);
        grid.setRowHeight(-1, 300);
        grid.setColWidth(-1, 1500);
        grid.setBorderStyle(0);
        grid.resize(430, 220);
        grid.show();
        grid.activateWindow();
        grid.setFocus();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&grid));
        grid.Select(5, 2, 5, 2);
    }

    QWidget *viewport() { return grid.hwndGrid()->viewport(); }
    QPoint cell(int row, int col) { return grid.hwndGrid()->cellRect(row, col).center(); }
    void click(const QPoint &at, Qt::KeyboardModifiers modifiers = {}, Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mouseClick(viewport(), button, modifiers, at);
    }
    void drag(const QPoint &from, const QPoint &to)
    {
        QTest::mousePress(viewport(), Qt::LeftButton, {}, from);
        moveTo(to);
        QTest::mouseRelease(viewport(), Qt::LeftButton, {}, to);
    }
    void moveTo(const QPoint &to)
    {
        QMouseEvent move(QEvent::MouseMove, to, viewport()->mapToGlobal(to), Qt::NoButton, Qt::LeftButton, {});
        QCoreApplication::sendEvent(viewport(), &move);
    }
    QList<int> selection() const { return {grid.Row(), grid.Col(), grid.RowSel(), grid.ColSel()}; }

    FlexGrid grid;
};

} // namespace

TEST_F(ShownGrid, KeysMoveTheCurrentCellAndExtendTheSelection)
{
    struct Case
    {
        int key;
        Qt::KeyboardModifiers modifiers;
        QList<int> selection;
    };
    const Qt::KeyboardModifiers shift = Qt::ShiftModifier;
    const Qt::KeyboardModifiers ctrl = Qt::ControlModifier;
    const Case cases[] = {
        {Qt::Key_Up, {}, {4, 2, 4, 2}},
        {Qt::Key_Down, {}, {6, 2, 6, 2}},
        {Qt::Key_Left, {}, {5, 1, 5, 1}},
        {Qt::Key_Right, {}, {5, 3, 5, 3}},
        {Qt::Key_Home, {}, {5, 1, 5, 1}},
        {Qt::Key_End, {}, {5, 3, 5, 3}},
        {Qt::Key_PageDown, {}, {15, 2, 15, 2}},
        {Qt::Key_PageUp, {}, {1, 2, 1, 2}},
        {Qt::Key_Home, ctrl, {1, 1, 1, 1}},
        {Qt::Key_End, ctrl, {200, 3, 200, 3}},
        {Qt::Key_Up, ctrl, {1, 2, 1, 2}},
        {Qt::Key_Down, ctrl, {200, 2, 200, 2}},
        {Qt::Key_Left, ctrl, {5, 1, 5, 1}},
        {Qt::Key_Down, shift, {5, 2, 6, 2}},
        {Qt::Key_Left, shift, {5, 2, 5, 1}},
        {Qt::Key_PageDown, shift, {5, 2, 15, 2}},
        {Qt::Key_Home, shift, {5, 2, 5, 1}},
        {Qt::Key_End, shift | ctrl, {5, 2, 200, 3}},
        {Qt::Key_Home, shift | ctrl, {5, 2, 1, 1}},
        {Qt::Key_A, ctrl, {1, 1, 200, 3}},
        {Qt::Key_Down, Qt::AltModifier, {5, 2, 5, 2}},
        {Qt::Key_Tab, {}, {5, 2, 5, 2}},
    };
    for (const Case &c : cases) {
        grid.setTopRow(1);
        grid.Select(5, 2, 5, 2);
        QTest::keyClick(grid.hwndGrid(), Qt::Key(c.key), c.modifiers);
        EXPECT_EQ(selection(), c.selection) << c.key << " " << int(c.modifiers);
        EXPECT_TRUE(c.key == Qt::Key_A || grid.RowIsVisible(grid.RowSel())) << c.key;
        EXPECT_TRUE(grid.hwndGrid()->hasFocus());
    }
}

TEST_F(ShownGrid, KeysSkipHiddenRowsAndStopAtTheEdges)
{
    grid.setRowHeight(6, 0);
    QTest::keyClick(grid.hwndGrid(), Qt::Key_Down);
    EXPECT_EQ(grid.Row(), 7);
    grid.Select(1, 1, 1, 1);
    QTest::keyClick(grid.hwndGrid(), Qt::Key_Up);
    QTest::keyClick(grid.hwndGrid(), Qt::Key_Left);
    EXPECT_EQ(selection(), QList<int>({1, 1, 1, 1}));
}

TEST_F(ShownGrid, MouseSelectsCellsRowsColumnsAndAll)
{
    click(cell(3, 1));
    EXPECT_EQ(selection(), QList<int>({3, 1, 3, 1}));
    click(cell(6, 2), Qt::ShiftModifier);
    EXPECT_EQ(selection(), QList<int>({3, 1, 6, 2}));
    click(cell(4, 1), {}, Qt::RightButton);
    EXPECT_EQ(selection(), QList<int>({3, 1, 6, 2})) << "a right click inside keeps the selection";
    click(cell(8, 1), {}, Qt::RightButton);
    EXPECT_EQ(selection(), QList<int>({8, 1, 8, 1}));
    drag(cell(7, 2), cell(2, 1));
    EXPECT_EQ(selection(), QList<int>({7, 2, 2, 1}));
    click(cell(4, 0));
    EXPECT_EQ(selection(), QList<int>({4, 1, 4, 3}));
    drag(cell(4, 0), cell(7, 0));
    EXPECT_EQ(selection(), QList<int>({4, 1, 7, 3}));
    click(cell(0, 2));
    EXPECT_EQ(selection(), QList<int>({1, 2, 200, 2}));
    click(cell(0, 0));
    EXPECT_EQ(selection(), QList<int>({1, 1, 200, 3}));
    grid.setAllowBigSelection(false);
    click(cell(4, 0));
    EXPECT_EQ(selection(), QList<int>({1, 1, 200, 3}));
    grid.setSelectionMode(FlexGridLook::SelectionByRow);
    click(cell(5, 2));
    EXPECT_EQ(selection(), QList<int>({5, 1, 5, 3}));
}

TEST_F(ShownGrid, DraggingBeyondTheEdgeScrollsOn)
{
    QTest::mousePress(viewport(), Qt::LeftButton, {}, cell(3, 1));
    moveTo(QPoint(150, 400));
    QTRY_VERIFY(grid.TopRow() > 3);
    QTest::mouseRelease(viewport(), Qt::LeftButton, {}, QPoint(150, 400));
    EXPECT_EQ(grid.Row(), 3);
    EXPECT_GT(grid.RowSel(), 12);
}

TEST_F(ShownGrid, BordersOfFixedCellsAreDraggedWhenAllowed)
{
    const QRect header = grid.hwndGrid()->cellRect(0, 1);
    const QRect number = grid.hwndGrid()->cellRect(2, 0);
    const QPoint colBorder(header.right() + 1, header.center().y());
    const QPoint rowBorder(number.center().x(), number.bottom() + 1);
    drag(colBorder, colBorder + QPoint(30, 0));
    EXPECT_EQ(grid.ColWidth(1), 1500) << "not allowed yet";
    grid.Select(5, 2, 5, 2);

    grid.setAllowUserResizing(FlexGridLook::ResizeBoth);
    QTest::mousePress(viewport(), Qt::LeftButton, {}, colBorder);
    moveTo(colBorder + QPoint(10, 0));
    EXPECT_EQ(grid.ColWidth(1), 1650) << "live";
    moveTo(QPoint(0, 5));
    EXPECT_EQ(grid.ColWidth(1), 15) << "one pixel at least";
    moveTo(colBorder + QPoint(20, 0));
    QTest::mouseRelease(viewport(), Qt::LeftButton, {}, colBorder + QPoint(20, 0));
    EXPECT_EQ(grid.ColWidth(1), 1800);
    drag(rowBorder, rowBorder + QPoint(0, 12));
    EXPECT_EQ(grid.RowHeight(2), 480);
    EXPECT_EQ(selection(), QList<int>({5, 2, 5, 2}));

    grid.setTextMatrix(100, 1, QStringLiteral("the longest of all the words in this column of words"));
    const QRect wider = grid.hwndGrid()->cellRect(0, 1);
    QTest::mouseDClick(viewport(), Qt::LeftButton, {}, QPoint(wider.right() + 1, 5));
    const int needed = QFontMetrics(grid.Font()).horizontalAdvance(grid.TextMatrix(100, 1)) * 15;
    EXPECT_GT(grid.ColWidth(1), needed);
    EXPECT_LT(grid.ColWidth(1), needed + 400);
}

TEST_F(ShownGrid, EventsComeInOrderAndOnlyForWhatChanged)
{
    QStringList log;
    const auto note = [&](auto signal, const char *name) {
        QObject::connect(&grid, signal, &grid, [&log, name] { log << QString::fromLatin1(name); });
    };
    note(&FlexGrid::EnterCell, "enter");
    note(&FlexGrid::RowColChange, "rowcol");
    note(&FlexGrid::SelChange, "sel");
    grid.setRow(5);
    EXPECT_EQ(log, QStringList());
    grid.setRowSel(7);
    EXPECT_EQ(log, QStringList({"sel"}));
    grid.setCol(2);
    EXPECT_EQ(selection(), QList<int>({5, 2, 5, 2})) << "collapses";
    grid.setRow(400);
    log.clear();
    grid.setRow(9);
    EXPECT_EQ(log, QStringList({"enter", "rowcol", "sel"}));
}

TEST_F(ShownGrid, KeysAndMouseAreToldInTheirNumbers)
{
    QStringList log;
    QObject::connect(&grid, &FlexGrid::KeyDown, &grid, [&](int code, int shift) {
        if (code < 16 || code > 18) // the modifiers themselves
            log << QStringLiteral("down %1 %2").arg(code).arg(shift);
    });
    QObject::connect(&grid, &FlexGrid::KeyPress, &grid,
                     [&](int &code) { log << QStringLiteral("press %1").arg(code); });
    QObject::connect(&grid, &FlexGrid::MouseDown, &grid, [&](int button, int shift, float x, float y) {
        log << QStringLiteral("mouse %1 %2 %3 %4").arg(button).arg(shift).arg(x).arg(y);
    });
    QTest::keyClick(grid.hwndGrid(), Qt::Key_PageDown, Qt::ShiftModifier);
    QTest::keyClick(grid.hwndGrid(), Qt::Key_Return);
    QTest::keyClick(grid.hwndGrid(), Qt::Key_Q, Qt::ControlModifier);
    QTest::keyClick(grid.hwndGrid(), Qt::Key_F2, Qt::AltModifier);
    QTest::keyClick(grid.hwndGrid(), u'Z');
    QTest::keyClick(grid.hwndGrid(), Qt::Key_Delete);
    click(QPoint(40, 30), Qt::ControlModifier, Qt::RightButton);
    EXPECT_EQ(log, QStringList({"down 34 1", "down 13 0", "press 13", "down 81 2", "down 113 4", "down 90 0",
                                "press 90", "down 46 0", "mouse 2 2 600 450"}));
}

TEST_F(ShownGrid, ScrollsByRowsAndKnowsWhatIsSeen)
{
    QSignalSpy scrolled(&grid, &FlexGrid::Scroll);
    grid.setTopRow(50);
    EXPECT_EQ(grid.TopRow(), 50);
    EXPECT_EQ(scrolled.count(), 1);
    EXPECT_FALSE(grid.RowIsVisible(49));
    EXPECT_TRUE(grid.RowIsVisible(0));
    EXPECT_TRUE(grid.RowIsVisible(59));
    EXPECT_FALSE(grid.RowIsVisible(60)) << "row 60 would need the last pixels of the scroll bar";
    EXPECT_EQ(grid.RowPos(51), 600);
    grid.setTopRow(200);
    EXPECT_TRUE(grid.RowIsVisible(200));
    EXPECT_TRUE(grid.RowIsVisible(grid.TopRow() + 8)) << "the last page is full";
    grid.setRowHeight(100, 30000);
    grid.setTopRow(100);
    EXPECT_TRUE(grid.RowIsVisible(100)) << "higher than the grid, but it stands first";
    grid.showCell(1, 3);
    EXPECT_EQ(grid.TopRow(), 1);
    EXPECT_TRUE(grid.ColIsVisible(3));
    grid.resize(360, 220);
    EXPECT_FALSE(grid.ColIsVisible(3));
    grid.showCell(1, 3);
    EXPECT_TRUE(grid.ColIsVisible(3));
    EXPECT_EQ(grid.LeftCol(), 1) << "scrolled by part of a column";
    EXPECT_EQ(grid.ColPos(3), 15 * (360 - 100 - grid.hwndGrid()->verticalScrollBar()->width()))
        << "the last column ends at the edge";
    grid.setLeftCol(1);
    EXPECT_EQ(grid.ColPos(1), 1500);
}

TEST_F(ShownGrid, ShowsNoScrollBarThatIsNotNeeded)
{
    for (const QSize &size : {QSize(360, 220), QSize(430, 220), QSize(415, 220), QSize(430, 300)}) {
        grid.resize(size);
        const bool narrow = size.width() < 400 + grid.hwndGrid()->verticalScrollBar()->width();
        EXPECT_EQ(grid.hwndGrid()->horizontalScrollBar()->isVisible(), narrow);
        grid.setTopRow(200);
        EXPECT_TRUE(grid.RowIsVisible(200));
    }
}

TEST_F(ShownGrid, HoldsDrawingBackAndIsRightAfterwards)
{
    grid.setRedraw(false);
    grid.setRows(20);
    grid.setRowHeight(-1, 600);
    grid.setRows(5000);
    grid.setTopRow(4999);
    grid.setRedraw(true);
    EXPECT_TRUE(grid.RowIsVisible(4999));
}

TEST_F(ShownGrid, RunsFromRightToLeft)
{
    grid.setRightToLeft(true);
    EXPECT_GT(grid.hwndGrid()->cellRect(1, 0).left(), grid.hwndGrid()->cellRect(1, 1).left());
    click(cell(3, 1));
    EXPECT_EQ(selection(), QList<int>({3, 1, 3, 1}));
    QTest::keyClick(grid.hwndGrid(), Qt::Key_Left);
    EXPECT_EQ(grid.Col(), 2);
    grid.setAllowUserResizing(FlexGridLook::ResizeCols);
    const QRect header = grid.hwndGrid()->cellRect(0, 1);
    drag(QPoint(header.left(), 5), QPoint(header.left() - 20, 5));
    EXPECT_EQ(grid.ColWidth(1), 1800);
}

TEST_F(ShownGrid, GrowsToShowEverything)
{
    grid.setRows(4);
    grid.Autosize();
    EXPECT_EQ(grid.size(), QSize(400, 80));
    EXPECT_TRUE(grid.RowIsVisible(3) && grid.ColIsVisible(3));
}
