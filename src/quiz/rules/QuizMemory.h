#pragma once

#include "memory/AnswerMemory.h"

#include <QObject>

class QuizSession;

/// Tells the memory of answers every verdict of a quiz that is final, as long as it lives, and says when the words of
/// the list come again.
class QuizMemory : public QObject
{
    Q_OBJECT

public:
    /// list: every word of the vocabulary as the quiz asks it.
    QuizMemory(const QuizSession &session, AnswerMemory &memory, std::vector<WordKey> list);

    /// When words of the list are due next, and how many; empty when none was ever asked. The last verdict counts as it
    /// stands, also while it can be turned.
    QString nextDue() const;

private:
    std::vector<Card> cards() const;

    const QuizSession &m_session;
    AnswerMemory &m_memory;
    std::vector<WordKey> m_list;
};
