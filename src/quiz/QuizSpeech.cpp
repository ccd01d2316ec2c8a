#include "quiz/QuizSpeech.h"

#include "quiz/rules/QuizSession.h"
#include "resources/StringTable.h"

namespace QuizSpeech {

QString verdict(const QuizSession &session, bool correct)
{
    return correct ? resText(12007) : resText(12008).arg(session.question().correctAnswer());
}

QString state(const QuizSession &session)
{
    if (session.done())
        return resText(12011).arg(session.correctCount()).arg(session.errorCount());
    const QString counters = resText(12010)
                                 .arg(session.currentQuestion())
                                 .arg(session.questionCount())
                                 .arg(session.correctCount())
                                 .arg(session.errorCount());
    const Question &question = session.question();
    // Both at once, so that a percent sign in a language's name or in a word stays one.
    return resText(12009).arg(question.askedLanguage(), question.askedWord()) + QStringLiteral(". ") + counters;
}

} // namespace QuizSpeech
