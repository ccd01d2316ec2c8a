#include "widgets/grid/FlexGridView.h"
#include "widgets/grid/FlexGrid.h"

/// A shown grid of 200 rows and three word columns of 20 and 100 pixels that notes what it raises.
struct ShownGrid : ::testing::Test
{
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
    /// Presses a button at one place and releases it at another or the same.
    void drag(const QPoint &from, const QPoint &to, Qt::MouseButton button = Qt::LeftButton,
              Qt::KeyboardModifiers modifiers = {})
    {
        QTest::mousePress(viewport(), button, modifiers, from);
        if (to != from)
            moveTo(to);
        QTest::mouseRelease(viewport(), button, modifiers, to);
    }
    void moveTo(const QPoint &to)
    {
        QMouseEvent move(QEvent::MouseMove, to, viewport()->mapToGlobal(to), Qt::NoButton, Qt::LeftButton, {});
        QCoreApplication::sendEvent(viewport(), &move);
    }
    QString selection() const
    {
        return QString("%1 %2 %3 %4").arg(grid.Row()).arg(grid.Col()).arg(grid.RowSel()).arg(grid.ColSel());
    }

    FlexGrid grid;
};

TEST_F(ShownGrid, KeysMoveTheCurrentCellAndExtendTheSelection)
{
    // the keys, and the selection that they make of cell 2 of row 5, before which one is hidden and behind which
    // another
    const QString tests =
        "Up: 3 2 3 2; Down: 7 2 7 2; Left: 5 1 5 1; Right: 5 3 5 3; Home: 5 1 5 1; End: 5 3 5 3; "
        "PgDown: 17 2 17 2; PgUp: 1 2 1 2; Ctrl+Home: 1 1 1 1; Ctrl+End: 200 3 200 3; "
        "Ctrl+Up: 1 2 1 2; Ctrl+Down: 200 2 200 2; Ctrl+Left: 5 1 5 1; Shift+Down: 5 2 7 2; "
        "Shift+Left: 5 2 5 1; Shift+PgDown: 5 2 17 2; Shift+Home: 5 2 5 1; Ctrl+A: 1 1 200 3; "
        "Ctrl+Shift+End: 5 2 200 3; Ctrl+Shift+Home: 5 2 1 1; Alt+Down: 5 2 5 2; Tab: 5 2 5 2; "
        "Ctrl+Home, Up: 1 1 1 1; Home, Left: 5 1 5 1; End, Right: 5 3 5 3; Ctrl+End, Down: 200 3 200 3; "
        "Ctrl+PgDown: 5 2 5 2; Ctrl+Right: 5 3 5 3";
    for (const int hidden : {4, 6})
        grid.setRowHeight(hidden, 0);
    for (const QString &test : tests.split("; ")) {
        SCOPED_TRACE(test.toStdString());
        grid.setTopRow(1);
        grid.Select(5, 2, 5, 2);
        QTest::keySequence(grid.hwndGrid(), QKeySequence(test.section(": ", 0, 0)));
        EXPECT_EQ(selection(), test.section(": ", 1));
        EXPECT_TRUE(test.startsWith("Ctrl+A") || grid.RowIsVisible(grid.RowSel()));
        EXPECT_TRUE(grid.hwndGrid()->hasFocus());
    }
}

