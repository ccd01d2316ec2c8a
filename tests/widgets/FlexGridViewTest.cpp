#include "widgets/grid/FlexGridView.h"
#include "widgets/grid/FlexGrid.h"

/// A shown grid of 200 rows of 20 pixels and three word columns of 100.
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
    /// The place that has these coordinates, counted from where lines begin, at the normal size.
    QPoint at(int x, int y)
    {
        const QPoint point = QPoint(x, y) * grid.Zoom() / 100;
        return grid.RightToLeft() ? QPoint(viewport()->width() - 1 - point.x(), point.y()) : point;
    }
    /// Presses a button at one place and releases it at another or the same one as soon as something holds.
    bool drag(
        const QPoint &from, const QPoint &to, Qt::MouseButton button = Qt::LeftButton,
        Qt::KeyboardModifiers modifiers = {}, const std::function<bool()> &holds = [] { return true; })
    {
        QTest::mousePress(viewport(), button, modifiers, from);
        if (to != from)
            moveTo(to);
        const bool held = QTest::qWaitFor(holds);
        QTest::mouseRelease(viewport(), button, modifiers, to);
        return held;
    }
    void moveTo(const QPoint &to)
    {
        QMouseEvent move(QEvent::MouseMove, to, viewport()->mapToGlobal(to), Qt::NoButton, Qt::LeftButton, {});
        QCoreApplication::sendEvent(viewport(), &move);
    }
    std::string selection() const
    {
        const auto &[row, col, rowSel, colSel] = grid.selection();
        return QString::asprintf("%d %d %d %d", row, col, rowSel, colSel).toStdString();
    }

    /// The part of cell 1 of row 1 in which something other than its ground is drawn.
    QRect inkOfCell()
    {
        const QImage cell = grid.grab(grid.hwndGrid()->cellRect(1, 1)).toImage();
        return inkOf(cell.copy(1, 1, cell.width() - 3, cell.height() - 3), cell.pixelColor(1, 1)).translated(1, 1);
    }

    FlexGrid grid;
};

TEST_F(ShownGrid, KeysMoveTheCurrentCellAndExtendTheSelection)
{
    // the keys, and the selection that they make of cell 2 of row 5, before which one is hidden and behind which
    // another; ! where the last key is left to the window
    const QString tests =
        "Up: 3 2 3 2; Down: 7 2 7 2; Left: 5 1 5 1; Right: 5 3 5 3; Home: 5 1 5 1; End: 5 3 5 3; "
        "PgDown: 17 2 17 2; PgUp: 1 2 1 2; Ctrl+Home: 1 1 1 1; Ctrl+End: 200 3 200 3; "
        "Ctrl+Up: 1 2 1 2; Ctrl+Down: 200 2 200 2; Ctrl+Left: 5 1 5 1; Shift+Down: 5 2 7 2; "
        "Shift+Left: 5 2 5 1; Shift+PgDown: 5 2 17 2; Shift+Home: 5 2 5 1; Ctrl+A: 1 1 200 3; "
        "Ctrl+Shift+End: 5 2 200 3; Ctrl+Shift+Home: 5 2 1 1; Alt+Down: 5 2 5 2!; Tab: 5 2 5 2; "
        "Ctrl+Home, Up: 1 1 1 1; Home, Left: 5 1 5 1; End, Right: 5 3 5 3; Ctrl+End, Down: 200 3 200 3; "
        "Ctrl+PgDown: 5 2 5 2!; Ctrl+Right: 5 3 5 3; F5: 5 2 5 2!; Shift+Down, Shift+Down: 5 2 8 2; "
        "Shift+Left, Shift+Right: 5 2 5 2";
    // the same where the first row and the first column are hidden, too
    const QString atHidden = "Ctrl+Home: 2 2 2 2; Ctrl+Up: 2 2 2 2; Left: 5 2 5 2; Home: 5 2 5 2; Ctrl+Left: 5 2 5 2";
    for (const int hidden : {4, 6})
        grid.setRowHeight(hidden, 0);
    for (const int round : {0, 1, 2}) {
        const bool mirrored = round == 1;
        grid.setRightToLeft(mirrored);
        grid.setColWidth(1, round == 2 ? 0 : 1500);
        grid.setRowHeight(1, round == 2 ? 0 : 300);
        for (const QString &test : (round == 2 ? atHidden : tests).split("; ")) {
            grid.setTopRow(1);
            grid.Select(5, 2, 5, 2);
            QString keys = test.section(": ", 0, 0), left;
            if (mirrored)
                keys.replace("Left", "<").replace("Right", "Left").replace("<", "Right");
            for (const QString &key : keys.split(", ")) {
                QKeyEvent press(QEvent::KeyPress, QKeySequence(key)[0].key(), QKeySequence(key)[0].keyboardModifiers());
                QCoreApplication::sendEvent(grid.hwndGrid(), &press);
                left = press.isAccepted() ? "" : "!";
            }
            EXPECT_EQ(selection() + left.toStdString(), test.section(": ", 1).toStdString()) << test.toStdString();
            EXPECT_TRUE(grid.hwndGrid()->hasFocus() && (test.startsWith("Ctrl+A") || grid.RowIsVisible(grid.RowSel())));
        }
    }
}

