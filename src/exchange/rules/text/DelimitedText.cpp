#include "exchange/rules/text/DelimitedText.h"

#include <map>

const QString DelimitedText::Dash = QStringLiteral(" - ");
const QString DelimitedText::Equals = QStringLiteral("=");

namespace {

constexpr qsizetype SampleLines = 200;
constexpr qsizetype SampleLetters = qsizetype(128) * 1024;

bool isBreak(QChar c)
{
    return c == u'\n' || c == u'\r';
}

bool isDash(QChar c)
{
    return c == u'-' || c == u'\u2013' || c == u'\u2014';
}

bool isBlank(QChar c)
{
    return c == u' ' || c == u'\t' || c == u'\u00A0';
}

qsizetype dashIn(QStringView line)
{
    for (qsizetype i = 1; i + 1 < line.size(); ++i) {
        if (isDash(line[i]) && isBlank(line[i - 1]) && isBlank(line[i + 1]))
            return i;
    }
    return -1;
}

/// Takes a text apart from its start to its end.
class Splitter
{
public:
    Splitter(QStringView text, const QString &separator)
        : m_text(text)
        , m_separator(separator)
        , m_inTwo(separator == DelimitedText::Dash || separator == DelimitedText::Equals)
    {
        m_lastQuote = m_inTwo ? -1 : m_text.lastIndexOf(u'"');
    }

    bool atEnd() const { return m_at >= m_text.size(); }

    void takeRow(TextTable &table)
    {
        if (m_inTwo)
            takePair(table);
        else
            takeCells(table);
        table.endRow();
        if (!atEnd())
            m_at += m_text[m_at] == u'\r' && m_at + 1 < m_text.size() && m_text[m_at + 1] == u'\n' ? 2 : 1;
    }

private:
    qsizetype lineEnd() const
    {
        qsizetype end = m_at;
        while (end < m_text.size() && !isBreak(m_text[end]))
            ++end;
        return end;
    }

    void takePair(TextTable &table)
    {
        const QStringView line = m_text.mid(m_at, lineEnd() - m_at);
        const qsizetype parting = m_separator == DelimitedText::Dash ? dashIn(line) : line.indexOf(u'=');
        table.addCell((parting < 0 ? line : line.left(parting)).trimmed());
        if (parting >= 0)
            table.addCell(line.mid(parting + 1).trimmed());
        m_at += line.size();
    }

    void takeCells(TextTable &table)
    {
        bool another = true;
        while (another) {
            takeCell(table);
            another = separatorAt(m_at);
            if (another)
                m_at += m_separator.size();
        }
    }

    bool separatorAt(qsizetype at) const { return !m_separator.isEmpty() && m_text.mid(at).startsWith(m_separator); }

    bool cellEndsAt(qsizetype at) const { return at >= m_text.size() || isBreak(m_text[at]) || separatorAt(at); }

    void takeCell(TextTable &table)
    {
        const qsizetype closing = !atEnd() && m_text[m_at] == u'"' ? closingQuote() : -1;
        if (closing < 0)
            return takePlainCell(table);
        const QStringView inside = m_text.mid(m_at + 1, closing - m_at - 1);
        if (inside.contains(u'"'))
            table.addCell(inside.toString().replace(QStringLiteral("\"\""), QStringLiteral("\"")));
        else
            table.addCell(inside);
        m_at = closing + 1;
    }

    void takePlainCell(TextTable &table)
    {
        const qsizetype start = m_at;
        const QChar first = m_separator.isEmpty() ? QChar(u'\n') : m_separator.front();
        while (m_at < m_text.size() && !isBreak(m_text[m_at]) && (m_text[m_at] != first || !separatorAt(m_at)))
            ++m_at;
        table.addCell(m_text.mid(start, m_at - start));
    }

    /// Of the quote that stands here: where the cell ends with another. -1: nowhere, and so it is for all that follow.
    qsizetype closingQuote()
    {
        for (qsizetype i = m_at + 1; i <= m_lastQuote; ++i) {
            if (m_text[i] != u'"')
                continue;
            if (cellEndsAt(i + 1))
                return i;
            if (m_text[i + 1] == u'"')
                ++i;
        }
        m_lastQuote = -1;
        return -1;
    }

    QStringView m_text;
    QString m_separator;
    bool m_inTwo;
    qsizetype m_at = 0;
    qsizetype m_lastQuote; ///< none after it is looked at as the start or the end of a cell
};

/// How many of the lines with words have the same number of cells, more than one.
qsizetype likeLines(QStringView sample, const QString &separator)
{
    std::map<qsizetype, qsizetype> linesByCells;
    Splitter splitter(sample, separator);
    while (!splitter.atEnd()) {
        TextTable line;
        splitter.takeRow(line);
        if (line.columns() > 1)
            ++linesByCells[line.columns()];
    }
    qsizetype most = 0;
    for (const auto &[cells, lines] : linesByCells)
        most = std::max(most, lines);
    return most;
}

QStringView sampleOf(QStringView text)
{
    qsizetype lines = 0;
    const qsizetype most = std::min(text.size(), SampleLetters);
    qsizetype end = 0;
    while (end < most && lines < SampleLines)
        lines += text[end++] == u'\n';
    return text.left(end);
}

} // namespace

QString DelimitedText::separatorOf(QStringView text)
{
    const QStringView sample = sampleOf(text);
    QString best = QStringLiteral("\t");
    qsizetype most = likeLines(sample, best);
    for (const QString &separator : {QStringLiteral(";"), Dash, Equals, QStringLiteral("|"), QStringLiteral(",")}) {
        const qsizetype lines = likeLines(sample, separator);
        if (lines > most) {
            most = lines;
            best = separator;
        }
    }
    return best;
}

TextTable DelimitedText::split(QStringView text, const QString &separator)
{
    TextTable table;
    Splitter splitter(text, separator);
    while (!splitter.atEnd())
        splitter.takeRow(table);
    return table;
}
