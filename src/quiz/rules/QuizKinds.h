#pragma once

#include <QtGlobal>

/// The three kinds of quiz; the values are those of the quiz window's QuizType.
enum class QuizKind : qint16 { Practice = 0, MultipleChoice = 1, QuestionAndAnswer = 2 };

/// What the five quiz modes mean.
namespace QuizModes {

/// The words are asked in random order, not in that of the vocabulary.
constexpr bool random(int mode)
{
    return mode >= 3;
}

/// Every word is asked in both directions.
constexpr bool bothWays(int mode)
{
    return mode == 5;
}

/// The answer is expected in language 2. In the mode that asks both ways this is not so, and the direction is drawn.
constexpr bool answersInSecond(int mode)
{
    return mode == 1 || mode == 3;
}

} // namespace QuizModes
