#pragma once

#include "memory/Schedule.h"
#include "memory/WordKey.h"

#include <vector>

/// One answer of a quiz whose verdict will not change any more.
struct Answer
{
    /// The kinds of quiz, with the numbers that the quiz window gives them.
    enum class Kind { Practice = 0, MultipleChoice = 1, QuestionAndAnswer = 2 };

    WordKey word = {};
    Kind kind = Kind::Practice;
    bool right = false;
    bool hintUsed = false;
    int milliseconds = 0; ///< from the question to the answer

    /// Wrong is Again; right after a hint, or with the answer among the options, is Hard; right is Good.
    Grade grade() const;
};

/// What quizzes are handed that remembers their answers and knows which words are due. A word that was never asked is
/// new, not due. None of its calls holds the user up for long; when nothing can be remembered, every word is new.
class AnswerMemory
{
public:
    static constexpr int Hardest = 20; ///< as many words as are hard at most

    virtual ~AnswerMemory() = default;

    /// Returns at once.
    virtual void remember(const Answer &answer) = 0;
    /// The card of each key, in their order; what was handed to remember() before is in it.
    virtual std::vector<Card> cards(const std::vector<WordKey> &keys) = 0;
    /// The number of the day that it is.
    virtual int today() const = 0;

    /// Whether each of the keys is due.
    std::vector<bool> due(const std::vector<WordKey> &keys);
    int countDue(const std::vector<WordKey> &keys);
    /// Positions of the keys that were missed most often, the most often missed first; only keys that were missed.
    std::vector<size_t> hardest(const std::vector<WordKey> &keys, int atMost = Hardest);
};