TEST_F(ShownGrid, MouseSelectsCellsRowsColumnsAndAll)
{
    using enum Qt::MouseButton;
    const std::tuple<QPoint, QPoint, Qt::MouseButton, Qt::KeyboardModifiers, const char *> cases[] = {
        {cell(3, 1), cell(3, 1), LeftButton, {}, "3 1 3 1"},
        {cell(6, 2), cell(6, 2), LeftButton, Qt::ShiftModifier, "3 1 6 2"},
        {cell(4, 1), cell(4, 1), RightButton, {}, "3 1 6 2"}, // inside, it keeps the selection
        {cell(8, 1), cell(8, 1), RightButton, {}, "8 1 8 1"},
        {cell(7, 2), cell(2, 1), LeftButton, {}, "7 2 2 1"},
        {cell(4, 0), cell(4, 0), LeftButton, {}, "4 1 4 3"},
        {cell(4, 0), cell(7, 0), LeftButton, {}, "4 1 7 3"},
        {cell(0, 2), cell(0, 2), LeftButton, {}, "1 2 200 2"},
        {cell(0, 3), cell(0, 3), LeftButton, Qt::ShiftModifier, "1 2 200 3"},
        {cell(0, 3), cell(0, 1), LeftButton, {}, "1 3 200 1"},
        {cell(0, 0), cell(0, 0), LeftButton, {}, "1 1 200 3"},
        {cell(6, 0), cell(6, 0), LeftButton, Qt::ShiftModifier, "1 1 6 3"},
        {cell(0, 2), cell(0, 2), RightButton, {}, "1 1 6 3"},
    };
    for (const auto &[press, release, button, modifiers, selected] : cases) {
        drag(press, release, button, modifiers);
        EXPECT_EQ(selection(), selected);
    }
    grid.setSelectionMode(FlexGridLook::SelectionByRow);
    drag(cell(5, 2), cell(5, 2));
    EXPECT_EQ(selection(), "5 1 5 3");
    grid.setSelectionMode(FlexGridLook::SelectionByCol);
    drag(cell(5, 2), cell(5, 2));
    EXPECT_EQ(selection(), "1 2 200 2");
    grid.setAllowBigSelection(false);
    drag(cell(4, 0), cell(7, 0));
    EXPECT_EQ(selection(), "1 2 200 2");
}

TEST_F(ShownGrid, FromRightToLeftAllIsAtTheOtherSideAndMeansTheSame)
{
    grid.setAllowUserResizing(FlexGridLook::ResizeBoth);
    FlexGridView &view = *grid.hwndGrid();
    const auto side = [this](int x) { return grid.RightToLeft() ? viewport()->width() - 1 - x : x; };
    // what is seen and what comes of mouse and keys, with x counted from where lines begin
    const auto outcome = [&](int zoom) {
        QString seen;
        const auto add = [&](const QRect &rect) {
            const auto [first, last] = std::minmax({side(rect.left()), side(rect.right())});
            seen += QString("%1-%2 ").arg(first).arg(last);
        };
        grid.setZoom(zoom);
        grid.setRowHeight(-1, 300);
        grid.setColWidth(-1, 1500);
        view.setLeftCol(1);
        const QWidget *bar = view.verticalScrollBar();
        add(view.cellArea());
        add({viewport()->mapFromGlobal(bar->mapToGlobal(QPoint())), bar->size()});
        for (int col = 0; col < grid.Cols(); ++col)
            add(view.cellRect(2, col));
        const std::pair<QPoint, QPoint> drags[] = {{{50, 50}, {50, 50}}, {{200, 50}, {120, 110}}, {{5, 50}, {5, 90}},
                                                   {{150, 5}, {150, 5}}, {{5, 5}, {5, 5}},        {{100, 5}, {90, 5}},
                                                   {{94, 5}, {130, 5}},  {{87, 5}, {140, 5}},     {{141, 5}, {150, 5}},
                                                   {{248, 5}, {200, 5}}, {{120, 50}, {500, 50}}};
        for (const auto &[from, to] : drags) {
            drag({side(from.x()), from.y()}, {side(to.x()), to.y()});
            seen +=
                selection() + QString(" [%1 %2 %3] ").arg(grid.ColWidth(0)).arg(grid.ColWidth(1)).arg(view.mouseCol());
        }
        const bool mirrored = grid.RightToLeft();
        for (const char *keys : {"Home", mirrored ? "Left" : "Right", mirrored ? "Ctrl+Left" : "Ctrl+Right", "Home",
                                 mirrored ? "Shift+Left" : "Shift+Right", "End"}) {
            QTest::keySequence(&view, QKeySequence(keys));
            seen += selection() + QString(" [%1 %2] ").arg(grid.LeftCol()).arg(view.horizontalScrollBar()->value());
        }
        const QPoint onward(mirrored ? 120 : -120, 0);
        for (const QPoint &turn : {-onward, onward}) {
            QWheelEvent wheel({9, 9}, {9, 9}, {}, turn, Qt::NoButton, {}, Qt::NoScrollPhase, false);
            QCoreApplication::sendEvent(viewport(), &wheel);
            seen += QString("%1 ").arg(view.horizontalScrollBar()->value());
        }
        return seen.toStdString();
    };
    for (const int zoom : {100, 150}) {
        grid.setRightToLeft(false);
        const std::string fromLeft = outcome(zoom);
        grid.setRightToLeft(true);
        EXPECT_EQ(outcome(zoom), fromLeft) << zoom;
    }
}

