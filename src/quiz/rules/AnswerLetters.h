#pragma once

#include "quiz/rules/WordSource.h"

#include <QStringList>

#include <array>

/// The letters of each column of a vocabulary that the keyboard may lack, for the columns in which a quiz mode expects
/// answers: at most so many, in the order of a locale.
std::array<QStringList, 2> answerLetters(const WordSource &words, int quizMode, int most, const QLocale &locale);
