#pragma once

#include <QtGlobal>

/// The three kinds of quiz; the values are those of the quiz window's QuizType.
enum class QuizKind : qint16 { Practice = 0, MultipleChoice = 1, QuestionAndAnswer = 2 };