TEST_F(ShownGrid, DraggingBeyondTheEdgeScrollsOn)
{
    QTest::mousePress(viewport(), Qt::LeftButton, {}, cell(3, 1));
    moveTo(QPoint(150, 400));
    QTRY_VERIFY(grid.TopRow() > 3);
    QTest::mouseRelease(viewport(), Qt::LeftButton, {}, QPoint(150, 400));
    EXPECT_EQ(grid.Row(), 3);
    EXPECT_GT(grid.RowSel(), 12);
    grid.setColWidth(3, 6000);
    grid.Select(50, 1, 50, 1);
    grid.showCell(50, 1);
    QTest::mousePress(viewport(), Qt::LeftButton, {}, cell(50, 1));
    moveTo(QPoint(700, -50));
    QTRY_VERIFY(grid.TopRow() < 40 && grid.ColPos(1) < 1000);
    moveTo(cell(30, 2));
    QTest::mouseRelease(viewport(), Qt::LeftButton, {}, cell(30, 2));
}

TEST_F(ShownGrid, BordersOfFixedCellsAreDraggedWhenAllowed)
{
    const QRect header = grid.hwndGrid()->cellRect(0, 1);
    const QRect number = grid.hwndGrid()->cellRect(2, 0);
    const QPoint colBorder(header.right() + 1, header.center().y());
    const QPoint rowBorder(number.center().x(), number.bottom() + 1);
    drag(colBorder, colBorder + QPoint(30, 0));
    EXPECT_EQ(grid.ColWidth(1), 1500) << "not allowed yet";

    grid.setAllowUserResizing(FlexGridLook::ResizeBoth);
    grid.Select(5, 2, 5, 2);
    QTest::mousePress(viewport(), Qt::LeftButton, {}, colBorder);
    moveTo(QPoint(0, 5));
    EXPECT_EQ(grid.ColWidth(1), 15) << "live, and one pixel at least";
    moveTo(colBorder + QPoint(20, 0));
    QTest::mouseRelease(viewport(), Qt::LeftButton, {}, colBorder + QPoint(20, 0));
    EXPECT_EQ(grid.ColWidth(1), 1800);
    drag(rowBorder, rowBorder + QPoint(0, 12));
    EXPECT_EQ(grid.RowHeight(2), 480);
    EXPECT_EQ(selection(), "5 2 5 2");

    const auto pointerAt = [this](const QPoint &at) {
        QCursor::setPos(viewport()->mapToGlobal(at));
        moveTo(at);
        return viewport()->cursor().shape();
    };
    const QPoint secondBorder = colBorder + QPoint(20, 0);
    for (const int reach : {-4, -3, 3, 4}) {
        const bool near = std::abs(reach) < 4;
        EXPECT_EQ(pointerAt(secondBorder + QPoint(reach, 0)), near ? Qt::SplitHCursor : Qt::ArrowCursor) << reach;
        EXPECT_EQ(pointerAt(rowBorder + QPoint(0, 12 + reach)), near ? Qt::SplitVCursor : Qt::ArrowCursor) << reach;
    }
    grid.setMousePointer(2);
    EXPECT_EQ(pointerAt(cell(3, 2)), Qt::CrossCursor);

    grid.setTextMatrix(100, 1, "the longest of all the words in this column of words");
    QTest::mouseDClick(viewport(), Qt::LeftButton, {}, QPoint(grid.hwndGrid()->cellRect(0, 1).right() + 1, 5));
    const int needed = QFontMetrics(grid.Font()).horizontalAdvance(grid.TextMatrix(100, 1)) * 15;
    EXPECT_NEAR(grid.ColWidth(1), needed + 100, 100);
    grid.setGridFont(QFont("Liberation Sans", 40));
    QTest::mouseDClick(viewport(), Qt::LeftButton, {}, rowBorder + QPoint(0, 12));
    EXPECT_NEAR(grid.RowHeight(2), QFontMetrics(grid.Font()).height() * 15 + 30, 30);
}

