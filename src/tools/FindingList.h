#pragma once

#include "tools/rules/VocabularyCheck.h"

#include <QAbstractListModel>

class ctlGrid;

/// What looks wrong in a document, each as a line that says what it is.
class FindingList : public QAbstractListModel
{
    Q_OBJECT

public:
    using QAbstractListModel::QAbstractListModel;

    /// Looks through the words of a grid, which must outlive the list or be replaced; null empties the list.
    void lookThrough(const ctlGrid *grid);

    const Finding &at(int line) const { return m_findings.at(size_t(line)); }
    const std::vector<Finding> &all() const { return m_findings; }

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

private:
    QString text(const Finding &finding) const;

    const ctlGrid *m_grid = nullptr;
    std::vector<Finding> m_findings;
};
