#include "document/ctlGrid.h"

#include "document/ctlGridEdit.h"
#include "services/rules/ProgramFlags.h"
#include "widgets/grid/FlexGridView.h"

/// A grid as a document window sets it up, shown and with the focus, that writes down what it tells its container.
struct GridEditing : ::testing::Test
{
    GridEditing()
    {
        grid.loadProperties(ctlGrid::documentDesign());
        grid.setRowNumbers(true);
        grid.setColWidth(-1, 2000);
        grid.resize(500, 300);
        grid.setTextMatrix(1, 1, "house");
        grid.Select(1, 1, 1, 1);
        grid.show();
        grid.activateWindow();
        grid.setFocus();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&grid));
        QObject::connect(&grid, &ctlGrid::BeforeEdit, &grid, [this](int &, int &, bool &cancel) {
            log << "before";
            cancel = refuse;
        });
        QObject::connect(&grid, &ctlGrid::AfterEdit, &grid, [this](int &row, int &col, QString &text) {
            log << QStringLiteral("after %1 %2 %3").arg(row).arg(col).arg(text);
        });
        QObject::connect(&grid, &ctlGrid::KeyPress, &grid,
                         [this](int &key) { log << QStringLiteral("key %1").arg(key); });
    }

    void key(Qt::Key code) { QTest::keyClick(focusTarget(), code); }
    void type(const QString &text) { QTest::keyClicks(focusTarget(), text); }
    QWidget *focusTarget() { return grid.EditMode() ? static_cast<QWidget *>(grid.hwndText()) : grid.hwndGrid(); }
    QString cell(int row, int col) const { return grid.TextMatrix(row, col); }

    ProgramFlags flags;
    ctlGrid grid{&flags};
    QStringList log;
    bool refuse = false;
};

TEST_F(GridEditing, WhatIsTypedDecidesWhatTheBoxHolds)
{
    const std::pair<int, QString> cases[] = {
        {'x', "x"}, {0, "house"}, {0x1F600, "\U0001F600"}, {0xE9, "\u00e9"}, {int(qint16(0x9F8D)), "\u9f8d"}};
    for (const auto &[keyAscii, text] : cases) {
        grid.GridEdit(keyAscii);
        EXPECT_EQ(grid.EditText(), text);
        EXPECT_EQ(grid.hwndText()->cursorPosition(), text.size());
        key(Qt::Key_Escape);
        EXPECT_EQ(cell(1, 1), "house");
    }
}

TEST_F(GridEditing, KeysThatOpenTheBox)
{
    const auto opens = [this] {
        const bool opened = grid.EditMode() && grid.EditText() == "house";
        grid.setEditMode(false);
        return opened;
    };
    for (const char *keys : {"Space", "Backspace", "Esc"}) {
        QTest::keySequence(grid.hwndGrid(), QKeySequence(keys));
        EXPECT_TRUE(opens()) << keys;
    }
    for (const char *keys : {"Return", "Tab", "Del", "F2", "Left", "Ctrl+Q", "Alt+Q"}) {
        QTest::keySequence(grid.hwndGrid(), QKeySequence(keys));
        EXPECT_FALSE(opens()) << keys;
    }
    const QPoint at = grid.hwndGrid()->cellRect(1, 1).center();
    QTest::mouseDClick(grid.hwndGrid()->viewport(), Qt::LeftButton, {}, at);
    EXPECT_TRUE(opens());
    QTest::mouseDClick(grid.hwndGrid()->viewport(), Qt::LeftButton, {}, QPoint(at.x(), 5));
    EXPECT_FALSE(opens()) << "a header is no cell to edit";
}

TEST_F(GridEditing, TheContainerMayChangeOrRefuseWhatIsTyped)
{
    QObject::connect(&grid, &ctlGrid::KeyPress, &grid, [](int &code) {
        if (code == 'q')
            code = 0;
        if (code == 'w')
            code = 'W';
    });
    QObject::connect(&grid, &ctlGrid::AfterEdit, &grid, [](int &, int &, QString &text) { text += '!'; });
    type("q");
    EXPECT_FALSE(grid.EditMode());
    type("w");
    type("xqw");
    EXPECT_EQ(grid.EditText(), "WxW");
    key(Qt::Key_Return);
    EXPECT_EQ(cell(1, 1), "WxW!");
    refuse = true;
    type("x");
    EXPECT_FALSE(grid.EditMode()) << "BeforeEdit cancelled";
}

TEST_F(GridEditing, EditingALongCellKeepsAllOfIt)
{
    grid.setTextMatrix(1, 1, QString(40000, u'x'));
    key(Qt::Key_Space);
    type("y");
    key(Qt::Key_Return);
    EXPECT_EQ(cell(1, 1).size(), 40001);
    EXPECT_EQ(cell(1, 1).indexOf('y'), 1000);
}

