#include "print/rules/WordBreaks.h"

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

} // namespace

namespace WordBreaks {

bool hasRightToLeft(const QString &text)
{
    constexpr char16_t firstRightToLeft = 0x0590;
    if (std::all_of(text.begin(), text.end(), [](QChar character) { return character < firstRightToLeft; }))
        return false;
    const QList<uint> letters = text.toUcs4();
    return std::any_of(letters.begin(), letters.end(), [](uint letter) {
        return QChar::direction(letter) == QChar::DirR || QChar::direction(letter) == QChar::DirAL;
    });
}

QStringList pieces(const QString &word)
{
    if (std::none_of(word.begin(), word.end(), isWrittenWithoutBlanks))
        return {word};
    QStringList result;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Line, word);
    qsizetype start = 0;
    while (finder.toNextBoundary() != -1) {
        const qsizetype end = finder.position();
        if (end < word.size() && !isWrittenWithoutBlanks(word.at(end)) && !isWrittenWithoutBlanks(word.at(end - 1)))
            continue;
        result.append(word.mid(start, end - start));
        start = end;
    }
    return result;
}

} // namespace WordBreaks
