#pragma once

#include <QString>
#include <QStringMatcher>

/// True for what the whole-word test takes for part of a word: digits and letters by their code in Windows-1252.
/// Characters that Windows-1252 lacks are none.
bool IsLetter(QChar ch);

/// Finds one search text in cells. A match is as long as the search text, also when the case is ignored: characters are
/// compared one to one.
class TextFinder
{
public:
    TextFinder(const QString &what, bool matchCase, bool wholeWords);

    qsizetype length() const { return m_matcher.pattern().size(); }
    /// Position of the first occurrence, -1 for none; whether it is a whole word is not asked.
    qsizetype indexIn(QStringView text) const { return m_matcher.indexIn(text); }
    /// Whether a match may stand between these two characters; a null character stands for none.
    bool acceptsBetween(QChar before, QChar after) const
    {
        return !m_wholeWords || !(IsLetter(after) || IsLetter(before));
    }
    /// Position of the first occurrence if it is acceptable, else -1: an occurrence behind it is not looked for.
    qsizetype find(QStringView text) const;

    /// Position of the last acceptable occurrence that begins before a position, -1 for none.
    qsizetype findLast(QStringView text, qsizetype before) const;

private:
    bool acceptsAt(QStringView text, qsizetype found) const;

    QStringMatcher m_matcher;
    bool m_wholeWords;
};