TEST_F(GridEditing, ArrowsCommitAndMove)
{
    const std::tuple<int, Qt::Key, int> cases[] = {
        {1, Qt::Key_Down, 2}, {100, Qt::Key_Down, 100}, {2, Qt::Key_Up, 1}, {1, Qt::Key_Up, 1}};
    for (const auto &[row, arrow, after] : cases) {
        grid.Select(row, 1, row, 1);
        type("n");
        key(arrow);
        EXPECT_FALSE(grid.EditMode());
        EXPECT_EQ(cell(row, 1), "n");
        EXPECT_EQ(grid.Row(), after) << row << " " << arrow;
    }
}

TEST_F(GridEditing, LeavingTheCellOrReturningToTheGridCommits)
{
    type("x");
    grid.setEditMode(true);
    EXPECT_EQ(grid.EditText(), "x") << "the same cell again";
    grid.setRow(3);
    EXPECT_EQ(cell(1, 1), "x");
    EXPECT_EQ(log.last(), "after 1 1 x");
    type("y");
    QTest::mouseClick(grid.hwndGrid()->viewport(), Qt::LeftButton, {}, grid.hwndGrid()->cellRect(5, 2).center());
    EXPECT_EQ(cell(3, 1), "y");
    type("z");
    grid.setFocus();
    EXPECT_EQ(cell(5, 2), "z");
    type("moved");
    grid.insertRows(1, 1);
    EXPECT_EQ(cell(6, 2), "moved") << "into its own cell, before the rows move";
}

TEST_F(GridEditing, WhileSearchingTheFocusAloneDoesNotCommit)
{
    flags.FindMode = true;
    grid.setEditMode(true);
    grid.SelectEditText(1, 2);
    grid.setFocus();
    EXPECT_EQ(grid.SelText(), "ou");
    grid.setSelText("OU");
    EXPECT_EQ(grid.EditText(), "hOUse");
    grid.setTextMatrix(1, 1, grid.EditText());
    grid.setEditMode(false);
    EXPECT_EQ(log, QStringList({"before"})) << "the cell holds the text already";
    grid.setEditMode(true);
    type("s");
    grid.setEditMode(false);
    EXPECT_EQ(log.last(), "after 1 1 hOUses") << "what was typed is not lost";
    grid.setEditMode(true);
    grid.setRow(2);
    EXPECT_FALSE(grid.EditMode()) << "leaving the cell commits, also while searching";
}

TEST_F(GridEditing, TheBoxLiesOverItsCellAndStaysInsideTheCells)
{
    const auto cellInGrid = [this] {
        return grid.hwndGrid()->cellRect(grid.Row(), grid.Col()).translated(grid.hwndGrid()->viewport()->pos());
    };
    grid.Select(5, 2, 5, 2);
    type("t");
    EXPECT_EQ(grid.hwndText()->font(), grid.Font());
    EXPECT_EQ(grid.hwndText()->accessibleName(), "Cell B5");
    grid.setTopRow(4);
    grid.setColWidth(1, 3000);
    EXPECT_EQ(grid.hwndText()->geometry(), cellInGrid().adjusted(0, 0, -1, -1));
    grid.setTopRow(50);
    EXPECT_FALSE(grid.rect().intersects(grid.hwndText()->geometry())) << "scrolled away";
    type("u");
    EXPECT_TRUE(grid.RowIsVisible(5)) << "typing brings it back";
    EXPECT_EQ(grid.EditText(), "tu");
}

TEST_F(GridEditing, TheBoxPastesOneLineOnEveryWay)
{
    ctlGridEdit &box = *grid.hwndText();
    grid.setEditMode(true);
    QApplication::clipboard()->setText("a\r\nb\u2028c");
    box.pasteText();
    QTest::keyClick(&box, Qt::Key_V, Qt::ControlModifier);
    box.paste(); // as the box's own menu does
    EXPECT_EQ(grid.EditText(), "housea b ca b ca b c");
}

TEST_F(GridEditing, TheBoxTakesDroppedTextAsACopyAndLeavesFilesAlone)
{
    grid.setEditMode(true);
    for (const bool files : {true, false}) {
        QMimeData dragged;
        dragged.setText("x\ty");
        if (files)
            dragged.setUrls({QUrl("file:///words.gla")});
        QDragEnterEvent enter({2, 2}, Qt::CopyAction | Qt::MoveAction, &dragged, Qt::LeftButton, {});
        enter.setDropAction(Qt::MoveAction);
        QCoreApplication::sendEvent(grid.hwndText(), &enter);
        EXPECT_EQ(enter.isAccepted(), !files);
        QDropEvent drop({2, 2}, Qt::CopyAction | Qt::MoveAction, &dragged, Qt::LeftButton, {});
        drop.setDropAction(Qt::MoveAction);
        if (!files)
            QCoreApplication::sendEvent(grid.hwndText(), &drop);
        EXPECT_EQ(drop.dropAction(), files ? Qt::MoveAction : Qt::CopyAction);
    }
    EXPECT_EQ(grid.EditText(), "x yhouse");
}

