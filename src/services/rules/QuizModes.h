#pragma once

/// What the quiz modes mean, which are numbered from 1 on.
namespace QuizModes {

constexpr int Count = 5;

constexpr bool exists(int mode)
{
    return mode >= 1 && mode <= Count;
}

/// The words are asked in random order, not in that of the vocabulary.
constexpr bool random(int mode)
{
    return mode >= 3;
}

/// Every word is asked in both directions: in the last mode.
constexpr bool bothWays(int mode)
{
    return mode == Count;
}

/// The answer is expected in language 2. In the mode that asks both ways this is not so, and the direction is drawn.
constexpr bool answersInSecond(int mode)
{
    return mode == 1 || mode == 3;
}

} // namespace QuizModes
