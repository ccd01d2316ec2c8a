#include "widgets/grid/FlexGrid.h"
#include "widgets/grid/FlexGridView.h"

struct SpokenGrid : ::testing::Test
{
    SpokenGrid()
    {
        grid.setRows(5);
        grid.setCols(3);
        grid.setRowNumbers(true);
        grid.setTextMatrix(0, 2, "German");
        grid.setTextMatrix(2, 1, "house");
        grid.resize(400, 78); // the last row is out of sight
        grid.show();
        grid.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&grid));
        grid.setFocus();
        interface = QAccessible::queryAccessibleInterface(grid.hwndGrid());
        table = interface->tableInterface();
    }

    /// What is said of a cell: ^ or < for headers, its text, its place, what heads it, * selected, > the focus, ~ out
    /// of sight, - disabled.
    static QString told(QAccessibleInterface &cell)
    {
        const QAccessible::State state = cell.state();
        QString text = cell.role() == QAccessible::ColumnHeader ? "^"
                       : cell.role() == QAccessible::RowHeader  ? "<"
                                                                : "";
        text += cell.text(QAccessible::Name) + cell.text(QAccessible::Description);
        if (QAccessibleTableCellInterface *place = cell.tableCellInterface()) {
            text += QString(" %1,%2").arg(place->rowIndex()).arg(place->columnIndex());
            for (const QAccessibleInterface *header : place->columnHeaderCells() + place->rowHeaderCells())
                text += '/' + header->text(QAccessible::Name);
            EXPECT_TRUE(place->isSelected() == state.selected && state.focusable && state.selectable);
        }
        return text + (state.selected ? "*" : "") + (state.focused ? ">" : "") + (state.offscreen ? "~" : "") +
               (state.disabled ? "-" : "");
    }
    QString told() const
    {
        QStringList lines(QString("%1 %2").arg(table->rowCount()).arg(table->columnCount()));
        for (int i = 0; i < interface->childCount(); ++i) {
            QAccessibleInterface *cell = interface->child(i);
            EXPECT_EQ(interface->indexOfChild(cell), i);
            EXPECT_EQ(cell->parent(), interface);
            const QPoint middle = cell->rect().center();
            EXPECT_EQ(interface->childAt(middle.x(), middle.y()), cell->state().offscreen ? nullptr : cell);
            i % 3 ? lines.last() += " | " + told(*cell) : (lines += told(*cell), lines.last());
        }
        return lines.join('\n');
    }

    FlexGrid grid;
    QAccessibleInterface *interface;
    QAccessibleTableInterface *table;
};

TEST_F(SpokenGrid, TellsOfEveryCell)
{
    grid.Select(2, 2, 3, 1);
    EXPECT_EQ(told().toStdString(), "4 2\n"
                                    "^ | ^ | ^German\n"
                                    "<1 |  0,0//1 |  0,1/German/1\n"
                                    "<2 | house 1,0//2* |  1,1/German/2*>\n"
                                    "<3 |  2,0//3* |  2,1/German/3*\n"
                                    "<4~ |  3,0//4~ |  3,1/German/4~");
    EXPECT_EQ(interface->focusChild(), table->cellAt(1, 1));
    EXPECT_EQ(table->columnDescription(1) + table->rowDescription(2), "German3");
    EXPECT_EQ(told(*table->selectedCells().at(0)), "house 1,0//2*");
    grid.setEnabled(false);
    EXPECT_EQ(told(*table->cellAt(0, 0)), " 0,0//1-");
    QAccessibleInterface *last = table->cellAt(3, 1);
    grid.setRows(2);
    EXPECT_TRUE(!last->isValid() && last->state().invalid && told(*last).isEmpty() && last->rect().isEmpty());
}

TEST_F(SpokenGrid, SelectsByPlaceAndTellsWhatIsSelected)
{
    const auto selected = [this] {
        QStringList whole;
        for (const int row : table->selectedRows())
            whole += 'r' + QString::number(row);
        for (const int column : table->selectedColumns())
            whole += 'c' + QString::number(column);
        for (int i = -1; i < 5; ++i) {
            EXPECT_EQ(table->isRowSelected(i), whole.contains('r' + QString::number(i)));
            EXPECT_EQ(table->isColumnSelected(i), whole.contains('c' + QString::number(i)));
        }
        EXPECT_EQ(table->selectedCellCount(), table->selectedCells().size());
        return whole.join(' ') + QString(" %1").arg(table->selectedCellCount());
    };
    EXPECT_EQ(selected(), " 1");
    EXPECT_TRUE(table->selectRow(2));
    EXPECT_EQ(selected(), "r2 2");
    EXPECT_TRUE(table->selectColumn(1));
    EXPECT_EQ(selected(), "c1 4");
    grid.Select(2, 1, 3, 2);
    EXPECT_EQ(selected(), "r1 r2 4");
    const int most = std::numeric_limits<int>::max();
    for (const int bad : {-1, 4, 77, most, std::numeric_limits<int>::min()}) {
        EXPECT_FALSE(table->cellAt(bad, 0) || table->cellAt(0, bad) || (bad != 4 && interface->child(bad)));
        EXPECT_EQ(table->columnDescription(bad) + table->rowDescription(bad), QString());
        EXPECT_FALSE(table->selectRow(bad) || table->selectColumn(bad) || table->unselectRow(bad));
    }
    int pressed = 0;
    QObject::connect(grid.hwndGrid(), &FlexGridView::cellDoubleClicked, &grid, [&pressed] { ++pressed; });
    QAccessibleActionInterface *cell = table->cellAt(3, 0)->actionInterface();
    for (const QString &action : cell->actionNames())
        cell->doAction(action);
    EXPECT_EQ(grid.selection(), (GridSelection{4, 1, 4, 1}));
    EXPECT_TRUE(pressed == 1 && grid.RowIsVisible(4));
    EXPECT_TRUE(interface->child(0)->actionInterface()->actionNames().isEmpty());
}
