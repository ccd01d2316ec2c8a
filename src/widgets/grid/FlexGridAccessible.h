#pragma once

#include <QAccessible>
#include <QAccessibleWidget>

#include <unordered_map>

class FlexGridView;

/// Shows a flex grid to screen readers as a table. Its children are all cells, row by row with the fixed ones first;
/// the table itself counts only the cells that are not fixed, whose headers the fixed ones are. Any index may be asked
/// for: outside the grid there is no cell.
class FlexGridAccessible : public QAccessibleWidget, public QAccessibleTableInterface
{
public:
    /// Makes every flex grid that is created speak this way.
    static void install();
    /// Tells screen readers, if there are any, where the current cell is, that other cells are selected, what a cell
    /// holds now, or that rows or columns have come or gone.
    static void announceCurrentCell(FlexGridView &view);
    static void announceSelection(FlexGridView &view);
    static void announceText(FlexGridView &view, int row, int col);
    static void announceReset(FlexGridView &view);

    explicit FlexGridAccessible(FlexGridView *view);
    Q_DISABLE_COPY(FlexGridAccessible)
    ~FlexGridAccessible() override;

    /// The cell's interface, null outside the grid.
    QAccessibleInterface *cell(int row, int col) const;
    FlexGridView &view() const;

    void *interface_cast(QAccessible::InterfaceType type) override;
    QString text(QAccessible::Text kind) const override;
    int childCount() const override;
    QAccessibleInterface *child(int index) const override;
    int indexOfChild(const QAccessibleInterface *child) const override;
    QAccessibleInterface *childAt(int x, int y) const override;
    QAccessibleInterface *focusChild() const override;

    QAccessibleInterface *caption() const override { return nullptr; }
    QAccessibleInterface *summary() const override { return nullptr; }
    QAccessibleInterface *cellAt(int row, int column) const override;
    int selectedCellCount() const override;
    QList<QAccessibleInterface *> selectedCells() const override;
    QString columnDescription(int column) const override;
    QString rowDescription(int row) const override;
    int selectedColumnCount() const override;
    int selectedRowCount() const override;
    int columnCount() const override;
    int rowCount() const override;
    QList<int> selectedColumns() const override;
    QList<int> selectedRows() const override;
    bool isColumnSelected(int column) const override;
    bool isRowSelected(int row) const override;
    bool selectRow(int row) override;
    bool selectColumn(int column) override;
    bool unselectRow(int row) override;
    bool unselectColumn(int column) override;
    void modelChange(QAccessibleTableModelChangeEvent *event) override;

private:
    int selectedRowSpan() const;
    int selectedColumnSpan() const;
    void forgetCells();

    mutable std::unordered_map<int, QAccessible::Id> m_cells; ///< by child index
};
