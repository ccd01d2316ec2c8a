#include "widgets/grid/FlexGrid.h"
#include "widgets/grid/FlexGridView.h"

struct SpokenGrid : ::testing::Test
{
    SpokenGrid()
    {
        grid.setRows(5);
        grid.setCols(3);
        grid.setRowNumbers(true);
        grid.setTextMatrix(2, 1, "house");
        grid.resize(400, 200);
        grid.show();
        interface = QAccessible::queryAccessibleInterface(grid.hwndGrid());
        table = interface->tableInterface();
    }

    FlexGrid grid;
    QAccessibleInterface *interface;
    QAccessibleTableInterface *table;
};

TEST_F(SpokenGrid, AnswersEveryIndex)
{
    const int most = std::numeric_limits<int>::max();
    for (const int bad : {-1, 77, most, std::numeric_limits<int>::min()}) {
        EXPECT_FALSE(table->cellAt(bad, 0) || table->cellAt(0, bad) || interface->child(bad));
        EXPECT_EQ(table->columnDescription(bad) + table->rowDescription(bad), QString());
        EXPECT_FALSE(table->selectRow(bad) || table->selectColumn(bad));
        EXPECT_FALSE(table->isRowSelected(bad) || table->isColumnSelected(bad));
    }
    QAccessibleInterface *last = table->cellAt(3, 1);
    grid.setRows(2);
    EXPECT_FALSE(last->isValid());
    EXPECT_EQ(last->text(QAccessible::Name), QString());
}

TEST_F(SpokenGrid, FindsSelectsAndTellsWhatIsSelected)
{
    QAccessibleInterface *cell = table->cellAt(1, 0);
    EXPECT_EQ(interface->child(interface->indexOfChild(cell)), cell);
    EXPECT_EQ(interface->childAt(cell->rect().center().x(), cell->rect().center().y()), cell);
    EXPECT_EQ(cell->text(QAccessible::Name), "house");
    EXPECT_EQ(cell->tableCellInterface()->rowHeaderCells().at(0)->text(QAccessible::Name), "2");
    EXPECT_TRUE(table->selectRow(2));
    EXPECT_EQ(table->selectedRows(), QList<int>({2}));
    EXPECT_EQ(table->selectedCellCount(), 2);
    EXPECT_TRUE(table->cellAt(2, 1)->state().selected);
    EXPECT_TRUE(table->selectColumn(1));
    EXPECT_EQ(table->selectedColumns(), QList<int>({1}));
    table->cellAt(3, 0)->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
    EXPECT_EQ(grid.Row() * 10 + grid.Col(), 41);
}
