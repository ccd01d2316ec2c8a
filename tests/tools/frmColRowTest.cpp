#include "tools/frmColRow.h"

#include "platform/Twips.h"
#include "support/OpenDocument.h"

#include <QFontMetricsF>

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

TEST_F(SizeDialog, SetsTheSelectedRows)
{
    select(7, 1, 3, 1);
    answer(frmColRow::RowHeight, "30", Qt::Key_Return);
    for (int row = 1; row <= 9; ++row)
        EXPECT_EQ(heightPixels(row), row >= 3 && row <= 7 ? 30 : 19) << row;
    EXPECT_GE(heightPixels(0), QFontMetricsF(grid.Font()).height() + 6);
}

TEST_F(SizeDialog, SetsTheSelectedColumnsAndKeepsTheNumbersReadable)
{
    grid.setRows(100001);
    grid.setColWidth(0, 0);
    select(1, 2, 1, 1);
    answer(frmColRow::ColumnWidth, "5", Qt::Key_Return);
    EXPECT_EQ(widthPixels(1), 5);
    EXPECT_EQ(widthPixels(2), 5);
    EXPECT_GE(widthPixels(0), QFontMetricsF(grid.Font()).horizontalAdvance("100000") + 6);
}

TEST_F(SizeDialog, ShowsTheCurrentSizeInPixels)
{
    grid.setRowHeight(2, 600);
    grid.setColWidth(2, 3000);
    select(2, 2, 3, 2);
    for (const auto &[mode, size] : {std::pair(frmColRow::RowHeight, "40"), {frmColRow::ColumnWidth, "200"}})
        EXPECT_EQ(frmColRow(document, mode, &window).findChild<QLineEdit *>()->selectedText(), size);
}

TEST_F(SizeDialog, ChangesNothingWithoutASize)
{
    answer(frmColRow::RowHeight, "", Qt::Key_Return);
    answer(frmColRow::RowHeight, "50", Qt::Key_Escape);
    EXPECT_EQ(heightPixels(1), 19);
    answer(frmColRow::RowHeight, "99999999", Qt::Key_Return);
    EXPECT_GT(heightPixels(1), 100000);
}