TEST_F(ShownGrid, MouseSelectsCellsRowsColumnsAndAll)
{
    // settings and buttons, the cell or the cells from which and to which is dragged, and the selection then
    const QString tests =
        "3,1: 3 1 3 1; Shift 6,2: 3 1 6 2; Right 4,1: 3 1 6 2; Right 8,1: 8 1 8 1; 7,2>2,1: 7 2 2 1; 4,0: 4 1 4 3; "
        "4,0>7,0: 4 1 7 3; 0,2: 1 2 200 2; Shift 0,3: 1 2 200 3; 0,3>0,1: 1 3 200 1; 0,0: 1 1 200 3; "
        "Shift 6,0: 1 1 6 3; Right 0,2: 1 1 6 3; SelectionMode=1 5,2: 5 1 5 3; SelectionMode=2 5,2: 1 2 200 2; "
        "AllowBigSelection=0 4,0>7,0: 1 2 200 2; AllowBigSelection=1 SelectionMode=0 3,1: 3 1 3 1";
    for (const auto &[mirrored, zoom] : {std::pair(false, 100), {true, 50}}) {
        grid.setRightToLeft(mirrored);
        grid.setZoom(zoom);
        for (const QString &test : tests.split("; ")) {
            const QStringList how = test.section(": ", 0, 0).split(' ');
            for (const QString &setting : how.filter("="))
                grid.setProperty(setting.section('=', 0, 0).toLatin1().constData(), setting.section('=', 1).toInt());
            const auto place = [&](int at) {
                const QStringList numbers = how.last().section('>', at, at).split(',');
                return cell(numbers[0].toInt(), numbers[1].toInt());
            };
            drag(place(0), place(-1), how[0] == "Right" ? Qt::RightButton : Qt::LeftButton,
                 how[0] == "Shift" ? Qt::ShiftModifier : Qt::NoModifier);
            EXPECT_EQ(selection(), test.section(": ", 1).toStdString()) << test.toStdString() << mirrored;
        }
    }
}

TEST_F(ShownGrid, DraggingBeyondTheEdgeScrollsOn)
{
    grid.setColWidth(3, 6000);
    const auto *across = grid.hwndGrid()->horizontalScrollBar();
    for (const bool mirrored : {false, true}) {
        grid.setRightToLeft(mirrored);
        grid.setTopRow(1);
        EXPECT_TRUE(drag(cell(3, 1), at(150, 400), Qt::LeftButton, {}, [this] { return grid.TopRow() > 3; }));
        EXPECT_TRUE(grid.Row() == 3 && grid.RowSel() > 12);
        grid.showCell(50, 1);
        EXPECT_TRUE(drag(cell(50, 1), at(700, -50), Qt::LeftButton, {},
                         [&] { return grid.TopRow() < 40 && across->value() > 50; }));
    }
}

