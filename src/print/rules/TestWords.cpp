#include "print/rules/TestWords.h"

#include <algorithm>
#include <random>

namespace {

std::vector<TestItem> pairs(const PrintSource &vocabulary)
{
    std::vector<TestItem> pairs;
    for (size_t row = 1; row < vocabulary.first.size(); ++row) {
        const QString first = vocabulary.first[row].trimmed();
        const QString second = vocabulary.second[row].trimmed();
        if (!first.isEmpty() && !second.isEmpty())
            pairs.push_back({first, second});
    }
    return pairs;
}

/// Not std::shuffle, whose order differs between libraries: a sheet can be made again on another machine.
void shuffle(std::vector<TestItem> &items, std::mt19937 &random)
{
    for (size_t left = items.size(); left > 1; --left)
        std::swap(items[left - 1], items[random() % left]);
}

void swapLanguages(TestItem &item)
{
    std::swap(item.question, item.answer);
}

} // namespace

namespace TestWords {

int count(const PrintSource &vocabulary)
{
    return int(pairs(vocabulary).size());
}

std::vector<TestItem> items(const PrintSource &vocabulary, const TestChoice &choice)
{
    std::vector<TestItem> items = pairs(vocabulary);
    std::mt19937 random(unsigned(choice.number));
    if (choice.shuffled)
        shuffle(items, random);
    if (choice.count > 0 && size_t(choice.count) < items.size())
        items.resize(size_t(choice.count));
    bool swapped = choice.asked == TestChoice::SecondLanguage;
    for (TestItem &item : items) {
        if (choice.asked == TestChoice::Mixed)
            swapped = choice.shuffled ? random() % 2 : !swapped;
        if (swapped)
            swapLanguages(item);
    }
    return items;
}

} // namespace TestWords
