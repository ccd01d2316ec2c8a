#pragma once

#include "quiz/rules/Question.h"
#include "quiz/rules/WordPair.h"

#include <QObject>
#include <QSet>

#include <vector>

class QuizSession;

/// A question that was answered wrongly, and the answer that was given.
struct MissedAnswer
{
    Question question;
    QString given;

    WordPair words() const;
};

/// Keeps the wrong answers of a quiz from its first question on.
class MissedAnswers : public QObject
{
    Q_OBJECT

public:
    explicit MissedAnswers(const QuizSession &session);

    /// Those of the round, in the order in which they were given.
    const std::vector<MissedAnswer> &ofRound() const { return m_round; }
    /// The words that were missed in any round.
    QSet<WordPair> words() const;
    /// An answer has been judged, be it right or wrong.
    bool hasBegun() const { return m_begun; }

private:
    void turn(bool correct);
    void note(bool correct);
    void beginRound();

    const QuizSession &m_session;
    std::vector<MissedAnswer> m_round;
    MissedAnswer m_last;      ///< judged wrong last
    QSet<WordPair> m_earlier; ///< missed in rounds before
    bool m_begun = false;
};
