#include "quiz/rules/LetterDifference.h"

#include "quiz/rules/LetterMatch.h"

#include <algorithm>
#include <unordered_map>

namespace {

/// The different letters of a part of a text, numbered.
class Alphabet
{
public:
    Alphabet(const Letters &letters, size_t start, size_t count);

    size_t size() const { return m_letters.size(); }
    const LetterForms &letter(size_t number) const { return *m_letters[number]; }
    size_t numberAt(size_t place) const { return m_numbers[place]; }
    /// Where this has no bit in common with another letter's, they are not the same.
    quint64 kin(size_t number) const { return m_kin[number]; }

private:
    std::vector<const LetterForms *> m_letters;
    std::vector<quint64> m_kin;
    std::vector<quint16> m_numbers;
};

Alphabet::Alphabet(const Letters &letters, size_t start, size_t count)
{
    std::unordered_map<const LetterForms *, size_t> known;
    for (size_t i = start; i < start + count; ++i) {
        const auto [place, isNew] = known.try_emplace(letters[i].forms, m_letters.size());
        if (isNew) {
            m_letters.push_back(letters[i].forms);
            m_kin.push_back(letters[i].forms->counts() ? letters[i].forms->kin : ~quint64(0));
        }
        m_numbers.push_back(quint16(place->second));
    }
}

/// What looking at a letter takes beside comparing it with others, in comparisons.
constexpr size_t EffortOfLetter = 20;

bool sameLetter(const LetterForms &given, const LetterForms &expected, const AnswerTolerance &tolerance)
{
    if (tolerance.blanksAndPunctuation && !given.counts() && !expected.counts())
        return true;
    return LetterRules::same(given, expected, tolerance);
}

} // namespace

/// How many letters at most the first i letters given and the first j expected have in common, those of both counted.
class LetterDifference::Table
{
public:
    Table(const LetterDifference &texts, size_t start, size_t given, size_t expected);

    /// The steps from the beginning of both parts to their end.
    std::vector<Step> steps() const;

private:
    quint16 &best(size_t i, size_t j) { return m_best[i * (m_expected + 1) + j]; }
    quint16 best(size_t i, size_t j) const { return m_best[i * (m_expected + 1) + j]; }
    void fillRow(size_t i);
    void findPairs();
    void findSpellings();
    quint8 spellingEnd(const LetterForms &letter, size_t i) const;
    bool same(size_t i, size_t j) const;
    /// The length of a spelling of the last of j letters that ends the first i given; 0 if there is none.
    size_t spelling(size_t i, size_t j) const { return spellingsAt(i)[m_expectedAlphabet.numberAt(j - 1)]; }
    const quint8 *spellingsAt(size_t i) const { return m_spellings.data() + i * m_expectedAlphabet.size(); }

    const LetterDifference &m_texts;
    size_t m_start;
    size_t m_given;
    size_t m_expected;
    Alphabet m_givenAlphabet;
    Alphabet m_expectedAlphabet;
    std::vector<quint8> m_pairs;     ///< of every two letters of the alphabets: 2 if they are the same, else 0
    std::vector<quint8> m_spellings; ///< of every place given and letter expected: see spelling
    std::vector<quint16> m_best;
};

LetterDifference::Table::Table(const LetterDifference &texts, size_t start, size_t given, size_t expected)
    : m_texts(texts)
    , m_start(start)
    , m_given(given)
    , m_expected(expected)
    , m_givenAlphabet(texts.m_given, start, given)
    , m_expectedAlphabet(texts.m_expected, start, expected)
    , m_pairs(m_givenAlphabet.size() * m_expectedAlphabet.size())
    , m_best((given + 1) * (expected + 1))
{
    findPairs();
    findSpellings();
    for (size_t i = 1; i <= given; ++i)
        fillRow(i);
}

bool LetterDifference::Table::same(size_t i, size_t j) const
{
    return m_pairs[m_givenAlphabet.numberAt(i - 1) * m_expectedAlphabet.size() + m_expectedAlphabet.numberAt(j - 1)] >
           0;
}

void LetterDifference::Table::findPairs()
{
    quint8 *pair = m_pairs.data();
    for (size_t g = 0; g < m_givenAlphabet.size(); ++g) {
        for (size_t e = 0; e < m_expectedAlphabet.size(); ++e, ++pair) {
            if ((m_givenAlphabet.kin(g) & m_expectedAlphabet.kin(e)) != 0 &&
                sameLetter(m_givenAlphabet.letter(g), m_expectedAlphabet.letter(e), m_texts.m_tolerance))
                *pair = 2;
        }
    }
}

void LetterDifference::Table::findSpellings()
{
    m_spellings.resize((m_given + 1) * m_expectedAlphabet.size());
    for (size_t e = 0; e < m_expectedAlphabet.size() && m_texts.m_tolerance.accents; ++e) {
        const LetterForms &letter = m_expectedAlphabet.letter(e);
        for (size_t i = 1; i <= m_given && !letter.spellings.empty(); ++i)
            m_spellings[i * m_expectedAlphabet.size() + e] = spellingEnd(letter, i);
    }
}

