#include "widgets/grid/FlexGridZoom.h"

#include "widgets/grid/FlexGrid.h"
#include "widgets/grid/FlexGridView.h"

#include <QToolTip>

TEST(FlexGridZoom, StepsLeadThroughTheUsualSizes)
{
    const std::tuple<int, int, int> cases[] = {
        {100, 1, 110}, {100, -1, 90}, {110, -1, 100}, {123, 1, 125}, {123, -1, 110}, {100, 3, 150},  {350, 9, 400},
        {400, 1, 400}, {60, -1, 50},  {50, -1, 50},   {30, -1, 50},  {900, 1, 400},  {900, -1, 400}, {77, 0, 77}};
    for (const auto &[from, steps, to] : cases)
        EXPECT_EQ(FlexGridZoom::stepped(from, steps), to) << from << " by " << steps;
}

/// A shown grid with words that just fit their cells, and some that do not.
struct ZoomedGrid : ::testing::Test
{
    ZoomedGrid()
    {
        grid.setRows(41);
        grid.setCols(3);
        grid.setRowHeight(-1, 300);
        grid.setColWidth(-1, 1500);
        grid.setBorderStyle(0);
        grid.setWordWrap(true);
        grid.setAllowUserResizing(3);
        grid.resize(500, 300);
        grid.show();
        grid.Select(9, 1, 9, 1);
    }

    QRect cell(int row, int col) { return grid.hwndGrid()->cellRect(row, col); }
    QString toolTip(int row, int col)
    {
        const QPoint at = cell(row, col).topLeft() + QPoint(2, 2);
        QHelpEvent asked(QEvent::ToolTip, at, grid.hwndGrid()->viewport()->mapToGlobal(at));
        QEvent newWindow(QEvent::WindowActivate); // before which a tool tip goes at once
        QCoreApplication::sendEvent(&grid, &newWindow);
        QCoreApplication::sendEvent(grid.hwndGrid()->viewport(), &asked);
        return QToolTip::isVisible() ? QToolTip::text() : QString();
    }

    FlexGrid grid;
};

TEST_F(ZoomedGrid, EverythingIsShownLargerAndNothingThatIsKeptChanges)
{
    grid.setRowHeight(3, 7);
    QStringList written;
    QObject::connect(&grid, &FlexGrid::PropertyChanged, &grid, [&](const QString &name) { written += name; });
    const std::tuple<int, int, int, int> cases[] = {{50, 50, 50, 10},    {100, 100, 100, 20}, {150, 150, 150, 30},
                                                    {400, 400, 400, 80}, {9, 50, 50, 10},     {999, 400, 400, 80}};
    for (const auto &[wanted, percent, width, height] : cases) {
        SCOPED_TRACE(wanted);
        grid.setZoom(wanted);
        EXPECT_EQ(grid.Zoom(), percent);
        EXPECT_EQ(cell(9, 1).size(), QSize(width, height));
        EXPECT_EQ(cell(3, 1).height(), 0) << "hidden at every size";
        EXPECT_TRUE(grid.RowIsVisible(9) && grid.ColIsVisible(1)) << "the current cell";
        EXPECT_NEAR(grid.shownFont().pointSizeF(), grid.Font().pointSizeF() * percent / 100, 0.01);
        EXPECT_EQ(grid.CellHeight(), height * 15);
        EXPECT_EQ(grid.RowHeight(9), 300);
        EXPECT_EQ(grid.ColWidth(1), 1500);
        EXPECT_EQ(written.join(u' '), "");
    }
}

TEST_F(ZoomedGrid, TextsAreCutAtEverySizeWhereTheyAreAtTheNormalOne)
{
    const QFontMetricsF metrics(grid.Font());
    QString word;
    for (int row = 1; row < 9; ++row, word += "il")
        grid.setTextMatrix(
            row, 1, word + QString(int((93 - metrics.horizontalAdvance(word)) / metrics.horizontalAdvance("m")), 'm'));
    grid.setTextMatrix(2, 1, "one two three four five six seven");
    grid.setTextMatrix(4, 1, "one two three");
    grid.setRowHeight(4, grid.fittingRowHeight(4));
    const int fitting = grid.fittingRowHeight(2);
    QStringList cut;
    for (const int percent : {100, 50, 60, 70, 80, 90, 110, 125, 175, 200, 250, 300, 400}) {
        grid.setZoom(percent);
        QStringList now;
        for (int row = 1; row < 9; ++row) {
            grid.setTopRow(row);
            now += QString(toolTip(row, 1)).remove(QRegularExpression("<[^>]*>"));
        }
        if (percent == 100)
            cut = now;
        EXPECT_EQ(now, cut) << percent;
        EXPECT_EQ(grid.fittingRowHeight(2), fitting) << percent;
    }
    EXPECT_EQ(cut.count(QString()), 7) << cut.join('|').toStdString();
    EXPECT_TRUE(toolTip(2, 1).isEmpty() || toolTip(2, 1).contains("font-size")) << "as large as the words";
}

TEST_F(ZoomedGrid, BordersAndWheelMeanWhatIsSeen)
{
    QList<int> steps;
    QObject::connect(&grid, &FlexGrid::ZoomWanted, &grid, [&steps](int step) { steps.append(step); });
    grid.setZoom(200);
    QWidget *viewport = grid.hwndGrid()->viewport();
    const QPoint border(cell(0, 0).right() + 1, 5);
    QTest::mousePress(viewport, Qt::LeftButton, {}, border);
    QMouseEvent move(QEvent::MouseMove, border + QPoint(31, 0), viewport->mapToGlobal(border), Qt::NoButton,
                     Qt::LeftButton, {});
    QCoreApplication::sendEvent(viewport, &move);
    QTest::mouseRelease(viewport, Qt::LeftButton, {}, border);
    EXPECT_EQ(cell(0, 0).width(), 231);
    EXPECT_NEAR(grid.ColWidth(0), 1500 + 31 * 15 / 2, 8);

    const auto turn = [&](int delta, Qt::KeyboardModifiers keys) {
        QWheelEvent wheel(QPointF(50, 50), viewport->mapToGlobal(QPointF(50, 50)), {}, QPoint(0, delta), {}, keys,
                          Qt::NoScrollPhase, false);
        QSpontaneKeyEvent::setSpontaneous(&wheel); // else it would not go up to the grid
        qApp->notify(viewport, &wheel);
    };
    const int top = grid.TopRow();
    for (const int delta : {120, -240, 60, 30, 30})
        turn(delta, Qt::ControlModifier);
    EXPECT_EQ(steps, (QList<int>{1, -2, 1}));
    EXPECT_EQ(grid.TopRow(), top);
    turn(-120, Qt::NoModifier);
    EXPECT_EQ(steps.size(), 3);
    EXPECT_GT(grid.TopRow(), top);
}
