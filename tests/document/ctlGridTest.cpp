#include "document/ctlGrid.h"

#include "document/ctlGridEdit.h"
#include "services/rules/ProgramFlags.h"
#include "widgets/FlexGridView.h"

#include <QClipboard>

namespace {

/// A grid as a document window sets it up, shown and with the focus, that writes down what it tells its container.
class GridEditing : public ::testing::Test
{
protected:
    GridEditing()
    {
        grid.loadProperties(ctlGrid::documentDesign());
        grid.setRowNumbers(true);
        grid.setColWidth(-1, 2000);
        grid.resize(500, 300);
        grid.setTextMatrix(1, 1, QStringLiteral("house"));
        grid.Select(1, 1, 1, 1);
        grid.show();
        grid.activateWindow();
        grid.setFocus();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&grid));
        QObject::connect(&grid, &ctlGrid::BeforeEdit, &grid, [this](int &, int &, bool &cancel) {
            log << QStringLiteral("before");
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

} // namespace

TEST_F(GridEditing, TypingReplacesTheTextAndEnterCommitsIt)
{
    type(QStringLiteral("a"));
    EXPECT_EQ(grid.EditText(), QStringLiteral("a"));
    EXPECT_EQ(grid.hwndText()->cursorPosition(), 1);
    EXPECT_TRUE(grid.hwndText()->hasFocus());
    key(Qt::Key_Return);
    EXPECT_FALSE(grid.EditMode());
    EXPECT_TRUE(grid.hwndGrid()->hasFocus());
    EXPECT_EQ(cell(1, 1), QStringLiteral("a"));
    EXPECT_EQ(log, QStringList({"key 97", "before", "after 1 1 a", "key 13"}));
}

TEST_F(GridEditing, WhatIsTypedDecidesWhatTheBoxHolds)
{
    struct Case
    {
        int keyAscii;
        const char *text;
    };
    for (const Case &c : {Case{'x', "x"}, Case{32, "house"}, Case{27, "house"}, Case{8, "house"}, Case{0, "house"},
                          Case{0x1F600, "\U0001F600"}, Case{0xE9, "\u00e9"}, Case{int(qint16(0x9F8D)), "\u9f8d"}}) {
        grid.GridEdit(c.keyAscii);
        EXPECT_EQ(grid.EditText(), QString::fromUtf8(c.text)) << c.keyAscii;
        EXPECT_EQ(grid.hwndText()->cursorPosition(), grid.EditText().size());
        key(Qt::Key_Escape);
        EXPECT_EQ(cell(1, 1), QStringLiteral("house"));
    }
}

TEST_F(GridEditing, KeysThatOpenTheBox)
{
    const auto text = [this] {
        const QString opened = grid.EditMode() ? grid.EditText() : QStringLiteral("(browsing)");
        grid.setEditMode(false);
        return opened;
    };
    const std::pair<Qt::Key, const char *> cases[] = {{Qt::Key_Space, "house"},    {Qt::Key_Backspace, "house"},
                                                      {Qt::Key_Escape, "house"},   {Qt::Key_Return, "(browsing)"},
                                                      {Qt::Key_Tab, "(browsing)"}, {Qt::Key_Delete, "(browsing)"},
                                                      {Qt::Key_F2, "(browsing)"},  {Qt::Key_Left, "(browsing)"}};
    for (const auto &[code, expected] : cases) {
        key(code);
        EXPECT_EQ(text(), QString::fromLatin1(expected)) << code;
    }
    QTest::keyClick(grid.hwndGrid(), Qt::Key_Q, Qt::ControlModifier);
    QTest::keyClick(grid.hwndGrid(), Qt::Key_Q, Qt::AltModifier);
    EXPECT_EQ(text(), QStringLiteral("(browsing)"));
    grid.setEditMode(true);
    EXPECT_EQ(text(), QStringLiteral("house"));
    const QPoint at = grid.hwndGrid()->cellRect(1, 1).center();
    QTest::mouseDClick(grid.hwndGrid()->viewport(), Qt::LeftButton, {}, at);
    EXPECT_EQ(text(), QStringLiteral("house"));
    QTest::mouseDClick(grid.hwndGrid()->viewport(), Qt::LeftButton, {}, QPoint(at.x(), 5));
    EXPECT_EQ(text(), QStringLiteral("(browsing)")) << "a header is no cell to edit";
}

TEST_F(GridEditing, TheContainerMayChangeOrSwallowWhatIsTyped)
{
    QObject::connect(&grid, &ctlGrid::KeyPress, &grid, [](int &code) {
        if (code == 'q')
            code = 0;
        if (code == 'w')
            code = 'W';
    });
    type(QStringLiteral("q"));
    EXPECT_FALSE(grid.EditMode());
    type(QStringLiteral("w"));
    type(QStringLiteral("xqw"));
    EXPECT_EQ(grid.EditText(), QStringLiteral("WxW"));
    refuse = true;
    key(Qt::Key_Escape);
    type(QStringLiteral("x"));
    EXPECT_FALSE(grid.EditMode()) << "BeforeEdit cancelled";
}

TEST_F(GridEditing, EditingALongCellKeepsAllOfIt)
{
    const QString text(40000, u'x');
    grid.setTextMatrix(1, 1, text);
    key(Qt::Key_Space);
    type(QStringLiteral("y"));
    key(Qt::Key_Return);
    EXPECT_EQ(cell(1, 1), QString(text + u'y'));
}

TEST_F(GridEditing, ArrowsCommitAndMove)
{
    struct Case
    {
        int row;
        Qt::Key key;
        int after;
    };
    for (const Case &c :
         {Case{1, Qt::Key_Down, 2}, Case{100, Qt::Key_Down, 100}, Case{2, Qt::Key_Up, 1}, Case{1, Qt::Key_Up, 1}}) {
        grid.Select(c.row, 1, c.row, 1);
        type(QStringLiteral("n"));
        key(c.key);
        EXPECT_FALSE(grid.EditMode());
        EXPECT_EQ(cell(c.row, 1), QStringLiteral("n"));
        EXPECT_EQ(grid.Row(), c.after) << c.row << " " << c.key;
    }
}

TEST_F(GridEditing, LeavingTheCellOrReturningToTheGridCommits)
{
    type(QStringLiteral("x"));
    grid.setRow(3);
    EXPECT_EQ(cell(1, 1), QStringLiteral("x"));
    EXPECT_EQ(log.last(), QStringLiteral("after 1 1 x"));
    type(QStringLiteral("y"));
    QTest::mouseClick(grid.hwndGrid()->viewport(), Qt::LeftButton, {}, grid.hwndGrid()->cellRect(5, 2).center());
    EXPECT_EQ(cell(3, 1), QStringLiteral("y"));
    type(QStringLiteral("z"));
    grid.setFocus();
    EXPECT_EQ(cell(5, 2), QStringLiteral("z"));
    type(QStringLiteral("moved"));
    grid.insertRows(1, 1);
    EXPECT_EQ(cell(6, 2), QStringLiteral("moved")) << "into its own cell, before the rows move";
}

TEST_F(GridEditing, EditingTheSameCellAgainLosesNothing)
{
    type(QStringLiteral("typed"));
    grid.setEditMode(true);
    EXPECT_EQ(grid.EditText(), QStringLiteral("typed"));
    EXPECT_EQ(log.last(), QStringLiteral("before"));
    EXPECT_EQ(cell(1, 1), QStringLiteral("typed"));
}

TEST_F(GridEditing, WhileSearchingTheFocusAloneDoesNotCommit)
{
    flags.FindMode = true;
    grid.setEditMode(true);
    grid.SelectEditText(1, 2);
    EXPECT_EQ(grid.SelText(), QStringLiteral("ou"));
    grid.setFocus();
    EXPECT_TRUE(grid.EditMode());
    grid.setSelText(QStringLiteral("OU"));
    EXPECT_EQ(grid.EditText(), QStringLiteral("hOUse"));
    grid.setTextMatrix(1, 1, grid.EditText());
    grid.setEditMode(false);
    EXPECT_FALSE(grid.EditMode());
    EXPECT_EQ(log, QStringList({"before"})) << "the cell holds the text already";
    grid.setEditMode(true);
    type(QStringLiteral("s"));
    grid.setEditMode(false);
    EXPECT_EQ(log.last(), QStringLiteral("after 1 1 hOUses")) << "what was typed is not lost";
    grid.setEditMode(true);
    grid.setRow(2);
    EXPECT_FALSE(grid.EditMode()) << "leaving the cell commits, also while searching";
}

TEST_F(GridEditing, AContainerMayCorrectTheCommittedText)
{
    QObject::connect(&grid, &ctlGrid::AfterEdit, &grid, [](int &, int &, QString &text) { text = text.toUpper(); });
    type(QStringLiteral("abc"));
    key(Qt::Key_Return);
    EXPECT_EQ(cell(1, 1), QStringLiteral("ABC"));
}

TEST_F(GridEditing, TheBoxLiesOverItsCellAndStaysInsideTheCells)
{
    const auto cellInGrid = [this] {
        return grid.hwndGrid()->cellRect(grid.Row(), grid.Col()).translated(grid.hwndGrid()->viewport()->pos());
    };
    grid.Select(5, 2, 5, 2);
    type(QStringLiteral("t"));
    EXPECT_EQ(grid.hwndText()->geometry(), cellInGrid().adjusted(0, 0, -1, -1));
    EXPECT_EQ(grid.hwndText()->font(), grid.Font());
    EXPECT_EQ(grid.hwndText()->accessibleName(), QStringLiteral("Cell B5"));
    grid.setTopRow(4);
    grid.setColWidth(1, 3000);
    EXPECT_EQ(grid.hwndText()->geometry(), cellInGrid().adjusted(0, 0, -1, -1));
    grid.setTopRow(50);
    EXPECT_TRUE(grid.EditMode());
    EXPECT_FALSE(grid.rect().intersects(grid.hwndText()->geometry())) << "scrolled away";
    type(QStringLiteral("u"));
    EXPECT_TRUE(grid.RowIsVisible(5)) << "typing brings it back";
    EXPECT_EQ(grid.EditText(), QStringLiteral("tu"));
}

TEST_F(GridEditing, UndoInTheBoxTogglesTheLastTyping)
{
    ctlGridEdit &box = *grid.hwndText();
    grid.setEditMode(true);
    EXPECT_FALSE(box.canUndoText());
    type(QStringLiteral("boat"));
    EXPECT_TRUE(box.canUndoText());
    for (const char *text : {"house", "houseboat", "house"}) {
        box.undoText();
        EXPECT_EQ(grid.EditText(), QString::fromLatin1(text));
        EXPECT_TRUE(box.canUndoText());
    }
    type(QStringLiteral("x"));
    QTest::keyClick(&box, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(grid.EditText(), QStringLiteral("house"));
}

TEST_F(GridEditing, TheBoxCutsCopiesAndPastesOneLine)
{
    ctlGridEdit &box = *grid.hwndText();
    grid.setEditMode(true);
    grid.SelectEditText(0, 3);
    box.cutText();
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("hou"));
    EXPECT_EQ(grid.EditText(), QStringLiteral("se"));
    QApplication::clipboard()->setText(QStringLiteral("a\r\nb\u2028c"));
    box.pasteText();
    EXPECT_EQ(grid.EditText(), QStringLiteral("a b cse"));
    QTest::keyClick(&box, Qt::Key_V, Qt::ControlModifier);
    box.paste(); // as the box's own menu does
    EXPECT_EQ(grid.EditText(), QStringLiteral("a b ca b ca b cse"));
}

TEST_F(GridEditing, ComposedTextOpensTheBox)
{
    const auto send = [this](const QString &preedit, const QString &commit) {
        QInputMethodEvent event(preedit, {});
        event.setCommitString(commit);
        QCoreApplication::sendEvent(focusTarget(), &event);
    };
    send(QString(), QStringLiteral("\u00e9"));
    EXPECT_EQ(grid.EditText(), QStringLiteral("\u00e9"));
    send(QString(), QStringLiteral("t\u00e9"));
    EXPECT_EQ(grid.EditText(), QStringLiteral("\u00e9t\u00e9"));
    key(Qt::Key_Return);
    EXPECT_EQ(log, QStringList({"key 233", "before", "key 116", "key 233", u"after 1 1 \u00e9t\u00e9"_qs, "key 13"}));
    send(QStringLiteral("ni"), QString());
    EXPECT_TRUE(grid.EditMode());
    EXPECT_EQ(grid.EditText(), QString());
    send(QString(), QStringLiteral("\u4f60"));
    EXPECT_EQ(grid.EditText(), QStringLiteral("\u4f60"));
}

TEST_F(GridEditing, TabStaysAndDoesNothing)
{
    key(Qt::Key_Tab);
    EXPECT_TRUE(grid.hwndGrid()->hasFocus());
    type(QStringLiteral("a"));
    key(Qt::Key_Tab);
    EXPECT_TRUE(grid.hwndText()->hasFocus());
    EXPECT_EQ(grid.EditText(), QStringLiteral("a"));
}

TEST_F(GridEditing, EveryKeyOfTheBoxReachesTheContainerAfterwards)
{
    QStringList keys;
    QObject::connect(&grid, &ctlGrid::KeyDown, &grid, [&](int code, int shift) {
        keys << QStringLiteral("%1 %2 %3").arg(code).arg(shift).arg(grid.EditMode() ? "edit" : "browse");
    });
    grid.setEditMode(true);
    keys.clear();
    key(Qt::Key_Left);
    key(Qt::Key_Return);
    grid.setEditMode(true);
    key(Qt::Key_Escape);
    EXPECT_EQ(keys, QStringList({"37 0 edit", "13 0 browse", "27 0 browse"}));
    EXPECT_EQ(log.filter("after"), QStringList{"after 1 1 house"}) << "Escape commits nothing";
}

TEST_F(GridEditing, AutoSetupStartsAfresh)
{
    type(QStringLiteral("a"));
    grid.AutoSetup(QStringLiteral("Arial"), 12, 4, 3, 2, 1, QStringLiteral("|^One|Two"));
    EXPECT_FALSE(grid.EditMode());
    EXPECT_EQ(grid.Rows() * 100 + grid.Cols() * 10 + grid.FixedRows(), 432);
    EXPECT_EQ(grid.Font().pointSizeF(), 12);
    EXPECT_EQ(cell(0, 1) + cell(1, 1), QStringLiteral("One"));
}
