#include "print/rules/LineBreaker.h"

#include "print/rules/PrintSurface.h"

#include <QTextBoundaryFinder>

#include <algorithm>

namespace {

bool isWrittenWithoutBlanks(QChar character)
{
    switch (character.script()) {
    case QChar::Script_Han:
    case QChar::Script_Hiragana:
    case QChar::Script_Katakana:
    case QChar::Script_Bopomofo:
    case QChar::Script_Yi:
        return true;
    default:
        return false;
    }
}

/// The pieces of a word between which a line may break beside an ideograph or a kana (those beyond the basic plane keep
/// together); one piece for any other word.
QStringList piecesOf(const QString &word)
{
    QStringList pieces;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Line, word);
    qsizetype start = 0;
    while (finder.toNextBoundary() != -1) {
        const qsizetype end = finder.position();
        if (end == word.size() || isWrittenWithoutBlanks(word.at(end)) || isWrittenWithoutBlanks(word.at(end - 1))) {
            pieces.append(word.mid(start, end - start));
            start = end;
        }
    }
    return pieces;
}

/// Fills line after line.
class LineFiller
{
public:
    LineFiller(QStringList &lines, int width)
        : m_lines(lines)
        , m_width(width)
    {
        m_lines.append(QString());
    }
    void add(const QString &piece, int width)
    {
        if (piece.isEmpty())
            return;
        if (m_used + width > m_width) {
            m_lines.append(QString());
            m_used = 0;
            m_blanks = 0;
        }
        m_lines.last() += QString(m_blanks, u' ') + piece;
        m_used += width;
        m_blanks = 0;
    }
    void addBlank(int width)
    {
        m_used += width;
        ++m_blanks;
    }

private:
    QStringList &m_lines;
    int m_width;
    int m_used = 0;
    int m_blanks = 0; ///< not yet followed by a word
};

} // namespace

LineBreaker::LineBreaker(const TextMeasure &measure)
    : m_measure(measure)
    , m_blankWidth(measure.TextWidth(QStringLiteral(" ")))
    , m_letterWidths([&measure](const QString &text) { return double(measure.TextWidth(text)); })
{
}

QStringList LineBreaker::lines(const QString &text, int width) const
{
    QStringList result;
    LineFiller filler(result, width);
    for (const QString &word : text.split(u' ')) {
        const int wordWidth = m_measure.TextWidth(word);
        const QStringList pieces = wordWidth > width ? piecesOf(word) : QStringList();
        if (pieces.size() > 1) {
            for (const QString &piece : pieces)
                filler.add(piece, m_measure.TextWidth(piece));
        } else {
            filler.add(word, wordWidth);
        }
        filler.addBlank(m_blankWidth);
    }
    return result;
}
