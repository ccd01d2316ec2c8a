#include "widgets/grid/FlexGrid.h"
#include "widgets/grid/FlexGridView.h"

struct SpokenGrid : ::testing::Test
{
    SpokenGrid()
    {
        grid.setRows(5);
        grid.setCols(3);
        grid.setRowNumbers(true);
        grid.setTextMatrix(0, 0, "No.");
        grid.setTextMatrix(0, 1, "English");
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
    QString told(QAccessibleInterface &cell) const
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
            const QString headers =
                table->columnDescription(place->columnIndex()) + '/' + table->rowDescription(place->rowIndex());
            EXPECT_TRUE(text.endsWith('/' + headers));
            EXPECT_TRUE(place->isSelected() == state.selected);
        }
        const bool isData = cell.tableCellInterface();
        EXPECT_TRUE(state.focusable == isData && state.selectable == isData);
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
                                    "^No. | ^English | ^German\n"
                                    "<1 |  0,0/English/1 |  0,1/German/1\n"
                                    "<2 | house 1,0/English/2* |  1,1/German/2*>\n"
                                    "<3 |  2,0/English/3* |  2,1/German/3*\n"
                                    "<4~ |  3,0/English/4~ |  3,1/German/4~");
    EXPECT_EQ(interface->focusChild(), table->cellAt(1, 1));
    EXPECT_EQ(table->cellAt(1, 1)->window(), grid.window()->windowHandle());
    EXPECT_EQ(told(*table->selectedCells().at(0)), "house 1,0/English/2*");
    grid.setEnabled(false);
    EXPECT_EQ(interface->focusChild(), nullptr);
    EXPECT_EQ(told(*table->cellAt(0, 0)), " 0,0/English/1-");
    QAccessibleInterface *last = table->cellAt(3, 1);
    const QAccessibleTableCellInterface *place = last->tableCellInterface();
    grid.setRows(2);
    EXPECT_TRUE(!last->isValid() && last->state().invalid && told(*last).isEmpty() && last->rect().isEmpty());
    EXPECT_TRUE(place->rowIndex() == -1 && place->columnIndex() == -1 && place->rowHeaderCells().isEmpty());
}

TEST_F(SpokenGrid, SelectsByPlaceAndTellsWhatIsSelected)
{
    const auto selected = [this] {
        QList<int> rows, columns;
        for (int i = -1; i < 5; ++i) {
            rows += QList<int>(table->isRowSelected(i), i);
            columns += QList<int>(table->isColumnSelected(i), i);
        }
        EXPECT_TRUE(rows == table->selectedRows() && columns == table->selectedColumns());
        EXPECT_EQ(table->selectedCellCount(), table->selectedCells().size());
        return std::tuple(rows.value(0, -1), rows.size(), columns.value(0, -1), columns.size(),
                          table->selectedCellCount());
    };
    EXPECT_EQ(selected(), std::tuple(-1, 0, -1, 0, 1));
    EXPECT_TRUE(table->selectRow(0));
    EXPECT_EQ(selected(), std::tuple(0, 1, -1, 0, 2));
    EXPECT_TRUE(table->selectColumn(0));
    EXPECT_EQ(selected(), std::tuple(-1, 0, 0, 1, 4));
    grid.Select(2, 1, 3, 2);
    EXPECT_EQ(selected(), std::tuple(1, 2, -1, 0, 4));
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
    grid.setFixedCols(0), grid.setCols(0);
    EXPECT_EQ(interface->child(0), nullptr);
}
