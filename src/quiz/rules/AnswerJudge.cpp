#include "quiz/rules/AnswerJudge.h"

#include "quiz/rules/LetterDifference.h"
#include "quiz/rules/LetterMatch.h"

#include <algorithm>

namespace {

using AnswerParts::Part;

/// Texts of which less stands in each other are different words.
constexpr double LeastLikeness = 0.5;

/// Texts of more units than this are right or wrong as they are: to look at their letters would keep the user waiting.
constexpr qsizetype LongestJudged = 5000;

/// An answer that is so much longer than the expected one is not looked at letter by letter.
constexpr qsizetype MostSurplus = 2000;

QString partOf(const QString &text, const Part &part)
{
    return text.mid(part.start, part.length);
}

/// Gives every row of a table a column of its own in which it is true.
class Pairing
{
public:
    explicit Pairing(std::vector<std::vector<bool>> fits)
        : m_fits(std::move(fits))
        , m_rowOfColumn(m_fits.front().size(), Free)
    {
    }

    bool complete()
    {
        for (size_t row = 0; row < m_fits.size(); ++row) {
            std::vector<bool> tried(m_rowOfColumn.size());
            if (!place(row, tried))
                return false;
        }
        return true;
    }

private:
    static constexpr size_t Free = size_t(-1);

    bool place(size_t row, std::vector<bool> &tried)
    {
        for (size_t column = 0; column < m_rowOfColumn.size(); ++column) {
            if (!m_fits[row][column] || tried[column])
                continue;
            tried[column] = true;
            if (m_rowOfColumn[column] == Free || place(m_rowOfColumn[column], tried)) {
                m_rowOfColumn[column] = row;
                return true;
            }
        }
        return false;
    }

    std::vector<std::vector<bool>> m_fits;
    std::vector<size_t> m_rowOfColumn;
};

} // namespace

void AnswerJudge::prepare(const AnswerTolerance &tolerance)
{
    if (tolerance.accents)
        m_rules.prepare();
}

Judgement AnswerJudge::judge(const QString &given, const QString &expected, const AnswerTolerance &tolerance)
{
    m_letters.clear();
    m_rules.tidy();
    const QString said = LetterRules::composed(given);
    const QString wanted = LetterRules::composed(expected);
    Judgement judgement;
    if (said == wanted)
        return judgement;
    if (std::max(said.size(), wanted.size()) > LongestJudged) {
        judgement.verdict = Judgement::Verdict::Wrong;
    } else if (tolerance != AnswerTolerance() && accepts(said, wanted, tolerance)) {
        judgement.verdict = Judgement::Verdict::Forgiven;
        judgement.forgiven = needed(said, wanted, tolerance);
    } else {
        judgement.verdict = Judgement::Verdict::Wrong;
        judgement.difference = difference(said, wanted, tolerance);
    }
    return judgement;
}

bool AnswerJudge::accepts(const QString &given, const QString &expected, const AnswerTolerance &tolerance)
{
    if (given.trimmed().isEmpty() || given.size() > expected.size() * 2 + MostSurplus)
        return false;
    if (acceptsOne(given, expected, tolerance))
        return true;
    const std::vector<Part> answers = AnswerParts::answers(expected, MostAnswers);
    return tolerance.oneOfSeveral && answers.size() > 1 && acceptsSeveral(given, expected, answers, tolerance);
}

bool AnswerJudge::acceptsOne(const QString &given, const QString &expected, const AnswerTolerance &tolerance)
{
    const Letters &said = letters(given);
    const std::vector<QString> readings =
        tolerance.brackets ? AnswerParts::readings(expected) : std::vector<QString>{expected};
    return std::any_of(readings.begin(), readings.end(),
                       [&](const QString &reading) { return LetterMatch::matches(said, letters(reading), tolerance); });
}

/// Each of the answers given is another one of those expected; the order does not count.
bool AnswerJudge::acceptsSeveral(const QString &given, const QString &expected, const std::vector<Part> &answers,
                                 const AnswerTolerance &tolerance)
{
    std::vector<std::vector<bool>> fits;
    for (const Part &part : AnswerParts::answers(given, MostGiven)) {
        std::vector<bool> &row = fits.emplace_back();
        for (const Part &answer : answers)
            row.push_back(acceptsOne(partOf(given, part), partOf(expected, answer), tolerance));
        if (std::find(row.begin(), row.end(), true) == row.end())
            return false;
    }
    return Pairing(std::move(fits)).complete();
}

AnswerTolerance AnswerJudge::needed(const QString &given, const QString &expected, AnswerTolerance tolerance)
{
    for (bool AnswerTolerance::*kind :
         {&AnswerTolerance::oneOfSeveral, &AnswerTolerance::brackets, &AnswerTolerance::blanksAndPunctuation,
          &AnswerTolerance::accents, &AnswerTolerance::letterCase}) {
        AnswerTolerance less = tolerance;
        less.*kind = false;
        if (tolerance.*kind && accepts(given, expected, less))
            tolerance = less;
    }
    return tolerance;
}

/// From the expected text, or from the one of several answers that is most like the one given.
Difference AnswerJudge::difference(const QString &given, const QString &expected, const AnswerTolerance &tolerance)
{
    std::vector<Part> candidates{{0, expected.size()}};
    if (tolerance.oneOfSeveral && AnswerParts::answers(given, MostGiven).size() == 1)
        candidates = AnswerParts::answers(expected, MostAnswers);
    const Letters &said = letters(given);
    size_t effortLeft = LetterDifference::MostEffort;
    Difference nearest;
    double likeness = 0;
    for (const Part &candidate : candidates) {
        const QString text = partOf(expected, candidate);
        const LetterDifference found(said, letters(text), AnswerParts::brackets(text), tolerance, effortLeft);
        if (found.likeness() < LeastLikeness || found.likeness() <= likeness)
            continue;
        likeness = found.likeness();
        nearest.changes = found.changes();
        for (Difference::Change &change : nearest.changes)
            change.expectedStart += candidate.start;
    }
    return nearest;
}

const Letters &AnswerJudge::letters(const QString &text)
{
    const auto [known, isNew] = m_letters.try_emplace(text);
    if (isNew)
        known->second = m_rules.letters(text);
    return known->second;
}
