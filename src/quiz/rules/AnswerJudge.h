#pragma once

#include "quiz/rules/AnswerParts.h"
#include "quiz/rules/Judgement.h"
#include "quiz/rules/LetterRules.h"

/// Judges typed answers. With no tolerance only the exact text is right, however its accented letters were typed. It
/// forgives what is missing, not what is wrong: e stands for é, but è does not. It owns what it knows of letters;
/// apart from that a judgement depends on nothing but the texts and the tolerance.
class AnswerJudge
{
public:
    /// Answers in one entry, and answers given at once, that are told apart; with more of them the entry is one answer.
    static constexpr size_t MostAnswers = 64;
    static constexpr size_t MostGiven = 16;

    /// Gets ready for a tolerance, so that the first judgement is as quick as the others.
    void prepare(const AnswerTolerance &tolerance);

    Judgement judge(const QString &given, const QString &expected, const AnswerTolerance &tolerance);

private:
    bool accepts(const QString &given, const QString &expected, const AnswerTolerance &tolerance);
    bool acceptsOne(const QString &given, const QString &expected, const AnswerTolerance &tolerance);
    bool acceptsSeveral(const QString &given, const QString &expected, const std::vector<AnswerParts::Part> &answers,
                        const AnswerTolerance &tolerance);
    AnswerTolerance needed(const QString &given, const QString &expected, AnswerTolerance tolerance);
    Difference difference(const QString &given, const QString &expected, const AnswerTolerance &tolerance);
    const Letters &letters(const QString &text);

    LetterRules m_rules;
    std::unordered_map<QString, Letters> m_letters; ///< of the texts of the judgement that is being made
};
