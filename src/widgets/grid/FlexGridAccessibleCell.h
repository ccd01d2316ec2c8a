#pragma once

#include <QAccessible>
#include <QPointer>

class FlexGridAccessible;
class FlexGridView;

/// One cell of a flex grid for screen readers: the cell at a row and a column, whatever it holds. It is not valid while
/// the grid has no such cell.
class FlexGridAccessibleCell : public QAccessibleInterface,
                               public QAccessibleTableCellInterface,
                               public QAccessibleActionInterface
{
public:
    FlexGridAccessibleCell(FlexGridView *view, int row, int col);

    int row() const { return m_row; }
    int col() const { return m_col; }

    bool isValid() const override;
    QObject *object() const override { return nullptr; }
    QWindow *window() const override;
    void *interface_cast(QAccessible::InterfaceType type) override;
    QAccessibleInterface *parent() const override;
    QAccessibleInterface *child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }
    QAccessibleInterface *childAt(int, int) const override { return nullptr; }
    QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text, const QString &) override {}
    QRect rect() const override;
    QAccessible::Role role() const override;
    QAccessible::State state() const override;

    bool isSelected() const override;
    QList<QAccessibleInterface *> columnHeaderCells() const override;
    QList<QAccessibleInterface *> rowHeaderCells() const override;
    int columnIndex() const override;
    int rowIndex() const override;
    int columnExtent() const override { return 1; }
    int rowExtent() const override { return 1; }
    QAccessibleInterface *table() const override { return parent(); }

    QStringList actionNames() const override;
    void doAction(const QString &action) override;
    QStringList keyBindingsForAction(const QString &) const override { return {}; }

private:
    bool isFixed() const;
    FlexGridAccessible *grid() const;

    QPointer<FlexGridView> m_view;
    int m_row;
    int m_col;
};
