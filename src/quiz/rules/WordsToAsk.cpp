#include "quiz/rules/WordsToAsk.h"

#include "memory/AnswerMemory.h"
#include "services/rules/QuizModes.h"

#include <algorithm>
#include <functional>

namespace {

using AskedWords::Facts;

/// The rows from first to last that hold a word and fulfil a condition.
std::vector<int> rowsOfWords(const WordSource &words, int first, int last,
                             const std::function<bool(int row)> &fulfils = {})
{
    std::vector<int> found;
    const int end = std::min(last, words.Rows() - 1);
    for (int row = std::max(first, 1); row <= end; ++row) {
        if (!words.TextMatrix(row, 1).isEmpty() && (!fulfils || fulfils(row)))
            found.push_back(row);
    }
    return found;
}

/// By what the memory knows the words: each row has one key, or two if it is asked both ways.
struct Keys
{
    Keys(const WordSource &words, int mode)
        : perRow(QuizModes::bothWays(mode) ? 2 : 1)
        , rows(rowsOfWords(words, 1, words.Rows()))
    {
        keys.reserve(rows.size() * perRow);
        for (const int row : rows) {
            const QString first = words.TextMatrix(row, 1);
            const QString second = words.TextMatrix(row, 2);
            if (QuizModes::answersInSecond(mode) || perRow == 2)
                keys.push_back(WordKey::of(first, second));
            if (!QuizModes::answersInSecond(mode))
                keys.push_back(WordKey::of(second, first));
        }
    }

    int rowOf(size_t key) const { return rows[key / perRow]; }

    size_t perRow;
    std::vector<int> rows;
    std::vector<WordKey> keys;
};

void addRow(std::vector<int> &rows, int row)
{
    if (rows.empty() || rows.back() != row)
        rows.push_back(row);
}

std::vector<int> dueRows(const WordSource &words, const Facts &facts)
{
    const Keys keys(words, facts.mode);
    const std::vector<bool> due = facts.memory->due(keys.keys);
    std::vector<int> rows;
    for (size_t key = 0; key < due.size(); ++key) {
        if (due[key])
            addRow(rows, keys.rowOf(key));
    }
    return rows;
}

/// Both ways of a word may be among the hardest: it counts once.
std::vector<int> hardestRows(const WordSource &words, const Facts &facts)
{
    const Keys keys(words, facts.mode);
    std::vector<int> rows;
    for (const size_t key : facts.memory->hardest(keys.keys, AnswerMemory::Hardest * int(keys.perRow))) {
        const int row = keys.rowOf(key);
        if (rows.size() < size_t(AnswerMemory::Hardest) && std::find(rows.begin(), rows.end(), row) == rows.end())
            rows.push_back(row);
    }
    return rows;
}

std::vector<int> missedRows(const WordSource &words, const Facts &facts)
{
    if (facts.missed.isEmpty())
        return {};
    return rowsOfWords(words, 1, words.Rows(), [&](int row) {
        return facts.missed.contains({words.TextMatrix(row, 1), words.TextMatrix(row, 2)});
    });
}

} // namespace

namespace AskedWords {

std::vector<int> rows(WordsToAsk choice, const WordSource &words, const Facts &facts)
{
    switch (choice) {
    case WordsToAsk::All:
        return rowsOfWords(words, 1, words.Rows());
    case WordsToAsk::SelectedRows:
        return rowsOfWords(words, facts.firstRow, facts.lastRow);
    case WordsToAsk::Due:
        return facts.memory ? dueRows(words, facts) : std::vector<int>();
    case WordsToAsk::Missed:
        return missedRows(words, facts);
    case WordsToAsk::Hardest:
        break;
    }
    return facts.memory ? hardestRows(words, facts) : std::vector<int>();
}

std::vector<WordKey> keys(const WordSource &words, int mode)
{
    return Keys(words, mode).keys;
}

AskedRows only(const std::vector<int> &rows)
{
    std::vector<bool> asked(rows.empty() ? 0 : size_t(*std::max_element(rows.begin(), rows.end())) + 1);
    for (const int row : rows)
        asked[size_t(row)] = true;
    return {[asked = std::move(asked)](int row) { return size_t(row) < asked.size() && asked[size_t(row)]; }};
}

} // namespace AskedWords
