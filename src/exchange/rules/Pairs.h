#pragma once

#include "document/rules/Vocabulary.h"
#include "exchange/rules/TextTable.h"

#include <functional>
#include <utility>

/// Which cells of a table become the two words of a row.
struct PairChoice
{
    int first = 0; ///< column of language 1
    int second = 1;
    bool names = false;  ///< the first row with words names the languages
    bool markup = false; ///< the words are written with markup, which goes
    bool operator==(const PairChoice &) const = default;
};

/// What does not arrive, or not as it was.
struct Dropped
{
    qsizetype columns = 0; ///< with words that are in neither of the two
    qsizetype blankRows = 0;
    qsizetype rowsBeyond = 0; ///< beyond the most that a vocabulary holds
    qsizetype missingResults = 0;
    bool operator==(const Dropped &) const = default;
};

/// The way from a table of texts to pairs of words.
namespace Pairs {

/// What fits best: the first two columns that hold words; names where the first row says languages.
PairChoice proposal(const TextTable &table, bool markup);

struct Count
{
    qsizetype rows = 0; ///< that arrive, without the names
    Dropped dropped;
};
Count count(const TextTable &table, const PairChoice &choice, qsizetype most = Vocabulary::MostRows - 1);

using Pair = std::pair<QString, QString>;

/// The names of the languages, empty where nothing says them.
Pair names(const TextTable &table, const PairChoice &choice);
/// Hands over the first pairs that arrive, one after the other.
void each(const TextTable &table, const PairChoice &choice, qsizetype most, const std::function<void(Pair &&)> &taker);
/// The names and the first pairs.
Vocabulary take(const TextTable &table, const PairChoice &choice, qsizetype most = Vocabulary::MostRows - 1);
/// The names and all pairs; the table goes meanwhile, since both may be large.
Vocabulary takeAll(TextTable &&table, const PairChoice &choice);

/// Names of columns for a choice: those that the file has or its first row, else "Column 3".
QStringList columnNames(const TextTable &table, bool names);

} // namespace Pairs
