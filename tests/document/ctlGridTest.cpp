#include "document/ctlGrid.h"

#include "document/ctlGridEdit.h"
#include "services/rules/ProgramFlags.h"
#include "widgets/FlexGridView.h"

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

    void key(int code) { QTest::keyClick(focusTarget(), Qt::Key(code)); }
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
    EXPECT_TRUE(grid.EditMode());
    EXPECT_EQ(grid.EditText(), QStringLiteral("a"));
    EXPECT_EQ(grid.hwndText()->cursorPosition(), 1);
    key(Qt::Key_Return);
    EXPECT_FALSE(grid.EditMode());
    EXPECT_EQ(cell(1, 1), QStringLiteral("a"));
    EXPECT_EQ(log, QStringList({"key 97", "before", "after 1 1 a", "key 13"}));
}

TEST_F(GridEditing, EscapeKeepsTheOldText)
{
    type(QStringLiteral("b"));
    key(Qt::Key_Escape);
    EXPECT_FALSE(grid.EditMode());
    EXPECT_EQ(cell(1, 1), QStringLiteral("house"));
    EXPECT_EQ(log, QStringList({"key 98", "before", "key 27"}));
}
