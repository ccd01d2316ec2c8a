#include "quiz/rules/MissedAnswers.h"

#include "quiz/rules/QuizSession.h"

WordPair MissedAnswer::words() const
{
    const QString &asked = question.askedWord();
    const QString &answer = question.correctAnswer();
    return question.answerColumn() == 2 ? WordPair{asked, answer} : WordPair{answer, asked};
}

MissedAnswers::MissedAnswers(const QuizSession &session)
    : m_session(session)
{
    connect(&session, &QuizSession::judged, this, &MissedAnswers::note);
    connect(&session, &QuizSession::verdictTurned, this, &MissedAnswers::turn);
    connect(&session, &QuizSession::roundStarted, this, &MissedAnswers::beginRound);
}

void MissedAnswers::note(bool correct)
{
    m_begun = true;
    if (correct)
        return;
    m_last = {m_session.question(), m_session.givenAnswer()};
    m_round.push_back(m_last);
}

void MissedAnswers::turn(bool correct)
{
    if (correct)
        m_round.pop_back();
    else
        m_round.push_back(m_last);
}

void MissedAnswers::beginRound()
{
    m_earlier = words();
    m_round.clear();
}

QSet<WordPair> MissedAnswers::words() const
{
    QSet<WordPair> all = m_earlier;
    for (const MissedAnswer &each : m_round)
        all.insert(each.words());
    return all;
}
