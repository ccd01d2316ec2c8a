#pragma once

#include "memory/AnswerMemory.h"
#include "memory/MemoryDatabase.h"

#include <QHash>
#include <QSet>

#include <optional>

/// An answer as it is stored.
struct StoredAnswer
{
    Answer answer;
    qint64 time; ///< milliseconds since 1970, UTC
    int day;     ///< the user's own (memory/Day.h)
};

using Cards = QHash<qint64, Card>; ///< by WordKey::number()

/// The file in which answers are kept: every answer, to which are only ever added, and one card a word, made from them.
/// Several programs may have it open at once. Whatever goes wrong is thrown as a StoreError, and what was to be changed
/// is as it was. Used by one thread.
class MemoryStore
{
public:
    /// Opens the store, or makes one. The folder must be there.
    explicit MemoryStore(const QString &path);

    /// What has to be done to the known cards to have those that are stored, which other programs may have changed.
    struct Changes
    {
        bool all = false; ///< the cards take the place of the known ones
        Cards cards = {};
    };
    Changes refresh(const Cards &known);
    /// Adds answers and makes their cards from them, all or none. Returns the new cards.
    Cards append(const std::vector<StoredAnswer> &answers);
    /// Makes every card anew from the answers.
    void rebuild();
    /// Number of answers to the words, day by day.
    QHash<int, int> answersByDay(const QSet<qint64> &words, int first, int last);
    void forget(const QSet<qint64> &words);
    void forgetAll();

    /// Gives a damaged store another name, so that a new one can be made: nothing of the user's is deleted. Returns
    /// that name, which is empty when it cannot be given, or when another program has done so meanwhile.
    static QString setAside(const QString &path);

private:
    using Transaction = MemoryDatabase::Transaction;

    void prepare();
    void migrate();
    void checkCards();
    std::optional<Cards> read(qint64 afterAnswer);
    static std::optional<Cards> readFrom(QSqlQuery &query);
    bool isWhole();
    void erase();
    Card cardOf(qint64 word);
    Card appendOne(const StoredAnswer &answer);
    void makeCards();

    MemoryDatabase m_database;
    QSqlQuery m_addWord;
    QSqlQuery m_addAnswer;
    QSqlQuery m_readCard;
    QSqlQuery m_writeCard;
    QSqlQuery m_readNewer;
    qint64 m_dataVersion = -1; ///< changes when another program has written
    qint64 m_lastRead = 0;     ///< the newest answer that the cards given out know
};
