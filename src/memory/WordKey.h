#pragma once

#include <QHashFunctions>
#include <QString>

/// What the memory knows a word by: the word that is asked and the one that answers it, in NFC. Their order is the
/// direction; nothing else counts, so a pair keeps its results in whatever list and row it stands.
struct WordKey
{
    QString asked;
    QString answer;

    static WordKey of(const QString &asked, const QString &answer);

    /// A number for the key, the same in every run and on every machine. Among a million keys the chance that two have
    /// the same one is below one in ten million.
    qint64 number() const;

    bool operator==(const WordKey &) const = default;
};

inline size_t qHash(const WordKey &key, size_t seed = 0)
{
    return qHashMulti(seed, key.asked, key.answer);
}