quint8 LetterDifference::Table::spellingEnd(const LetterForms &letter, size_t i) const
{
    for (const auto &spelling : letter.spellings) {
        if (spelling.size() <= i &&
            LetterMatch::spelledAt(m_texts.m_given, m_start + i - spelling.size(), spelling, m_texts.m_tolerance))
            return quint8(spelling.size());
    }
    return 0;
}

void LetterDifference::Table::fillRow(size_t i)
{
    const quint16 *above = &best(i - 1, 0);
    quint16 *row = &best(i, 0);
    const quint8 *pairs = m_pairs.data() + m_givenAlphabet.numberAt(i - 1) * m_expectedAlphabet.size();
    const quint8 *spellings = spellingsAt(i);
    for (size_t j = 1; j <= m_expected; ++j) {
        const size_t letter = m_expectedAlphabet.numberAt(j - 1);
        int most = std::max({int(above[j]), int(row[j - 1]), above[j - 1] + pairs[letter]});
        if (const size_t length = spellings[letter])
            most = std::max(most, best(i - length, j - 1) + int(length) + 1);
        row[j] = quint16(most);
    }
}

std::vector<LetterDifference::Step> LetterDifference::Table::steps() const
{
    std::vector<Step> steps;
    size_t i = m_given;
    size_t j = m_expected;
    while (i > 0 || j > 0) {
        const size_t length = i > 0 && j > 0 ? spelling(i, j) : 0;
        if (length > 0 && best(i, j) == best(i - length, j - 1) + length + 1)
            steps.push_back({length, 1});
        else if (i > 0 && j > 0 && same(i, j) && best(i, j) == best(i - 1, j - 1) + 2)
            steps.push_back({1, 1});
        else if (i > 0 && best(i, j) == best(i - 1, j))
            steps.push_back({1, 0});
        else
            steps.push_back({0, 1});
        i -= steps.back().given;
        j -= steps.back().expected;
    }
    std::reverse(steps.begin(), steps.end());
    return steps;
}

LetterDifference::Side::Side(size_t letters)
    : found(letters)
    , forgiven(letters)
{
}

void LetterDifference::Side::forgivePunctuation(const Letters &letters)
{
    for (size_t i = 0; i < letters.size(); ++i)
        forgiven[i] = !found[i] && letters[i].forms->punctuation;
}

/// A bracket of which nothing has been found was left out.
void LetterDifference::Side::forgiveBrackets(const Letters &letters, const std::vector<AnswerParts::Part> &brackets)
{
    size_t end = 0;
    for (const AnswerParts::Part &bracket : brackets) {
        size_t first = end;
        while (first < letters.size() && letters[first].start < bracket.start)
            ++first;
        for (end = first; end < letters.size() && letters[end].start < bracket.end();)
            ++end;
        if (std::find(found.begin() + ptrdiff_t(first), found.begin() + ptrdiff_t(end), true) ==
            found.begin() + ptrdiff_t(end))
            std::fill(forgiven.begin() + ptrdiff_t(first), forgiven.begin() + ptrdiff_t(end), true);
    }
}

/// A blank at an edge, beside another one or beside what is forgiven; the last alone unless everywhere.
void LetterDifference::Side::forgiveBlanks(const Letters &letters, bool everywhere)
{
    for (size_t i = 0; i < letters.size(); ++i) {
        if (found[i] || !letters[i].forms->blank)
            continue;
        const bool atEdge = i == 0 || i + 1 == letters.size();
        const bool besideBlank =
            (i > 0 && letters[i - 1].forms->blank) || (i + 1 < letters.size() && letters[i + 1].forms->blank);
        const bool besideForgiven = (i > 0 && forgiven[i - 1]) || (i + 1 < letters.size() && forgiven[i + 1]);
        forgiven[i] = besideForgiven || (everywhere && (atEdge || besideBlank));
    }
}

/// The letters that count and are not forgiven.
size_t LetterDifference::Side::size(const Letters &letters) const
{
    size_t count = 0;
    for (size_t i = 0; i < letters.size(); ++i)
        count += letters[i].forms->counts() && !forgiven[i] ? 1 : 0;
    return count;
}

LetterDifference::LetterDifference(const Letters &given, const Letters &expected,
                                   const std::vector<AnswerParts::Part> &brackets, const AnswerTolerance &tolerance,
                                   size_t &effortLeft)
    : m_given(given)
    , m_expected(expected)
    , m_tolerance(tolerance)
    , m_givenSide(given.size())
    , m_expectedSide(expected.size())
{
    align(effortLeft);
    size_t i = 0;
    size_t j = 0;
    for (const Step &step : m_steps) {
        for (size_t k = 0; k < step.given; ++k)
            m_givenSide.found[i++] = step.same();
        if (step.expected > 0)
            m_expectedSide.found[j++] = step.same();
    }
    forgive(brackets);
}

