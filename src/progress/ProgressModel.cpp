#include "progress/ProgressModel.h"

#include "memory/Day.h"
#include "resources/StringTable.h"
#include "services/rules/TextDigits.h"

#include <QLocale>

#include <numeric>

namespace {

constexpr int FirstHeading = 14405;
constexpr int DueNow = 14424;
constexpr int Nothing = 14439; ///< what a screen reader says of an empty cell

} // namespace

void ProgressModel::setList(const ProgressList &list)
{
    beginResetModel();
    m_list = list;
    arrange();
    endResetModel();
}

QStringList ProgressModel::headings()
{
    QStringList texts;
    for (int column = 0; column < Columns; ++column)
        texts += resText(FirstHeading + column);
    return texts;
}

int ProgressModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_list.count();
}

int ProgressModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : Columns;
}

QVariant ProgressModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount() || index.column() >= Columns)
        return {};
    const int position = m_order[size_t(index.row())];
    if (role == Qt::DisplayRole)
        return text(position, index.column());
    if (role == Qt::AccessibleTextRole) {
        const QString shown = text(position, index.column());
        return shown.isEmpty() ? resText(Nothing) : shown;
    }
    if (role == Qt::UserRole && index.column() == Strength)
        return m_list.strength(position);
    if (role == Qt::TextAlignmentRole && index.column() >= Asked)
        return int(Qt::AlignTrailing | Qt::AlignVCenter);
    return {};
}

QString ProgressModel::text(int position, int column) const
{
    const auto &[row, word, card] = m_list.at(position);
    if (column == Word)
        return word.asked;
    if (column == Answer)
        return word.answer;
    if (card.isNew() && column != Asked)
        return {};
    const auto day = [](int number) { return TextDigits::date(Day::date(number)); };
    switch (column) {
    case Asked:
        return TextDigits::numbers().toString(card.asked);
    case Right:
        return TextDigits::numbers().toString(card.asked - card.missed);
    case Last:
        return day(card.last);
    case NextDue:
        return m_list.state(position) == ProgressList::Due ? resText(DueNow) : day(card.due);
    default:
        return resText(14426).arg(m_list.strength(position));
    }
}

QVariant ProgressModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section >= Columns)
        return {};
    return resText(FirstHeading + section);
}

void ProgressModel::sort(int column, Qt::SortOrder order)
{
    Q_EMIT layoutAboutToBeChanged();
    const QModelIndexList before = persistentIndexList();
    std::vector<int> positions;
    for (const QModelIndex &index : before)
        positions.push_back(m_order[size_t(index.row())]);
    m_sortColumn = column;
    m_descending = order == Qt::DescendingOrder;
    arrange();
    std::vector<int> lines(m_order.size());
    for (size_t line = 0; line < m_order.size(); ++line)
        lines[size_t(m_order[line])] = int(line);
    for (qsizetype i = 0; i < before.size(); ++i)
        changePersistentIndex(before[i], index(lines[size_t(positions[size_t(i)])], before[i].column()));
    Q_EMIT layoutChanged();
}

void ProgressModel::arrange()
{
    if (m_sortColumn < 0) {
        m_order.resize(size_t(m_list.count()));
        std::iota(m_order.begin(), m_order.end(), 0);
    } else if (m_sortColumn <= Answer) {
        m_order = m_list.orderedBy(ProgressList::Text(m_sortColumn), m_descending);
    } else {
        m_order = m_list.orderedBy(ProgressList::Number(m_sortColumn - Asked), m_descending);
    }
}
