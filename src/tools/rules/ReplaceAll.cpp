#include "tools/rules/ReplaceAll.h"

namespace {

/// One cell on its way through the replacement. What remains to be searched is the tail of the last replacement and the
/// rest of the original text behind it; everything before is final.
class Passage
{
public:
    Passage(QStringView text, const TextFinder &finder)
        : m_finder(finder)
        , m_rest(text)
    {
    }

    /// Moves everything before the next match to the final text and drops the match; false when there is none.
    bool takeUpToMatch() { return takeMatchInTail() || (!m_failed && takeMatchInRest()); }

    void insertAsFinal(const QString &with)
    {
        m_final += with;
        m_end = m_final.size();
    }

    /// Inserts a text whose first character is passed over and whose others are searched. An empty one passes over the
    /// character behind.
    void insertAndSearch(const QString &with)
    {
        m_end = m_final.size() + with.size();
        if (!with.isEmpty()) {
            m_final += with.front();
            m_tail = QStringView(with).mid(1);
        } else if (!m_rest.isEmpty()) {
            m_final += m_rest.front();
            m_rest = m_rest.mid(1);
        }
    }

    QString finish()
    {
        m_final += m_tail;
        m_final += m_rest;
        return std::move(m_final);
    }

    /// Where the text that was inserted last ends.
    qsizetype end() const { return m_end; }

    void reserve(qsizetype size) { m_final.reserve(size); }

private:
    /// The tail alone never holds the search text: a match that begins in it reaches into the rest.
    bool takeMatchInTail()
    {
        const qsizetype overlap = std::min(m_tail.size(), m_finder.length() - 1);
        if (overlap == 0)
            return false;
        const qsizetype first = m_tail.size() - overlap;
        QString window = m_tail.mid(first).toString();
        window += m_rest.left(m_finder.length());
        const qsizetype found = m_finder.indexIn(window);
        if (found < 0 || found >= overlap)
            return false;
        const qsizetype start = first + found;
        const qsizetype taken = m_finder.length() - (overlap - found); // of the rest
        if (!m_finder.acceptsBetween(start > 0 ? m_tail[start - 1] : QChar(),
                                     taken < m_rest.size() ? m_rest[taken] : QChar())) {
            m_failed = true;
            return false;
        }
        m_final += m_tail.left(start);
        m_tail = {};
        m_rest = m_rest.mid(taken);
        return true;
    }

    bool takeMatchInRest()
    {
        const qsizetype found = m_finder.indexIn(m_rest);
        if (found < 0)
            return false;
        const qsizetype end = found + m_finder.length();
        const QChar beforeRest = m_tail.isEmpty() ? QChar() : m_tail.back();
        if (!m_finder.acceptsBetween(found > 0 ? m_rest[found - 1] : beforeRest,
                                     end < m_rest.size() ? m_rest[end] : QChar()))
            return false;
        m_final += m_tail;
        m_final += m_rest.left(found);
        m_tail = {};
        m_rest = m_rest.mid(end);
        return true;
    }

    const TextFinder &m_finder;
    QString m_final;
    qsizetype m_end = 0;
    QStringView m_tail;
    QStringView m_rest;
    bool m_failed = false;
};

} // namespace

ReplaceAll::ReplaceAll(const Search &search, const QString &ReplaceWith)
    : m_finder(search.finder())
    , m_flags(search.SearchFlags)
    , m_with(ReplaceWith)
    , m_withHoldsWhat(ReplaceWith.contains(search.FindWhat, Qt::CaseInsensitive))
{
}

ReplaceAll::Summary ReplaceAll::run(CellStore &cells) const
{
    Summary summary;
    if (!(m_flags & SearchFlag::Language2))
        runColumn(cells, 1, summary);
    if (!(m_flags & SearchFlag::Language1))
        runColumn(cells, 2, summary);
    return summary;
}

void ReplaceAll::runColumn(CellStore &cells, int col, Summary &summary) const
{
    for (int row = 1; row < cells.Rows(); ++row) {
        const Replaced result = replaced(cells.TextMatrix(row, col));
        if (result.count == 0)
            continue;
        summary = {summary.count + result.count, row, col, int(result.end)};
        cells.setTextMatrix(row, col, result.text);
    }
}

ReplaceAll::Replaced ReplaceAll::replaced(const QString &text) const
{
    Replaced result;
    Passage passage(text, m_finder);
    while (passage.takeUpToMatch()) {
        if (result.count++ == 0)
            passage.reserve(text.size() + m_with.size());
        if (m_withHoldsWhat)
            passage.insertAsFinal(m_with);
        else
            passage.insertAndSearch(m_with);
    }
    if (result.count > 0)
        result.text = passage.finish();
    result.end = passage.end();
    return result;
}
