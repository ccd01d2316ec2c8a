#pragma once

#include <QString>

class QuizSession;

/// What a screen reader says of a running quiz.
namespace QuizSpeech {

/// The verdict on the question still on view.
QString verdict(const QuizSession &session, bool correct);
/// The counters and the word that is asked now, or the summary of the round when it has ended.
QString state(const QuizSession &session);

} // namespace QuizSpeech
