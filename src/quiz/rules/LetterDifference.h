#pragma once

#include "quiz/rules/AnswerParts.h"
#include "quiz/rules/Judgement.h"
#include "quiz/rules/LetterRules.h"

/// Finds where a text given differs from the one expected: what is left beside the longest sequence of letters that
/// both have. What the tolerance forgives is no difference.
class LetterDifference
{
public:
    /// The effort that one answer is worth, in comparisons of two letters: less than half a millisecond.
    static constexpr size_t MostEffort = size_t(180) * 1000;

    /// The texts and the tolerance outlive this object; brackets are those of the expected text. Each letter between a
    /// common beginning and a common end is compared with each of the other text where enough effort is left, which is
    /// taken off; else all of them count as different.
    LetterDifference(const Letters &given, const Letters &expected, const std::vector<AnswerParts::Part> &brackets,
                     const AnswerTolerance &tolerance, size_t &effortLeft);

    /// The share of the shorter text that stands in the other, 0 to 1.
    double likeness() const;
    /// Also those of texts that are not alike; places are those of the letters.
    std::vector<Difference::Change> changes() const;

private:
    /// One letter of the expected text and what stands for it, or a letter that only one text has.
    struct Step
    {
        size_t given;    ///< number of letters
        size_t expected; ///< number of letters

        bool same() const { return given > 0 && expected > 0; }
    };
    /// The letters of one text: whether the other has them, whether their lack is forgiven.
    struct Side
    {
        std::vector<bool> found;
        std::vector<bool> forgiven;

        explicit Side(size_t letters);
        void forgivePunctuation(const Letters &letters);
        void forgiveBrackets(const Letters &letters, const std::vector<AnswerParts::Part> &brackets);
        void forgiveBlanks(const Letters &letters, bool everywhere);
        size_t size(const Letters &letters) const;
    };
    /// Letters of both texts, from the first to the one behind the last, that stand where the other has something else.
    struct Span
    {
        size_t given;
        size_t givenEnd;
        size_t expected;
        size_t expectedEnd;
    };
    class Table;

    bool same(size_t given, size_t expected) const;
    bool spelledOut(size_t given, size_t expected) const;
    void align(size_t &effortLeft);
    void addSteps(size_t count, Step step) { m_steps.insert(m_steps.end(), count, step); }
    void forgive(const std::vector<AnswerParts::Part> &brackets);
    std::vector<Span> spans() const;
    void moveToWord(Span &span, size_t room) const;

    const Letters &m_given;
    const Letters &m_expected;
    const AnswerTolerance &m_tolerance;
    std::vector<Step> m_steps;
    Side m_givenSide;
    Side m_expectedSide;
};
