#include "widgets/FlexGrid.h"
#include "widgets/FlexGridView.h"

#include <QAccessible>

#include <limits>

namespace {

class SpokenGrid : public ::testing::Test
{
protected:
    SpokenGrid()
    {
        grid.setRows(5);
        grid.setCols(3);
        grid.setRowNumbers(true);
        grid.setTextMatrix(0, 1, QStringLiteral("English"));
        grid.setTextMatrix(2, 1, QStringLiteral("house"));
        grid.setAccessibleName(QStringLiteral("Words"));
        grid.resize(400, 200);
        grid.show();
        interface = QAccessible::queryAccessibleInterface(grid.hwndGrid());
        table = interface->tableInterface();
    }

    FlexGrid grid;
    QAccessibleInterface *interface;
    QAccessibleTableInterface *table;
};

} // namespace

TEST_F(SpokenGrid, NamesCellsAndTheirHeaders)
{
    EXPECT_EQ(interface->text(QAccessible::Name), QStringLiteral("Words"));
    EXPECT_EQ(table->rowCount() * 10 + table->columnCount(), 42);
    QAccessibleInterface *cell = table->cellAt(1, 0);
    EXPECT_EQ(cell->text(QAccessible::Name), QStringLiteral("house"));
    EXPECT_EQ(interface->child(interface->indexOfChild(cell)), cell);
    EXPECT_EQ(cell->tableCellInterface()->rowIndex(), 1);
    EXPECT_EQ(cell->tableCellInterface()->columnHeaderCells().at(0)->text(QAccessible::Name),
              QStringLiteral("English"));
    EXPECT_EQ(cell->tableCellInterface()->rowHeaderCells().at(0)->text(QAccessible::Name), QStringLiteral("2"));
    EXPECT_EQ(table->columnDescription(0) + table->rowDescription(3), QStringLiteral("English4"));
    EXPECT_EQ(interface->child(1)->role(), QAccessible::ColumnHeader);
    EXPECT_EQ(interface->child(3)->role(), QAccessible::RowHeader);
    const QPoint inside = cell->rect().center();
    EXPECT_EQ(interface->childAt(inside.x(), inside.y()), cell);
}

TEST_F(SpokenGrid, AnswersEveryIndex)
{
    const int most = std::numeric_limits<int>::max();
    for (const int bad : {-1, 77, most, std::numeric_limits<int>::min()}) {
        EXPECT_EQ(table->cellAt(bad, 0), nullptr);
        EXPECT_EQ(table->cellAt(0, bad), nullptr);
        EXPECT_EQ(interface->child(bad), nullptr);
        EXPECT_EQ(table->columnDescription(bad) + table->rowDescription(bad), QString());
        EXPECT_FALSE(table->selectRow(bad) || table->selectColumn(bad));
        EXPECT_FALSE(table->isRowSelected(bad) || table->isColumnSelected(bad));
    }
    QAccessibleInterface *last = table->cellAt(3, 1);
    grid.setRows(2);
    EXPECT_FALSE(last->isValid());
    EXPECT_EQ(last->text(QAccessible::Name), QString());
    EXPECT_TRUE(last->state().invalid);
}

TEST_F(SpokenGrid, SelectsAndTellsWhatIsSelected)
{
    EXPECT_TRUE(table->selectRow(2));
    EXPECT_EQ(table->selectedRows(), QList<int>({2}));
    EXPECT_EQ(table->selectedCellCount(), 2);
    EXPECT_EQ(grid.RowSel() * 10 + grid.ColSel(), 32);
    EXPECT_TRUE(table->cellAt(2, 1)->state().selected);
    EXPECT_TRUE(table->selectColumn(1));
    EXPECT_EQ(table->selectedColumns(), QList<int>({1}));
    EXPECT_EQ(table->selectedRows(), QList<int>());
    table->cellAt(3, 0)->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
    EXPECT_EQ(grid.Row() * 10 + grid.Col(), 41);
}