void compose(QWidget *receiver, const QString &preedit, const QString &commit = {})
{
    QInputMethodEvent event(preedit, {});
    event.setCommitString(commit);
    QCoreApplication::sendEvent(receiver, &event);
}

TEST_F(GridEditing, ComposedTextOpensTheBox)
{
    compose(focusTarget(), "", "\u00e9");
    EXPECT_EQ(grid.EditText(), "\u00e9");
    compose(focusTarget(), "", "t\u00e9");
    EXPECT_EQ(grid.EditText(), "\u00e9t\u00e9");
    EXPECT_EQ(log, QStringList({"key 233", "before", "key 116", "key 233"}));
    key(Qt::Key_Escape);
    for (const auto &[preedit, commit] : {std::pair("ni", ""), std::pair("hao", "\u4f60"), std::pair("", "\u597d")}) {
        EXPECT_TRUE(grid.hwndGrid()->hasFocus()) << "where it began, or it would break off";
        compose(grid.hwndGrid(), preedit, commit);
    }
    EXPECT_EQ(grid.EditText(), "\u4f60\u597d");
    EXPECT_TRUE(QTest::qWaitFor([this] { return grid.hwndText()->hasFocus(); }));
}

TEST_F(GridEditing, WhatIsComposedIsKeptHoweverTheCellIsLeft)
{
    const std::pair<const char *, std::function<void()>> ways[] = {
        {"another cell", [this] { grid.Select(2, 1, 2, 1); }},
        {"Enter", [this] { QTest::keyClick(grid.focusWidget(), Qt::Key_Return); }},
        {"end of the edit", [this] { grid.setEditMode(false); }},
        {"focus", [this] { grid.hwndText()->setFocus(), grid.hwndGrid()->setFocus(); }},
    };
    for (const bool opened : {false, true}) {
        for (const auto &[name, leave] : ways) {
            grid.setTextMatrix(1, 1, "");
            grid.Select(1, 1, 1, 1);
            if (opened)
                grid.setEditMode(true);
            compose(grid.focusWidget(), "ni");
            QTest::keyClick(grid.focusWidget(), Qt::Key_Shift);
            compose(grid.focusWidget(), "ni hao");
            leave();
            EXPECT_EQ(cell(1, 1), "ni hao") << name << opened;
            EXPECT_FALSE(grid.EditMode()) << name << opened;
        }
    }
}

TEST_F(GridEditing, LettersForAMenuAreNotComposed)
{
    QMenu menu;
    menu.addAction("x");
    const auto composes = [this] {
        QInputMethodQueryEvent asked(Qt::ImEnabled);
        QCoreApplication::sendEvent(grid.focusWidget(), &asked);
        return asked.value(Qt::ImEnabled).toBool();
    };
    for (const bool opened : {false, true}) {
        grid.setEditMode(opened);
        menu.popup({});
        EXPECT_FALSE(composes()) << opened;
        menu.close();
        EXPECT_TRUE(composes()) << opened;
    }
}

TEST_F(GridEditing, AutoSetupBeginsAnew)
{
    type("x");
    grid.AutoSetup("Liberation Serif", 12, 4, 2, 1, 1, "|>L1");
    EXPECT_FALSE(grid.EditMode());
    EXPECT_EQ(grid.Clip() + grid.hwndText()->text(), "");
    EXPECT_EQ(cell(0, 1), "L1");
    EXPECT_EQ(grid.ColAlignment(1) + grid.Rows() * 10 + grid.Cols() * 100, 247);
    EXPECT_EQ(grid.hwndText()->font(), grid.Font());
}

TEST_F(GridEditing, EveryKeyOfTheBoxReachesTheContainerAfterwards)
{
    QStringList keys;
    QObject::connect(&grid, &ctlGrid::KeyDown, &grid, [&](int code, int shift) {
        keys << QString("%1 %2 %3").arg(code).arg(shift).arg(grid.EditMode() ? "edit" : "browse");
    });
    for (const Qt::Key code : {Qt::Key_Left, Qt::Key_Return, Qt::Key_Escape}) {
        grid.setEditMode(true);
        key(code);
    }
    EXPECT_EQ(keys, QStringList({"37 0 edit", "13 0 browse", "27 0 browse"}));
    EXPECT_EQ(log.filter("after"), QStringList{"after 1 1 house"}) << "Escape commits nothing";
}
