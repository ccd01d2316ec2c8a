#pragma once

#include "quiz/rules/MissedAnswers.h"
#include "quiz/rules/QuizSession.h"

#include <QStringList>

#include <array>
#include <memory>

/// A quiz with what is kept about it while it goes on: it outlives the window in which it was left.
struct LeftQuiz
{
    std::unique_ptr<QuizSession> session;
    std::unique_ptr<MissedAnswers> missed;
    std::array<QStringList, 2> letters = {}; ///< of the two columns, to type answers with
};
