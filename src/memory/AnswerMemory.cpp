#include "memory/AnswerMemory.h"

#include <numeric>

Grade Answer::grade() const
{
    if (!right)
        return Grade::Again;
    return hintUsed || kind == Kind::MultipleChoice ? Grade::Hard : Grade::Good;
}

std::vector<bool> AnswerMemory::due(const std::vector<WordKey> &keys)
{
    const int day = today();
    std::vector<bool> due;
    due.reserve(keys.size());
    for (const Card &card : cards(keys))
        due.push_back(Schedule::isDue(card, day));
    return due;
}

int AnswerMemory::countDue(const std::vector<WordKey> &keys)
{
    const std::vector<bool> isDue = due(keys);
    return int(std::count(isDue.begin(), isDue.end(), true));
}

std::vector<size_t> AnswerMemory::hardest(const std::vector<WordKey> &keys, int atMost)
{
    const std::vector<Card> known = cards(keys);
    std::vector<size_t> order(known.size());
    std::iota(order.begin(), order.end(), size_t(0));
    std::erase_if(order, [&known](size_t i) { return known[i].missed == 0; });
    std::stable_sort(order.begin(), order.end(),
                     [&known](size_t a, size_t b) { return known[a].missed > known[b].missed; });
    if (order.size() > size_t(atMost))
        order.resize(size_t(atMost));
    return order;
}