TEST_F(ShownGrid, KeysAndMouseAreToldInTheirNumbers)
{
    QStringList log;
    QObject::connect(&grid, &FlexGrid::KeyDown, &grid, [&](int code, int shift) {
        if (code < 16 || code > 18) // the modifiers themselves
            log << QString("down %1 %2").arg(code).arg(shift);
    });
    QObject::connect(&grid, &FlexGrid::KeyPress, &grid, [&](int &code) { log << QString("press %1").arg(code); });
    QObject::connect(&grid, &FlexGrid::MouseDown, &grid, [&](int button, int shift, float x, float y) {
        log << QString("mouse %1 %2 %3 %4").arg(button).arg(shift).arg(x).arg(y);
    });
    QObject::connect(&grid, &FlexGrid::KeyUp, &grid, [&](int code, int shift) {
        if (code == 34)
            log << QString("up %1 %2").arg(code).arg(shift);
    });
    for (const char *keys : {"Shift+PgDown", "Return", "Ctrl+Q", "Alt+F2", "Z", "Del", "Num+5", "5", "F24"})
        QTest::keySequence(grid.hwndGrid(), QKeySequence(keys));
    drag(QPoint(40, 30), QPoint(40, 30), Qt::RightButton, Qt::ControlModifier);
    grid.Select(15, 1, 15, 1);
    const QPoint place = cell(15, 1);
    QContextMenuEvent menuKey(QContextMenuEvent::Keyboard, {}, {});
    QCoreApplication::sendEvent(viewport(), &menuKey);
    EXPECT_EQ(
        log.join(", "),
        QString(
            "down 34 1, up 34 1, down 13 0, press 13, down 81 2, down 113 4, down 90 0, press "
            "122, down 46 0, down 101 0, press 53, down 53 0, press 53, down 135 0, mouse 2 2 600 450, mouse 2 0 %1 %2")
            .arg(place.x() * 15)
            .arg(place.y() * 15));
}

TEST_F(ShownGrid, KnowsWhereItsCellsAndTheMouseAre)
{
    grid.setTopRow(3);
    EXPECT_EQ(QRect(grid.CellLeft(), grid.CellTop(), grid.CellWidth(), grid.CellHeight()),
              QRect(grid.ColPos(2), grid.RowPos(5), grid.ColWidth(2), grid.RowHeight(5)));
    EXPECT_EQ(static_cast<QWidget *>(grid.hwndGrid())->inputMethodQuery(Qt::ImCursorRectangle).toRect(),
              grid.hwndGrid()->cellRect(5, 2));
    moveTo(cell(4, 1));
    EXPECT_EQ(grid.MouseRow() * 10 + grid.MouseCol(), 41);
    grid.Autosize();
    EXPECT_EQ(grid.size(), QSize(400, 4020)) << "without scroll bars";
}

TEST_F(ShownGrid, AfterEveryChangeTheScreenShowsWhatTheGridHolds)
{
    const auto onScreen = [this] {
        QCoreApplication::processEvents();
        return grid.screen()->grabWindow(grid.winId()).toImage().convertToFormat(QImage::Format_RGB32);
    };
    const auto drawnAgain = [this] { return grid.grab().toImage().convertToFormat(QImage::Format_RGB32); };
    grid.setMergeCells(2);
    std::vector<std::function<void()>> changes{
        [this] { grid.setTextMatrix(2, 2, "word"); },
        [this] { grid.setClip("pasted"); },
        [this] { grid.removeRows(2, 1); },
        [this] { grid.setColPosition(1, 2); },
        [this] { grid.setColWidth(2, 3000); },
        [this] { grid.setTopRow(40); },
        [this] { grid.setCellForeColor(0xFF); },
        [this] { grid.setRedraw(false), grid.setRows(5000), grid.setTopRow(4999), grid.setRedraw(true); },
        [this] { grid.Clear(); },
    };
    const QMetaObject &type = FlexGrid::staticMetaObject;
    for (int i = type.propertyOffset(); i < type.propertyCount(); ++i) {
        for (const int value : {2, 1, 0, 3, type.property(i).read(&grid).toInt()})
            changes.emplace_back([this, i, value] { FlexGrid::staticMetaObject.property(i).write(&grid, value); });
    }
    for (const auto &change : changes) {
        change();
        grid.setRedraw(true);
        const QImage screen = onScreen(); // before it is drawn once more
        EXPECT_EQ(screen, drawnAgain()) << &change - changes.data();
    }
}
