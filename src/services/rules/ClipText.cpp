#include "services/rules/ClipText.h"

namespace {

bool endsField(QChar ch)
{
    return ch == u'\t' || ch == u'\r' || ch == u'\n';
}

/// Takes a text apart from its start to its end.
class Reader
{
public:
    explicit Reader(const QString &text)
        : m_text(text)
    {
    }

    ClipText::Row takeRow()
    {
        ClipText::Row row;
        bool another = true;
        while (another) {
            row.push_back(takeField());
            another = !atEnd() && m_text[m_at] == u'\t';
            if (another)
                ++m_at;
        }
        return row;
    }

    /// Passes over the end of a row; whether another one follows.
    bool rowFollows()
    {
        if (atEnd())
            return false;
        if (m_text[m_at] == u'\r')
            ++m_at;
        const bool lineFeed = !atEnd() && m_text[m_at] == u'\n';
        if (lineFeed)
            ++m_at;
        return !lineFeed || !atEnd();
    }

private:
    bool atEnd() const { return m_at >= m_text.size(); }

    QString takeField()
    {
        const qsizetype closing = closingQuote();
        if (closing < 0)
            return takePlainField();
        QString field = m_text.mid(m_at + 1, closing - m_at - 1);
        m_at = closing + 1;
        return field.replace(QStringLiteral("\"\""), QStringLiteral("\""));
    }

    QString takePlainField()
    {
        const qsizetype start = m_at;
        while (!atEnd() && !endsField(m_text[m_at]))
            ++m_at;
        return m_text.mid(start, m_at - start);
    }

    /// Position of the quote that closes a quoted field here; -1 when the field is none. Spreadsheets double the quotes
    /// inside; without a line feed inside, quotes are part of the word.
    qsizetype closingQuote() const
    {
        if (atEnd() || m_text[m_at] != u'"')
            return -1;
        bool lineFeed = false;
        for (qsizetype i = m_at + 1; i < m_text.size(); ++i) {
            lineFeed |= m_text[i] == u'\n';
            if (m_text[i] != u'"')
                continue;
            const bool last = i + 1 == m_text.size();
            if (last || endsField(m_text[i + 1]))
                return lineFeed ? i : -1;
            if (m_text[++i] != u'"')
                return -1;
        }
        return -1;
    }

    const QString &m_text;
    qsizetype m_at = 0;
};

} // namespace

namespace ClipText {

std::vector<Row> parse(const QString &text)
{
    std::vector<Row> rows;
    Reader reader(text);
    do
        rows.push_back(reader.takeRow());
    while (reader.rowFollows());
    return rows;
}

QString emptyClip(int rows, int cols)
{
    const QString row(cols == 2 ? QStringLiteral("\t\r") : QStringLiteral("\r"));
    return row.repeated(rows);
}

} // namespace ClipText
