#pragma once

#include "quiz/rules/AskedRows.h"
#include "quiz/rules/Question.h"
#include "quiz/rules/QuizKinds.h"
#include "quiz/rules/RandomSource.h"
#include "quiz/rules/WordSource.h"

#include <vector>

/// The fixed list of questions that a quiz asks. It is drawn from a vocabulary once; the running quiz reads only it.
class QuestionTable
{
public:
    /// Questions are numbered with 16 bits.
    static constexpr int MostQuestions = 32767;

    /// How many words a vocabulary must have for a quiz.
    static int fewestWords(QuizKind kind) { return kind == QuizKind::MultipleChoice ? 3 : 1; }

    /// Fills the table from those of the asked rows whose first word is not empty; wrong options come from every row.
    /// False, and the table left as it was, when there are too few words, none to ask, or more than can be numbered.
    /// QuizMode is 1 to 5.
    bool fByggMatriser(QuizKind kind, int QuizMode, const WordSource &words, RandomSource &random,
                       const AskedRows &rows = {});

    /// Asks the given questions instead.
    void replace(std::vector<Question> questions) { m_questions = std::move(questions); }

    int count() const { return int(m_questions.size()); }
    /// Question k, 1 to count().
    const Question &question(int k) const { return m_questions[size_t(k - 1)]; }

private:
    std::vector<Question> m_questions;
};
