#include "quiz/rules/AnswerLetters.h"

#include "services/rules/LetterCount.h"
#include "services/rules/QuizModes.h"

std::array<QStringList, 2> answerLetters(const WordSource &words, int quizMode, int most, const QLocale &locale)
{
    std::array<QStringList, 2> letters;
    for (const int column : {1, 2}) {
        if (!QuizModes::bothWays(quizMode) && QuizModes::answersInSecond(quizMode) != (column == 2))
            continue;
        LetterCount count;
        const int end = words.Rows();
        for (int row = 1; row < end; ++row)
            count.add(words.TextMatrix(row, column));
        letters[size_t(column - 1)] = count.mostFrequent(most, locale);
    }
    return letters;
}
