#pragma once

#include <QtGlobal>

#include <vector>

/// Keeps the questions of a random quiz unique. It is the table of the pairs (side, word) chosen for each question,
/// turned round: it tells for every pair which question took it, so that no column needs to be searched.
class UsedPairs
{
public:
    /// Room for both sides of the words 1 to words.
    explicit UsedPairs(int words = 0);

    /// True when none of the questions before k has taken side d (1 or 2) of word w; the pair is then recorded as that
    /// of question k. Questions are given their pairs in ascending order.
    bool fUnique(qint32 k, qint16 d, qint16 w);

private:
    std::vector<qint16> m_takenBy; ///< question number, 0 for a free pair
};