TEST_F(ShownGrid, BordersOfFixedCellsAreDraggedWhenAllowed)
{
    for (const auto &[mirrored, zoom] : {std::pair(false, 100), {true, 200}}) {
        grid.setRightToLeft(mirrored);
        grid.setZoom(zoom);
        grid.setRowHeight(-1, 300);
        grid.setColWidth(-1, 1500);
        grid.setGridFont(QFont("Liberation Sans", 10));
        grid.setAllowUserResizing(FlexGridLook::ResizeNone);
        drag(at(200, 5), at(230, 5));
        EXPECT_EQ(grid.ColWidth(1), 1500) << "not allowed yet";
        grid.setAllowUserResizing(FlexGridLook::ResizeBoth);
        grid.Select(5, 2, 5, 2);
        const int pixel = zoom == 100 ? 15 : 8; // the least there may be
        EXPECT_TRUE(drag(at(200, 5), at(0, 5), Qt::LeftButton, {}, [&] { return grid.ColWidth(1) == pixel; }));
        grid.setColWidth(1, 1500);
        drag(at(200, 5), at(220, 5));
        drag(at(50, 60), at(50, 72));
        EXPECT_EQ(std::pair(grid.ColWidth(1), grid.RowHeight(2)), std::pair(1800, 480));
        EXPECT_EQ(selection(), "5 2 5 2");
        const auto pointerAt = [this](const QPoint &place) {
            QCursor::setPos(viewport()->mapToGlobal(place));
            moveTo(place);
            return viewport()->cursor().shape();
        };
        for (const int reach : {-4, -3, 3, 4}) {
            const bool near = std::abs(reach) < 4;
            EXPECT_EQ(pointerAt(at(220, 5) + QPoint(reach, 0)), near ? Qt::SplitHCursor : Qt::ArrowCursor) << reach;
            EXPECT_EQ(pointerAt(at(50, 72) + QPoint(0, reach)), near ? Qt::SplitVCursor : Qt::ArrowCursor) << reach;
        }
        EXPECT_EQ(pointerAt(at(150, 72)), Qt::ArrowCursor) << "below a word";
        grid.setMousePointer(2);
        EXPECT_EQ(pointerAt(at(150, 30)), Qt::CrossCursor);
        grid.setMousePointer(0);

        grid.setTextMatrix(100, 1, "the longest of all the words in this column of words");
        QTest::mouseDClick(viewport(), Qt::LeftButton, {}, at(220, 5));
        const int needed = QFontMetrics(grid.Font()).horizontalAdvance(grid.TextMatrix(100, 1)) * 15;
        EXPECT_NEAR(grid.ColWidth(1), needed + 100, 100);
        grid.setGridFont(QFont("Liberation Sans", 40));
        QTest::mouseDClick(viewport(), Qt::LeftButton, {}, at(50, 72));
        EXPECT_NEAR(grid.RowHeight(2), QFontMetrics(grid.Font()).height() * 15 + 30, 30);
    }
}

TEST_F(ShownGrid, KeysAndMouseAreToldInTheirNumbers)
{
    QStringList log;
    const auto note = [&log](const char *what) {
        return [&log, what](auto... values) {
            log += what;
            ((log.last() += ' ' + QString::number(values)), ...);
        };
    };
    QObject::connect(&grid, &FlexGrid::KeyDown, &grid, note("down"));
    QObject::connect(&grid, &FlexGrid::KeyPress, &grid, note("press"));
    QObject::connect(&grid, &FlexGrid::KeyUp, &grid, note("up"));
    QObject::connect(&grid, &FlexGrid::MouseDown, &grid, note("mouse down"));
    QObject::connect(&grid, &FlexGrid::MouseMove, &grid, note("move"));
    QObject::connect(&grid, &FlexGrid::MouseUp, &grid, note("mouse up"));
    QObject::connect(&grid, &FlexGrid::Click, &grid, note("click"));
    QObject::connect(grid.hwndGrid(), &FlexGridView::cellDoubleClicked, &grid, note("double"));
    for (const char *keys :
         {"Shift+PgDown", "Return", "Ctrl+Q", "Alt+F1", "Z", "A", "Del", "Num+0", "9", "F24", ";", "Esc", "Backspace"})
        QTest::keySequence(grid.hwndGrid(), QKeySequence(keys));
    drag(QPoint(40, 30), QPoint(41, 31), Qt::RightButton, Qt::ControlModifier);
    drag(QPoint(40, 30), QPoint(40, 30));
    for (const QPoint &place : {cell(0, 1), cell(13, 0), cell(13, 1)})
        QTest::mouseDClick(viewport(), Qt::LeftButton, {}, place);
    grid.Select(15, 1, 15, 1);
    QContextMenuEvent menuKey(QContextMenuEvent::Keyboard, {}, {});
    QCoreApplication::sendEvent(viewport(), &menuKey);
    EXPECT_EQ(
        log.join(", ").toStdString(),
        "down 16 1, down 34 1, up 34 1, up 16 0, down 13 0, press 13, up 13 0, down 17 2, down 81 2, up 81 2, "
        "up 17 0, down 18 4, down 112 4, up 112 4, up 18 0, down 90 0, press 122, up 90 0, down 65 0, press 97, up 65 "
        "0, down 46 0, up 46 0, "
        "down 96 0, press 48, up 96 0, down 57 0, press 57, up 57 0, down 135 0, up 135 0, down 0 0, press 59, "
        "up 0 0, down 27 0, press 27, up 27 0, down 8 0, press 8, up 8 0, mouse down 2 2 600 450, move 1 0 615 465, "
        "mouse up 2 2 615 465, mouse down 1 0 600 450, mouse up 1 0 600 450, click, double, mouse down 2 0 2235 1635, "
        "mouse up 2 0 2235 1635");
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
    grid.resize(200, 200);
    const auto *across = grid.hwndGrid()->horizontalScrollBar(), *down = grid.hwndGrid()->verticalScrollBar();
    for (const int bars : {0, 1, 2, 3}) {
        grid.setScrollBars(bars);
        grid.setScrollTrack(bars == 3);
        EXPECT_EQ(across->isVisible() + 2 * down->isVisible(), bars);
        EXPECT_TRUE(across->hasTracking() == (bars == 3) && down->hasTracking() == (bars == 3));
    }
}

