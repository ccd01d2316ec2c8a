#include "tools/frmColRow.h"

#include "platform/Twips.h"
#include "support/OpenDocument.h"

struct SizeDialog : ::testing::Test, OpenDocument
{
    SizeDialog()
        : OpenDocument(Words(9))
    {
    }

    /// Types a size over the one shown and presses a key.
    void answer(frmColRow::Mode mode, const QString &size, Qt::Key key)
    {
        frmColRow dialog(document, mode, &window);
        dialog.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
        QWidget *box = dialog.focusWidget();
        QTest::keyClick(box, Qt::Key_Delete);
        QTest::keyClicks(box, size);
        QTest::keyClick(box, key);
        EXPECT_FALSE(dialog.isVisible());
    }
    int heightPixels(int row) const { return Twips::toPixelsY(grid.RowHeight(row)); }
    int widthPixels(int col) const { return Twips::toPixelsX(grid.ColWidth(col)); }
};

TEST_F(SizeDialog, SetsTheSelectedRowsWhenASizeIsGiven)
{
    grid.setRowHeight(7, 600);
    select(7, 1, 3, 1);
    EXPECT_EQ(frmColRow(document, frmColRow::RowHeight, &window).findChild<QLineEdit *>()->selectedText(), "40");
    grid.setRowHeight(7, 285);
    answer(frmColRow::RowHeight, "", Qt::Key_Return);
    answer(frmColRow::RowHeight, "50", Qt::Key_Escape);
    EXPECT_EQ(heightPixels(7), 19);
    answer(frmColRow::RowHeight, "30", Qt::Key_Return);
    for (int row = 1; row <= 9; ++row)
        EXPECT_EQ(heightPixels(row), row >= 3 && row <= 7 ? 30 : 19) << row;
    EXPECT_GE(heightPixels(0), QFontMetricsF(grid.Font()).height() + 6);
    answer(frmColRow::RowHeight, "99999999", Qt::Key_Return);
    EXPECT_GT(heightPixels(3), 100000);
}

TEST_F(SizeDialog, SetsTheSelectedColumnsAndKeepsTheNumbersReadable)
{
    grid.setRows(100001);
    grid.setColWidth(0, 0);
    grid.setColWidth(1, 3000);
    select(1, 1, 1, 2);
    EXPECT_EQ(frmColRow(document, frmColRow::ColumnWidth, &window).findChild<QLineEdit *>()->selectedText(), "200");
    answer(frmColRow::ColumnWidth, "5", Qt::Key_Return);
    EXPECT_EQ(widthPixels(1) + widthPixels(2), 10);
    EXPECT_GE(widthPixels(0), QFontMetricsF(grid.Font()).horizontalAdvance("100000") + 6);
}
