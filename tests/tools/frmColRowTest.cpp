#include "tools/frmColRow.h"

#include "platform/Twips.h"
#include "support/OpenDocument.h"

struct SizeDialog : ::testing::Test, OpenDocument
{
    /// Types a size over the one shown and presses a key. What the dialog showed.
    std::string answer(frmColRow::Mode mode, const QString &size, Qt::Key key)
    {
        frmColRow dialog(document, mode, &window);
        dialog.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
        const std::string before = shown(dialog).toStdString();
        const QSize framed = dialog.size() + QSize(0, dialog.style()->pixelMetric(QStyle::PM_TitleBarHeight));
        EXPECT_EQ(QRect(dialog.pos(), framed).center(), window.frameGeometry().center());
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Delete);
        QTest::keyClicks(dialog.focusWidget(), size);
        QTest::keyClick(dialog.focusWidget(), key);
        EXPECT_FALSE(dialog.isVisible());
        return before;
    }
    int heightPixels(int row) const { return Twips::toPixelsY(grid.RowHeight(row)); }
};

TEST_F(SizeDialog, SetsTheSelectedRowsAndColumnsWhenASizeIsGiven)
{
    setWords(Words(9));
    grid.setRowHeight(7, 600);
    select(7, 1, 3, 1);
    EXPECT_EQ(answer(frmColRow::RowHeight, "", Qt::Key_Return),
              "Set Row Height | &Row Height: | ><40> | OK | Cancel | ?");
    answer(frmColRow::RowHeight, "50", Qt::Key_Escape);
    EXPECT_EQ(heightPixels(7), 40);
    answer(frmColRow::RowHeight, "30", Qt::Key_Return);
    for (int row = 1; row <= 9; ++row)
        EXPECT_EQ(heightPixels(row), row >= 3 && row <= 7 ? 30 : 19) << row;
    EXPECT_GE(heightPixels(0), QFontMetricsF(grid.Font()).height() + 6);
    answer(frmColRow::RowHeight, "99999999", Qt::Key_Return);
    EXPECT_GT(heightPixels(3), 100000);

    grid.setRows(100001);
    grid.setColWidth(0, 0), grid.setColWidth(1, 3000);
    select(1, 1, 1, 2);
    EXPECT_EQ(answer(frmColRow::ColumnWidth, "5", Qt::Key_Return),
              "Set Column Width | &Column Width: | ><200> | OK | Cancel | ?");
    EXPECT_EQ(grid.ColWidth(1) + grid.ColWidth(2), Twips::fromPixelsX(10));
    EXPECT_GE(Twips::toPixelsX(grid.ColWidth(0)), QFontMetricsF(grid.Font()).horizontalAdvance("100000") + 6);
}