TEST_F(ShownGrid, TheWheelScrollsAndWithCtrlWantsAnotherSize)
{
    QString places;
    QObject::connect(&grid, &FlexGrid::ZoomWanted, &grid, [&places](int step) { places += QString("Z%1 ").arg(step); });
    const auto turn = [&](int across, int down, Qt::KeyboardModifiers keys) {
        QWheelEvent wheel(QPointF(50, 50), viewport()->mapToGlobal(QPointF(50, 50)), {}, QPoint(across, down), {}, keys,
                          Qt::NoScrollPhase, false);
        QSpontaneKeyEvent::setSpontaneous(&wheel); // else it would not go up to the grid
        qApp->notify(viewport(), &wheel);
        places += QString("%1,%2 ").arg(grid.hwndGrid()->horizontalScrollBar()->value()).arg(grid.TopRow());
    };
    grid.setColWidth(3, 6000);
    for (const int delta : {120, -240, 60, 30, 30})
        turn(0, delta, Qt::ControlModifier);
    for (const int onward : {-120, 120}) {
        turn(onward, 0, {});
        turn(onward, onward, {});
        turn(-onward, 0, {});
        grid.setRightToLeft(true);
    }
    EXPECT_EQ(places.toStdString(), "Z1 0,1 Z-2 0,1 0,1 0,1 Z1 0,1 72,1 72,4 0,4 72,4 72,1 0,1 ");
}

TEST_F(ShownGrid, AfterEveryChangeTheScreenShowsWhatTheGridHoldsAndPropertiesAreToldAndStored)
{
    const auto expectShown = [this](const char *what) {
        if (!grid.Redraw())
            grid.setRedraw(true);
        QCoreApplication::processEvents();
        const QImage screen = grid.screen()->grabWindow(grid.winId()).toImage(); // before it is drawn once more
        EXPECT_EQ(screen.convertToFormat(QImage::Format_RGB32),
                  grid.grab().toImage().convertToFormat(QImage::Format_RGB32))
            << what;
    };
    grid.setMergeCells(2);
    const std::pair<const char *, std::function<void()>> steps[] = {
        {"text", [this] { grid.setTextMatrix(2, 2, "word"); }},
        {"clip", [this] { grid.setClip("pasted"); }},
        {"all", [this] { grid.Clear(); }},
        {"rows", [this] { grid.removeRows(2, 1); }},
        {"width", [this] { grid.setColWidth(2, 3000); }},
        {"place", [this] { grid.setTopRow(40); }},
        {"drawing", [this] { grid.setRedraw(false), grid.setRows(5000), grid.setTopRow(4999), grid.setRedraw(true); }}};
    for (const auto &[what, step] : steps) {
        step();
        expectShown(what);
    }
    QSignalSpy told(&grid, &FlexGrid::PropertyChanged);
    for (int i = grid.metaObject()->propertyOffset(); i < grid.metaObject()->propertyCount(); ++i) {
        const QMetaProperty property = grid.metaObject()->property(i);
        int changes = 0;
        for (const QVariant &value : QVariantList{2, 0, 1, 3, QFont("Courier"), QPixmap(2, 2), property.read(&grid)}) {
            const QVariant before = property.read(&grid);
            told.clear();
            const bool changed = property.write(&grid, value) && property.read(&grid) != before;
            EXPECT_TRUE(!changed || told.value(0).value(0) == property.name()) << property.name();
            changes += changed;
            expectShown(property.name());
            FlexGrid other;
            other.loadProperties(grid.saveProperties());
            EXPECT_TRUE(property.read(&other) == property.read(&grid) || property.name() == QString("MouseIcon"));
        }
        EXPECT_GT(changes, 0) << property.name();
    }
}

