#pragma once

#include "progress/rules/ProgressList.h"

#include <QAbstractTableModel>

/// The table of the progress window: a line for each word, sorted by any column.
class ProgressModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Word, Answer, Asked, Right, Last, NextDue, Strength, Columns };

    using QAbstractTableModel::QAbstractTableModel;

    void setList(const ProgressList &list);
    const ProgressList &list() const { return m_list; }
    const ProgressWord &at(int line) const { return m_list.at(m_order[size_t(line)]); }
    /// Positions in the list, line by line.
    const std::vector<int> &order() const { return m_order; }
    static QStringList headings();

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    void sort(int column, Qt::SortOrder order) override;

private:
    QString text(int position, int column) const;
    void arrange();

    ProgressList m_list;
    std::vector<int> m_order;
    int m_sortColumn = -1; ///< as in the vocabulary
    bool m_descending = false;
};