bool LetterDifference::same(size_t given, size_t expected) const
{
    return sameLetter(*m_given[given].forms, *m_expected[expected].forms, m_tolerance);
}

/// The letter given may be the beginning of a spelling of the one expected.
bool LetterDifference::spelledOut(size_t given, size_t expected) const
{
    return m_tolerance.accents && m_given[given].forms != m_expected[expected].forms &&
           !m_expected[expected].forms->spellings.empty();
}

void LetterDifference::align(size_t &effortLeft)
{
    const size_t shorter = std::min(m_given.size(), m_expected.size());
    size_t start = 0;
    while (start < shorter && same(start, start) && !spelledOut(start, start))
        ++start;
    size_t end = 0;
    while (end < shorter - start && same(m_given.size() - 1 - end, m_expected.size() - 1 - end))
        ++end;
    const size_t given = m_given.size() - start - end;
    const size_t expected = m_expected.size() - start - end;
    addSteps(start, {1, 1});
    const size_t effort = given * expected + EffortOfLetter * (given + expected);
    if (effort <= effortLeft) {
        effortLeft -= effort;
        const std::vector<Step> between = Table(*this, start, given, expected).steps();
        m_steps.insert(m_steps.end(), between.begin(), between.end());
    } else {
        addSteps(given, {1, 0});
        addSteps(expected, {0, 1});
    }
    addSteps(end, {1, 1});
}

void LetterDifference::forgive(const std::vector<AnswerParts::Part> &brackets)
{
    if (m_tolerance.blanksAndPunctuation) {
        m_givenSide.forgivePunctuation(m_given);
        m_expectedSide.forgivePunctuation(m_expected);
    }
    if (m_tolerance.brackets)
        m_expectedSide.forgiveBrackets(m_expected, brackets);
    m_givenSide.forgiveBlanks(m_given, m_tolerance.blanksAndPunctuation);
    m_expectedSide.forgiveBlanks(m_expected, m_tolerance.blanksAndPunctuation);
}

double LetterDifference::likeness() const
{
    size_t common = 0;
    for (size_t i = 0; i < m_expected.size(); ++i)
        common += m_expectedSide.found[i] && m_expected[i].forms->counts() ? 1 : 0;
    const size_t shorter = std::min(m_givenSide.size(m_given), m_expectedSide.size(m_expected));
    return shorter == 0 ? 0 : double(common) / double(shorter);
}

std::vector<LetterDifference::Span> LetterDifference::spans() const
{
    std::vector<Span> all;
    bool open = false; // the last span goes on
    size_t i = 0;
    size_t j = 0;
    for (const Step &step : m_steps) {
        const bool forgiven =
            (step.given == 1 && m_givenSide.forgiven[i]) || (step.expected == 1 && m_expectedSide.forgiven[j]);
        if (!step.same() && !forgiven) {
            if (!std::exchange(open, true))
                all.push_back({i, i, j, j});
            (step.given == 1 ? all.back().givenEnd : all.back().expectedEnd) = (step.given == 1 ? i : j) + 1;
        }
        open = open && !step.same();
        i += step.given;
        j += step.expected;
    }
    return all;
}

/// Letters that are missing or too much can often be told in several ways: "d[ie Bank, d]as" and "[die Bank, ]das". The
/// one that begins with a word is taken, if it is at most room letters before.
void LetterDifference::moveToWord(Span &span, size_t room) const
{
    const bool missing = span.given == span.givenEnd;
    if (missing == (span.expected == span.expectedEnd))
        return;
    const Letters &letters = missing ? m_expected : m_given;
    const size_t start = missing ? span.expected : span.given;
    const size_t end = missing ? span.expectedEnd : span.givenEnd;
    size_t back = 0;
    while (start > back && !letters[start - back - 1].forms->blank) {
        if (back == room || letters[start - back - 1].forms != letters[end - back - 1].forms)
            return;
        ++back;
    }
    span = {span.given - back, span.givenEnd - back, span.expected - back, span.expectedEnd - back};
}

std::vector<Difference::Change> LetterDifference::changes() const
{
    const auto place = [](const Letters &letters, size_t i) {
        if (i < letters.size())
            return letters[i].start;
        return letters.empty() ? 0 : letters.back().start + letters.back().length;
    };
    std::vector<Difference::Change> all;
    Span before{0, 0, 0, 0};
    for (Span span : spans()) {
        moveToWord(span, std::min(span.given - before.givenEnd, span.expected - before.expectedEnd));
        before = span;
        const qsizetype given = place(m_given, span.given);
        const qsizetype expected = place(m_expected, span.expected);
        all.push_back(
            {given, place(m_given, span.givenEnd) - given, expected, place(m_expected, span.expectedEnd) - expected});
    }
    return all;
}
