#include "GridOperations.h"

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

    ToldGrid grid;
};

TEST_F(ShownGrid, KeysMoveTheCurrentCellAndExtendTheSelection)
{
    // In keys.txt stand keys, and the selection that they make of cell 2 of row 5, before which one is hidden and
    // behind which another; ! where the last key is left to the window. Then the same where the first ones are hidden,
    // too.
    const QStringList tests = QString(readFile(SOURCE_FOLDER "/tests/widgets/keys.txt")).trimmed().split("\n\n");
    for (const int hidden : {4, 6})
        grid.setRowHeight(hidden, 0);
    for (const int round : {0, 1, 2}) {
        const bool mirrored = round == 1;
        grid.setRightToLeft(mirrored);
        grid.setColWidth(1, round == 2 ? 0 : 1500);
        grid.setRowHeight(1, round == 2 ? 0 : 300);
        for (const QString &test : tests[round / 2].split(u'\n')) {
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
    const QString tests = readFile(SOURCE_FOLDER "/tests/widgets/mouse.txt");
    for (const auto &[mirrored, zoom] : {std::pair(false, 100), {true, 50}}) {
        grid.setRightToLeft(mirrored);
        grid.setZoom(zoom);
        for (const QString &test : tests.split(u'\n', Qt::SkipEmptyParts)) {
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
        const int top = grid.TopRow();
        grid.setLeftCol(1);
        EXPECT_TRUE(drag(cell(0, 1), at(700, 400), Qt::LeftButton, {}, [&] { return across->value() > 50; }));
        EXPECT_EQ(grid.TopRow(), top) << "columns are selected from end to end";
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
        for (const int allowed : {1, 2, 3}) {
            grid.setAllowUserResizing(allowed);
            EXPECT_EQ(pointerAt(at(100, 5)), allowed & 1 ? Qt::SplitHCursor : Qt::ArrowCursor);
            EXPECT_EQ(pointerAt(at(50, 20)), allowed & 2 ? Qt::SplitVCursor : Qt::ArrowCursor);
        }
        for (const int reach : {-4, -3, 3, 4}) {
            const bool near = std::abs(reach) < 4;
            EXPECT_EQ(pointerAt(at(220, 5) + QPoint(reach, 0)), near ? Qt::SplitHCursor : Qt::ArrowCursor) << reach;
            EXPECT_EQ(pointerAt(at(50, 72) + QPoint(0, reach)), near ? Qt::SplitVCursor : Qt::ArrowCursor) << reach;
        }
        EXPECT_EQ(pointerAt(at(150, 72)), Qt::ArrowCursor) << "below a word";
        grid.setMouseIcon(QPixmap(3, 3));
        for (const auto &[pointer, shape] : {std::pair(2, Qt::CrossCursor),
                                             {15, Qt::SizeAllCursor},
                                             {16, Qt::ArrowCursor},
                                             {99, Qt::BitmapCursor},
                                             {0, Qt::ArrowCursor}}) {
            grid.setMousePointer(pointer);
            EXPECT_EQ(pointerAt(at(150, 30)), shape) << pointer;
        }

        grid.setTextMatrix(100, 1, "the longest of all the words in this column of words");
        QTest::mouseDClick(viewport(), Qt::LeftButton, {}, at(220, 5));
        const int needed = int(std::ceil(QFontMetricsF(grid.Font()).horizontalAdvance(grid.TextMatrix(100, 1)))) * 15;
        EXPECT_EQ(grid.ColWidth(1), needed + 8 * 15);
        grid.setGridFont(QFont("Liberation Sans", 40));
        QTest::mouseDClick(viewport(), Qt::LeftButton, {}, at(50, 72));
        EXPECT_NEAR(grid.RowHeight(2), QFontMetrics(grid.Font()).height() * 15 + 30, 15);
    }
}

TEST_F(ShownGrid, KeysAndMouseAreToldInTheirNumbers)
{
    const auto note = [this](const char *what) {
        return [this, what](auto... values) {
            grid.told += what;
            ((grid.told.last() += ' ' + QString::number(values)), ...);
        };
    };
    QObject::connect(&grid, &FlexGrid::KeyDown, &grid, note("down"));
    QObject::connect(&grid, &FlexGrid::KeyPress, &grid, note("press"));
    QObject::connect(&grid, &FlexGrid::KeyPress, &grid, [](int &character) { character *= character != 'z'; });
    QObject::connect(&grid, &FlexGrid::KeyUp, &grid, note("up"));
    QObject::connect(&grid, &FlexGrid::MouseDown, &grid, note("mouse down"));
    QObject::connect(&grid, &FlexGrid::MouseMove, &grid, note("move"));
    QObject::connect(&grid, &FlexGrid::MouseUp, &grid, note("mouse up"));
    QObject::connect(&grid, &FlexGrid::Click, &grid, note("click"));
    const auto pressed = [this](Qt::MouseButton button) { return [=, this] { drag({40, 30}, {40, 30}, button); }; };
    const auto twice = [this](int row, int col) {
        return [=, this] { QTest::mouseDClick(viewport(), Qt::LeftButton, {}, cell(row, col)); };
    };
    QContextMenuEvent menuKey(QContextMenuEvent::Keyboard, {}, {});
    playFile(SOURCE_FOLDER "/tests/widgets/told.txt", [this] { return std::exchange(grid.told, {}).join("; "); },
             {{"drag",
               [this] {
                   drag({40, 30}, {41, 31}, Qt::RightButton, Qt::ControlModifier);
               }},
              {"click", pressed(Qt::LeftButton)},
              {"middle", pressed(Qt::MiddleButton)},
              {"twice at the top", twice(0, 1)},
              {"twice at the side", twice(1, 0)},
              {"twice", twice(1, 1)},
              {"menu key", [&] { QCoreApplication::sendEvent(viewport(), &menuKey); }},
              {"away and back", [this] { grid.hwndGrid()->clearFocus(), grid.setFocus(); }}});
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
    const QWidget &view = *grid.hwndGrid();
    EXPECT_TRUE(view.inputMethodQuery(Qt::ImEnabled).toBool());
    grid.setEnabled(false);
    EXPECT_FALSE(view.inputMethodQuery(Qt::ImEnabled).toBool());
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
    for (const char *steps : {"TextMatrix 2 2 5", "Clip 7", "Clear", "removeRows 2 1", "ColWidth 2 3000", "TopRow 40",
                              "Select 41 1 42 2", "Focus 0", "Focus 1", "Redraw 0; Rows 5000; TopRow 4999; Redraw 1"}) {
        perform(grid, steps);
        expectShown(steps);
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
    grid.setColAlignment(1, 1);
    grid.setTextMatrix(1, 1, "one two three four five six seven eight");
    EXPECT_NEAR(grid.fittingRowHeight(1) / 15, 3 * line + 2, 2);
    grid.setRowHeight(1, int(line * 1.6 * 15));
    const QRect wrapped = inkOfCell();
    EXPECT_LT(wrapped.height(), line) << "no half line below the first";
    grid.setWordWrap(false);
    EXPECT_EQ(inkOfCell().width(), wrapped.width()) << "but a sign that there is more";
    grid.setTextMatrix(1, 1, "one");
    EXPECT_EQ(inkOfCell().left(), wrapped.left());
    EXPECT_EQ(grid.fittingRowHeight(1), (int(std::ceil(line)) + 2) * 15);
    grid.setRowNumbers(true);
    grid.setColWidth(0, 60);
    grid.setTopRow(100);
    const QImage number = grid.grab(grid.hwndGrid()->cellRect(100, 0)).toImage();
    EXPECT_LT(number.width() / 2, inkOf(number.copy(1, 1, number.width() - 3, 17), number.pixelColor(1, 1)).width());
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
        EXPECT_TRUE(cell.convertToFormat(QImage::Format_Indexed8).colorTable().contains(QColor(red, 0, 255).rgb()));
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
