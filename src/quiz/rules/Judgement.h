#pragma once

#include "services/rules/QuizOptions.h"

#include <QtGlobal>

#include <vector>

/// Where a wrong answer differs from the expected one, in the order of the texts. Places count in both texts as they
/// are composed (normalization form C). Empty when less than half of the shorter text stands in the other: then they
/// are different words, and letters that happen to agree tell nothing.
struct Difference
{
    struct Change
    {
        qsizetype givenStart = 0;
        qsizetype givenLength = 0; ///< 0: letters are missing
        qsizetype expectedStart = 0;
        qsizetype expectedLength = 0; ///< 0: letters are too much

        bool operator==(const Change &) const = default;
    };

    std::vector<Change> changes;
};

/// What a typed answer is worth.
struct Judgement
{
    enum class Verdict { Right, Forgiven, Wrong };

    Verdict verdict = Verdict::Right;
    AnswerTolerance forgiven; ///< as little as it takes to count the answer as right
    Difference difference;    ///< of a wrong answer
};