TEST_F(ShownGrid, TextsStandWhereTheirReadersLook)
{
    QPalette palette = grid.palette();
    palette.setColor(QPalette::Light, Qt::red);
    grid.setPalette(palette);
    grid.setRowHeight(1, 600);
    // a text, its alignment, and the side and the third of the height where it stands
    for (const QString &test : QString("ab 1 left 1, ab 7 right 1, ab 9 left 1, 12 9 right 1, \u05d0\u05d1 1 right 1, "
                                       "\u0628\u064a\u062a 9 right 1, ab 0 left 0, ab 8 right 2")
                                   .split(", ")) {
        grid.setTextMatrix(1, 1, test.section(' ', 0, 0));
        grid.setColAlignment(1, test.section(' ', 1, 1).toInt());
        const QRect ink = inkOfCell();
        const QString side = ink.left() < 8 ? "left" : ink.right() > 90 ? "right" : "middle";
        EXPECT_EQ(side + QString(" %1").arg(ink.center().y() * 3 / 40), test.section(' ', 2)) << test.toStdString();
        for (const int style : {1, 2, 3, 4, 0}) { // raised and inset, which throw light to one side
            grid.setTextStyle(style);
            const int step = style == 0 ? 0 : style % 2 ? -1 : 1;
            EXPECT_EQ(inkOfCell(), (ink | ink.translated(step, step)) & QRect(1, 1, 97, 37)) << style;
        }
    }
    const double line = QFontMetricsF(grid.Font()).height();
    grid.setWordWrap(true);
    grid.setTextMatrix(1, 1, "one two three four five six seven eight");
    EXPECT_NEAR(grid.fittingRowHeight(1) / 15, 3 * line + 2, 2);
    grid.setRowHeight(1, int(line * 1.6 * 15));
    EXPECT_LT(inkOfCell().height(), line) << "no half line below the first";
}

TEST_F(ShownGrid, LettersHaveTheirColours)
{
    grid.setGridFont(QFont("Liberation Sans", 12, QFont::Bold));
    grid.setForeColor(0xFF0001), grid.setForeColorFixed(0xFF0002), grid.setForeColorSel(0xFF0003);
    grid.setCellForeColor(0xFF0004);
    grid.Select(5, 2, 4, 1);
    for (const auto &[row, col, red] : {std::tuple(3, 1, 1), {0, 1, 2}, {4, 1, 3}, {5, 2, 4}}) {
        grid.setTextMatrix(row, col, "HHH");
        const QImage cell = grid.grab(grid.hwndGrid()->cellRect(row, col)).toImage();
        bool found = false;
        for (int i = 0; i < cell.width() * cell.height(); ++i)
            found |= cell.pixelColor(i % cell.width(), i / cell.width()) == QColor(red, 0, 255);
        EXPECT_TRUE(found) << row;
    }
}

TEST_F(ShownGrid, TextsAreCutAtEverySizeWhereTheyAreAtTheNormalOneAndShowAllOfThemselvesAsToolTip)
{
    const QFontMetricsF metrics(grid.Font());
    grid.setWordWrap(true);
    QString word;
    for (int row = 1; row < 9; ++row, word += "il") // what just fits
        grid.setTextMatrix(
            row, 1, word + QString(int((93 - metrics.horizontalAdvance(word)) / metrics.horizontalAdvance("m")), 'm'));
    const QString cut = "<b> & two three four five six seven";
    grid.setTextMatrix(2, 1, cut);
    grid.setTextMatrix(4, 1, "one two three four");
    grid.setRowHeight(4, grid.fittingRowHeight(4));
    const int fitting = grid.fittingRowHeight(2);
    const auto toolTip = [this](int row) {
        grid.setTopRow(row);
        const QPoint at = grid.hwndGrid()->cellRect(row, 1).topLeft() + QPoint(2, 2);
        QHelpEvent asked(QEvent::ToolTip, at, grid.hwndGrid()->viewport()->mapToGlobal(at));
        QEvent newWindow(QEvent::WindowActivate); // before which a tool tip goes at once
        QCoreApplication::sendEvent(&grid, &newWindow);
        QCoreApplication::sendEvent(grid.hwndGrid()->viewport(), &asked);
        return QToolTip::isVisible() ? QToolTip::text() : "";
    };
    for (const int percent : {50, 60, 70, 80, 90, 110, 125, 175, 200, 250, 300, 400, 100}) {
        grid.setZoom(percent);
        EXPECT_EQ(grid.fittingRowHeight(2), fitting) << percent;
        const double points = QFontInfo(QToolTip::font()).pointSizeF() * percent / 100;
        const QString style = percent == 100 ? "" : QString(" style='font-size:%1pt'").arg(points);
        for (int row = 1; row < 9; ++row)
            EXPECT_EQ(toolTip(row), row == 2 ? "<p dir='ltr'" + style + ">" + cut.toHtmlEscaped() + "</p>" : "") << row;
    }
    grid.setWordWrap(false);
    EXPECT_EQ(toolTip(4), "<p dir='ltr'>one two three four</p>");
}
