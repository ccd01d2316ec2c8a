#pragma once

#include "memory/WordKey.h"
#include "quiz/rules/AskedRows.h"
#include "quiz/rules/WordPair.h"
#include "quiz/rules/WordSource.h"

#include <QSet>

#include <vector>

class AnswerMemory;

/// Which words of a vocabulary the user wants to be asked.
enum class WordsToAsk {
    All,
    SelectedRows,
    Due,
    Missed, ///< in the last quiz
    Hardest ///< the few missed most often
};

namespace AskedWords {

/// What the choice goes by, as far as it needs it.
struct Facts
{
    int mode = 1;     ///< quiz mode; the memory knows words by the direction in which they are asked
    int firstRow = 0; ///< of the selection
    int lastRow = 0;
    QSet<WordPair> missed = {};
    AnswerMemory *memory = nullptr; ///< without one no word is due or hard
};

/// The rows that hold the chosen words, in ascending order but for the hardest.
std::vector<int> rows(WordsToAsk choice, const WordSource &words, const Facts &facts);

/// By what the memory knows the words, row by row; in the mode that asks both ways there are two keys a row.
std::vector<WordKey> keys(const WordSource &words, int mode);

/// The rows in the form in which a quiz takes them.
AskedRows only(const std::vector<int> &rows);

} // namespace AskedWords
