#include "document/ctlGrid.h"

#include "document/ctlGridEdit.h"
#include "document/rules/Vocabulary.h"
#include "services/rules/ProgramFlags.h"
#include "widgets/grid/FlexGridCellText.h"
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
        QObject::connect(&grid, &ctlGrid::BeforeEdit, &grid, [this](int &, int &, bool &cancel) { cancel = refuse; });
        QObject::connect(&grid, &ctlGrid::AfterEdit, &grid, [this] { news += "stored"; });
        QObject::connect(&grid, &ctlGrid::KeyPress, &grid, [this](int &code) { news += QString::number(code); });
        QObject::connect(&grid, &ctlGrid::Click, &grid, [this] { news += "click"; });
        QObject::connect(&box, &ctlGridEdit::menuRequested, &grid, [this] { news += "menu"; });
    }

    void press(const char *key) { QTest::keySequence(grid.focusWidget(), QKeySequence(key)); }
    void type(const QString &text) { QTest::keyClicks(grid.focusWidget(), text); }
    /// The current cell, its text or [the edit box], which of them has the focus, and what was told since.
    QString state()
    {
        QStringList parts{QString("%1,%2").arg(grid.Row()).arg(grid.Col()),
                          grid.EditMode() ? '[' + grid.EditText() + ']' : grid.Text(),
                          box.hasFocus() == grid.EditMode() ? ""
                          : view.hasFocus()                 ? "view"
                                                            : "elsewhere"};
        parts += std::exchange(news, {});
        parts.removeAll("");
        return parts.join(' ');
    }
    static void compose(QWidget *receiver, const QString &preedit, const QString &commit = {})
    {
        QInputMethodEvent event(preedit, {});
        event.setCommitString(commit);
        QCoreApplication::sendEvent(receiver, &event);
    }

    ProgramFlags flags;
    ctlGrid grid{&flags};
    ctlGridEdit &box = *grid.hwndText();
    FlexGridView &view = *grid.hwndGrid();
    bool refuse = false;
    QStringList news;
};

TEST_F(GridEditing, WhatIsTypedDecidesWhatTheBoxHolds)
{
    const std::pair<int, QString> cases[] = {
        {'x', "x"}, {0, "house"}, {0x1F600, "\U0001F600"}, {0xE9, "\u00e9"}, {int(qint16(0x9F8D)), "\u9f8d"}};
    for (const auto &[keyAscii, text] : cases) {
        grid.GridEdit(keyAscii);
        EXPECT_EQ(grid.EditText(), text);
        EXPECT_EQ(box.cursorPosition(), text.size());
        press("Esc");
        EXPECT_EQ(grid.TextMatrix(1, 1), "house");
    }
    grid.setTextMatrix(1, 1, QString(40000, u'x')); // all of it is kept
    press("Space");
    type("y");
    press("Return");
    EXPECT_EQ(grid.TextMatrix(1, 1), QString(1000, u'x') + 'y' + QString(39000, u'x'));
}

TEST_F(GridEditing, KeysAndMouseOpenTheBoxAndStoreItsText)
{
    const auto at = [this](int row, int col) { return view.cellRect(row, col).center(); };
    QContextMenuEvent menu(QContextMenuEvent::Mouse, {2, 2}, {2, 2});
    const Actions actions = {
        {"twice", [&] { QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, at(1, 1)); }},
        {"header", [&] { QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, at(0, 1)); }},
        {"B5", [&] { QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, at(5, 2)); }},
        {"row 3", [&] { grid.setRow(3); }},
        {"last", [&] { grid.setRow(100); }},
        {"focus", [&] { grid.setFocus(); }},
        {"edit", [&] { grid.setEditMode(true); }},
        {"end", [&] { grid.setEditMode(false); }},
        {"replace", [&] { grid.SelectEditText(0, 2), grid.setFocus(), grid.setSelText(grid.SelText().toUpper()); }},
        {"store", [&] { grid.setTextMatrix(1, 1, grid.EditText()); }},
        {"no search", [&] { flags.FindMode = false; }},
        {"search", [&] { flags.FindMode = true, grid.Select(1, 1, 1, 1); }},
        {"insert", [&] { grid.insertRows(1, 1), grid.setRow(2); }},
        {"empty", [&] { grid.setTextMatrix(1, 1, ""), grid.Select(1, 1, 1, 1); }},
        {"give view", [&] { compose(&view, "", "\u00e9"); }},
        {"give box", [&] { compose(&box, "", "t\u00e9"); }},
        {"ni", [&] { compose(&view, "ni"); }},
        {"ni hao", [&] { compose(&view, "hao", "\u4f60"); }},
        {"hao", [&] { compose(&view, "", "\u597d"); }},
        {"back", [&] { grid.Select(1, 1, 1, 1); }},
        {"Shift", [&] { QTest::keyClick(grid.focusWidget(), Qt::Key_Shift); }},
        {"compose", [&] { compose(grid.focusWidget(), "ni"); }},
        {"go on", [&] { compose(grid.focusWidget(), "ni hao"); }},
        {"box", [&] { box.setFocus(), QTest::mouseClick(&box, Qt::LeftButton); }},
        {"menu", [&] { QCoreApplication::sendEvent(&box, &menu); }},
        {"wait", [&] { EXPECT_TRUE(QTest::qWaitFor([&] { return box.hasFocus(); })); }},
    };
    // while a search is open the focus alone stores nothing
    playFile(
        SOURCE_FOLDER "/tests/document/data/grid_keys.txt", [this] { return state(); }, actions);
}

