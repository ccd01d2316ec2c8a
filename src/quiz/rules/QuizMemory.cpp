#include "quiz/rules/QuizMemory.h"

#include "quiz/rules/QuizSession.h"
#include "resources/StringTable.h"

#include <map>

namespace {

WordKey keyOf(const Question &question)
{
    return WordKey::of(question.askedWord(), question.correctAnswer());
}

} // namespace

QuizMemory::QuizMemory(const QuizSession &session, AnswerMemory &memory, std::vector<WordKey> list)
    : m_session(session)
    , m_memory(memory)
    , m_list(std::move(list))
{
    connect(&session, &QuizSession::settled, this,
            [this](const Question &question, bool right, bool hintUsed, int milliseconds) {
                m_memory.remember({keyOf(question), Answer::Kind(m_session.kind()), right, hintUsed, milliseconds});
            });
}

std::vector<Card> QuizMemory::cards() const
{
    std::vector<Card> cards = m_memory.cards(m_list);
    if (const Question *open = m_session.openQuestion()) {
        const WordKey key = keyOf(*open);
        const Grade grade = m_session.turned() ? Grade::Good : Grade::Again;
        for (size_t i = 0; i < m_list.size(); ++i) {
            if (m_list[i] == key)
                cards[i] = Schedule::next(cards[i], grade, m_memory.today());
        }
    }
    return cards;
}

QString QuizMemory::nextDue() const
{
    constexpr int Now = 14450;
    constexpr int Tomorrow = 14451;
    constexpr int Later = 14452;
    const int today = m_memory.today();
    std::map<int, int> wordsByDays;
    for (const Card &card : cards()) {
        if (!card.isNew())
            ++wordsByDays[Schedule::isDue(card, today) ? 0 : card.due - today];
    }
    if (wordsByDays.empty())
        return {};
    const auto [days, words] = *wordsByDays.begin();
    return days > 1 ? resText(Later).arg(days).arg(words) : resText(days == 0 ? Now : Tomorrow).arg(words);
}
