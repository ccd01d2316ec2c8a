#include "tools/rules/VocabularyCheck.h"

#include <QHash>

#include <algorithm>
#include <array>
#include <map>

namespace {

constexpr int LongestItem = 2; ///< characters of "a" or "12" in "a)" and "12)", which no bracket opens

constexpr QStringView Opening = u"([{（［｛「『【〈《";
constexpr QStringView Closing = u")]}）］｝」』】〉》";

/// What stands before a closing bracket at a position, back to the last blank, only counts something.
bool isItem(QStringView text, qsizetype position)
{
    qsizetype begin = position;
    while (begin > 0 && text[begin - 1].isLetterOrNumber())
        --begin;
    const qsizetype length = position - begin;
    return length > 0 && length <= LongestItem && (begin == 0 || text[begin - 1].isSpace());
}

/// Quickly, for letters of every script: no bracket is among them.
bool mayHoldBracket(QStringView text)
{
    return std::any_of(text.begin(), text.end(), [](QChar c) { return c < u'\x80' ? c.isPunct() : c >= u'\u3000'; });
}

bool bracketsClose(QStringView text)
{
    if (!mayHoldBracket(text))
        return true;
    QString open;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (Opening.contains(text[i]))
            open.append(text[i]);
        const qsizetype closing = Closing.indexOf(text[i]);
        if (closing < 0 || (open.isEmpty() && isItem(text, i)))
            continue;
        if (open.isEmpty() || open.back() != Opening[closing])
            return false;
        open.chop(1);
    }
    return open.isEmpty();
}

/// At an edge, or beside another one.
bool hasStrayBlank(QStringView text)
{
    bool blankBefore = true;
    for (const QChar c : text) {
        const bool blank = c.isSpace();
        if (blank && blankBefore)
            return true;
        blankBefore = blank;
    }
    return blankBefore && !text.isEmpty();
}

/// Languages of East Asia write several scripts in one word, Latin letters among them.
bool mixesWithAll(QChar::Script script)
{
    constexpr std::array free{QChar::Script_Unknown,  QChar::Script_Inherited, QChar::Script_Common,
                              QChar::Script_Han,      QChar::Script_Hiragana,  QChar::Script_Katakana,
                              QChar::Script_Bopomofo, QChar::Script_Hangul};
    return std::find(free.begin(), free.end(), script) != free.end();
}

/// The letters of one word by their script.
class WordScripts
{
public:
    void add(char32_t letter)
    {
        const QChar::Script script = QChar::script(letter);
        if (!mixesWithAll(script))
            m_letters[script] += letter;
    }
    /// The letters of all scripts but the one of most letters.
    QString odd() const
    {
        const auto shorter = [](const auto &a, const auto &b) { return a.second.size() < b.second.size(); };
        const auto most = std::max_element(m_letters.begin(), m_letters.end(), shorter);
        std::u32string letters;
        for (auto script = m_letters.begin(); script != m_letters.end(); ++script)
            letters += script == most ? U"" : script->second;
        return QString::fromStdU32String(letters);
    }

private:
    std::map<QChar::Script, std::u32string> m_letters;
};

/// Whether letters of two scripts stand anywhere in a text, be it in different words.
bool mixesScripts(QStringView text)
{
    QChar::Script seen = QChar::Script_Common;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const bool isPair = i + 1 < text.size() && text[i].isHighSurrogate() && text[i + 1].isLowSurrogate();
        const char32_t character = isPair ? QChar::surrogateToUcs4(text[i], text[i + 1]) : text[i].unicode();
        const QChar::Script script = QChar::script(character);
        if (script == seen || mixesWithAll(script))
            continue;
        if (seen != QChar::Script_Common)
            return true;
        seen = script;
    }
    return false;
}

/// The first word of a text whose letters are of two scripts, and its odd letters; empty when there is none.
QString mixedWord(const QString &text)
{
    if (!mixesScripts(text))
        return {};
    QString word;
    WordScripts scripts;
    const QList<uint> characters = (text + u' ').toUcs4();
    for (const char32_t character : characters) {
        if (QChar::isLetterOrNumber(character) || QChar::isMark(character)) {
            word += QString::fromUcs4(&character, 1);
            scripts.add(character);
            continue;
        }
        if (const QString odd = scripts.odd(); !odd.isEmpty())
            return word + u' ' + odd;
        word.clear();
        scripts = {};
    }
    return {};
}

/// Finds what is wrong with a row, given the rows before it.
class Checker
{
public:
    void checkRow(int row, const QString &first, const QString &second)
    {
        const std::array texts{VocabularyCheck::trimmed(first), VocabularyCheck::trimmed(second)};
        const bool whole = !texts[0].isEmpty() && !texts[1].isEmpty();
        const bool empty = texts[0].isEmpty() && texts[1].isEmpty();
        if (!whole && !empty)
            add({Finding::NoCounterpart, row, texts[0].isEmpty() ? 1 : 2});
        if (whole)
            comparePair(row, texts);
        checkCell(row, 1, first, texts[0]);
        checkCell(row, 2, second, texts[1]);
    }
    std::vector<Finding> found;

private:
    void add(const Finding &finding) { found.push_back(finding); }

    void comparePair(int row, const std::array<QString, 2> &texts)
    {
        int &pairRow = m_pairs[texts[0] + u'\t' + texts[1]];
        if (pairRow)
            return add({Finding::SamePair, row, 1, pairRow});
        pairRow = row;
        for (size_t i = 0; i < texts.size(); ++i) {
            int &wordRow = m_words[i][texts[i]];
            if (wordRow)
                add({Finding::OtherAnswer, row, int(i) + 1, wordRow});
            else
                wordRow = row;
        }
    }

    void checkCell(int row, int col, const QString &text, const QString &trimmed)
    {
        if (text != trimmed)
            add({Finding::Blanks, row, col});
        if (const QString word = mixedWord(text); !word.isEmpty())
            add({Finding::Scripts, row, col, 0, word});
        if (!bracketsClose(text))
            add({Finding::Brackets, row, col});
    }

    QHash<QString, int> m_pairs; ///< the row in which each stands first
    std::array<QHash<QString, int>, 2> m_words;
};

} // namespace

namespace VocabularyCheck {

QString trimmed(const QString &text)
{
    if (!hasStrayBlank(text))
        return text;
    QString result;
    result.reserve(text.size());
    qsizetype blanks = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i].isSpace()) {
            ++blanks;
            continue;
        }
        if (blanks && !result.isEmpty())
            result += blanks > 1 ? QChar(u' ') : text[i - 1];
        blanks = 0;
        result += text[i];
    }
    return result;
}

std::vector<Finding> findings(const CellSource &cells)
{
    Checker checker;
    for (int row = 1; row < cells.Rows(); ++row)
        checker.checkRow(row, cells.TextMatrix(row, 1), cells.TextMatrix(row, 2));
    return std::move(checker.found);
}

} // namespace VocabularyCheck