TEST_F(GridEditing, TheContainerMayChangeOrRefuseWhatIsTyped)
{
    QObject::connect(&grid, &ctlGrid::KeyPress, &grid, [](int &code) {
        code = code == 'q' ? 0 : code == 'w' ? 'W' : code;
    });
    QObject::connect(&grid, &ctlGrid::AfterEdit, &grid, [](int &, int &, QString &text) { text += '!'; });
    play("q -> 1,1 house 113, w -> 1,1 [W] 119, xqw -> 1,1 [WxW] 120 113 119, Return -> 1,1 WxW! stored 13, "
         "refuse -> 1,1 WxW!, x -> 1,1 WxW! 120",
         [this] { return state(); }, {{"refuse", [this] { refuse = true; }}});
}

TEST_F(GridEditing, TheBoxLiesOverItsCellAndStaysInsideTheCells)
{
    grid.Select(5, 2, 5, 2);
    type("t");
    EXPECT_EQ(box.accessibleName(), "Cell B5");
    EXPECT_NE(box.palette().color(QPalette::Base), grid.palette().color(QPalette::Base));
    const QImage drawn = box.grab().toImage();
    for (const QPoint &at : {QPoint(1, 9), {drawn.width() - 2, 9}, {40, 1}, {40, drawn.height() - 2}})
        EXPECT_EQ(drawn.pixelColor(at), box.palette().highlight().color()) << "a frame of two pixels " << at.y();
    EXPECT_EQ(box.textMargins().left(), FlexGridCellText::Margin - 2);
    grid.setTopRow(4);
    grid.setColWidth(1, 4500);
    EXPECT_EQ(box.geometry(), view.cellRect(5, 2).translated(view.viewport()->pos()).adjusted(0, 0, -1, -1));
    EXPECT_FALSE(box.mask().isEmpty()) << "beyond the edge of the cells";
    grid.setColWidth(1, 2000);
    EXPECT_TRUE(box.mask().isEmpty());
    grid.setTopRow(50);
    EXPECT_FALSE(grid.rect().intersects(box.geometry())) << "scrolled away";
    type("u");
    EXPECT_TRUE(grid.RowIsVisible(5)) << "typing brings it back";
    EXPECT_EQ(grid.EditText(), "tu");
}

TEST_F(GridEditing, TextEntersTheBoxAsOneLineAndDroppedTextAsACopy)
{
    grid.setEditMode(true);
    QApplication::clipboard()->setText("a\r\nb\u2028c");
    box.pasteText();
    QTest::keyClick(&box, Qt::Key_V, Qt::ControlModifier);
    box.paste(); // as the box's own menu does
    EXPECT_EQ(grid.EditText(), "housea b ca b ca b c");
    QMimeData dragged;
    for (const bool files : {true, false}) {
        dragged.clear();
        files ? dragged.setUrls({QUrl("file:///words.gla")}) : dragged.setText("x\ty");
        QDragEnterEvent enter({2, 2}, Qt::CopyAction | Qt::MoveAction, &dragged, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&box, &enter);
        EXPECT_EQ(enter.isAccepted(), !files);
    }
    QDropEvent drop({2, 2}, Qt::CopyAction | Qt::MoveAction, &dragged, Qt::LeftButton, {});
    drop.setDropAction(Qt::MoveAction);
    QCoreApplication::sendEvent(&box, &drop);
    EXPECT_EQ(drop.dropAction(), Qt::CopyAction);
    EXPECT_EQ(grid.EditText(), "x yhousea b ca b ca b c");
}
