#include "tools/rules/TextFinder.h"

bool IsLetter(QChar ch)
{
    const char16_t code = ch.unicode();
    if (code < 192)
        return (code >= '0' && code <= '9') || (code >= 'A' && code <= 'Z') || (code >= 'a' && code <= 'z');
    if (code < 256)
        return code != 215 && code != 247;
    // codes 140, 156, 138, 154 and 159 of Windows-1252
    return code == 0x152 || code == 0x153 || code == 0x160 || code == 0x161 || code == 0x178;
}

TextFinder::TextFinder(const QString &what, bool matchCase, bool wholeWords)
    : m_matcher(what, matchCase ? Qt::CaseSensitive : Qt::CaseInsensitive)
    , m_wholeWords(wholeWords)
{
}

bool TextFinder::acceptsAt(QStringView text, qsizetype found) const
{
    const qsizetype end = found + length();
    const QChar before = found > 0 ? text[found - 1] : QChar();
    const QChar after = end < text.size() ? text[end] : QChar();
    return acceptsBetween(before, after);
}

qsizetype TextFinder::find(QStringView text) const
{
    const qsizetype found = indexIn(text);
    return found >= 0 && acceptsAt(text, found) ? found : -1;
}

qsizetype TextFinder::findLast(QStringView text, qsizetype before) const
{
    qsizetype found = std::min(before, text.size());
    do
        found = found > 0 ? text.lastIndexOf(m_matcher.pattern(), found - 1, m_matcher.caseSensitivity()) : -1;
    while (found >= 0 && !acceptsAt(text, found));
    return found;
}
