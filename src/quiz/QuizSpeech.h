#pragma once

#include <QString>

class QuizSession;
struct Judgement;

/// What a screen reader says of a running quiz.
namespace QuizSpeech {

/// The verdict on the question still on view, with what was wrong or forgiven.
QString verdict(const QuizSession &session, bool correct);
/// The user has turned the last verdict.
QString turned(bool correct);
/// What was wrong with the last typed answer: "missing: h". Empty where that tells nothing.
QString difference(const QuizSession &session);
/// What was forgiven of an answer that counts as right, or why the right text counts as wrong; else empty.
QString remark(const Judgement &judgement, bool correct);
/// What a hint has brought of the answer. One that shows letter by letter is said when it is whole.
QString hint(const QuizSession &session);
/// The counters and the word that is asked now, or the summary of the round when it has ended.
QString state(const QuizSession &session);

} // namespace QuizSpeech
