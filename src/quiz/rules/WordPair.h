#pragma once

#include <QHashFunctions>
#include <QString>

/// The words of one row of a vocabulary, in the order of its columns.
struct WordPair
{
    QString first;
    QString second;

    bool operator==(const WordPair &) const = default;
};

inline size_t qHash(const WordPair &pair, size_t seed = 0)
{
    return qHashMulti(seed, pair.first, pair.second);
}
