#include "memory/MemoryStore.h"

#include "memory/MemorySchema.h"
#include "platform/files/FolderLock.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>

namespace {

QString freeName(const QString &path)
{
    const QString stamp = QDateTime::currentDateTimeUtc().toString(QStringLiteral("yyyyMMdd-HHmmss"));
    QString name = path + QStringLiteral(".damaged-") + stamp;
    for (int i = 2; QFile::exists(name); ++i)
        name = path + QStringLiteral(".damaged-%1-%2").arg(stamp).arg(i);
    return name;
}

bool isPlausible(const Card &card)
{
    return card.stability > 0 && card.stability <= Schedule::LongestInterval && card.difficulty >= 1 &&
           card.difficulty <= 10 && card.asked > 0 && card.missed >= 0 && card.missed <= card.asked &&
           card.due > card.last;
}

/// To a database a null text is no text.
QString neverNull(const QString &text)
{
    return text.isNull() ? QStringLiteral("") : text;
}

/// Reads the columns of a card from that column on.
Card cardIn(const QSqlQuery &query, int column)
{
    return {.stability = query.value(column).toDouble(),
            .difficulty = query.value(column + 1).toDouble(),
            .due = query.value(column + 2).toInt(),
            .last = query.value(column + 3).toInt(),
            .asked = query.value(column + 4).toInt(),
            .missed = query.value(column + 5).toInt()};
}

void writeCard(QSqlQuery &query, qint64 word, const Card &card, qint64 answer)
{
    MemoryDatabase::bind(query,
                         {word, card.stability, card.difficulty, card.due, card.last, card.asked, card.missed, answer});
    MemoryDatabase::execute(query);
}

const QString CardColumns = QStringLiteral("stability, difficulty, due, last, asked, missed");

const QString NewestCard = QStringLiteral("SELECT ifnull(max(answer), 0) FROM card");

} // namespace

MemoryStore::MemoryStore(const QString &path)
    : m_database(path)
{
    migrate();
    // An answer is safe against the end of the program when it is written, and the file against the loss of power.
    m_database.run(QStringLiteral("PRAGMA synchronous = NORMAL"));
    prepare();
    checkCards();
}

void MemoryStore::prepare()
{
    m_addWord = m_database.prepared(QStringLiteral("INSERT OR IGNORE INTO word VALUES (?, ?, ?)"));
    m_addAnswer = m_database.prepared(QStringLiteral("INSERT INTO answer VALUES (NULL, ?, ?, ?, ?, ?, ?, ?)"));
    m_readCard = m_database.prepared(QStringLiteral("SELECT %1 FROM card WHERE word = ?").arg(CardColumns));
    m_writeCard = m_database.prepared(QStringLiteral("INSERT OR REPLACE INTO card VALUES (?, ?, ?, ?, ?, ?, ?, ?)"));
    m_readNewer = m_database.prepared(QStringLiteral("SELECT word, %1 FROM card WHERE answer > ?").arg(CardColumns));
}

void MemoryStore::migrate()
{
    const QString versionOf = QStringLiteral("PRAGMA user_version");
    const auto newest = qint64(MemorySchema::steps().size());
    if (m_database.number(versionOf) == newest)
        return;
    if (m_database.number(versionOf) > newest)
        throw StoreError{MemoryTrouble::Newer};
    m_database.run(QStringLiteral("PRAGMA journal_mode = WAL"));
    Transaction change(m_database);
    // another program may have been quicker
    for (qint64 version = m_database.number(versionOf); version < newest; ++version) {
        for (const QString &sql : MemorySchema::steps()[size_t(version)])
            m_database.run(sql);
        m_database.run(QStringLiteral("PRAGMA user_version = %1").arg(version + 1));
    }
    change.commit();
}

/// The cards are in doubt when they do not know the newest answer.
void MemoryStore::checkCards()
{
    if (m_database.number(QStringLiteral("SELECT ifnull(max(id), 0) FROM answer")) != m_database.number(NewestCard))
        rebuild();
}

MemoryStore::Changes MemoryStore::refresh(const Cards &known)
{
    const qint64 dataVersion = m_database.number(QStringLiteral("PRAGMA data_version"));
    if (dataVersion == m_dataVersion)
        return {};
    std::optional<Cards> cards = read(m_lastRead);
    if (cards) {
        const auto fresh =
            std::count_if(cards->keyBegin(), cards->keyEnd(), [&known](qint64 word) { return !known.contains(word); });
        if (known.size() + fresh == m_database.number(QStringLiteral("SELECT count(*) FROM card"))) {
            m_dataVersion = dataVersion;
            return {.cards = *cards};
        }
        cards = read(0); // some were forgotten
    }
    if (!cards) {
        rebuild();
        cards = read(0);
    }
    if (!cards)
        throw StoreError{MemoryTrouble::Damaged};
    m_dataVersion = dataVersion;
    return {.all = true, .cards = *cards};
}

/// The cards of answers after a given one; nothing when one of them cannot be true. Reading all of them one after the
/// other is three times quicker than by an index.
std::optional<Cards> MemoryStore::read(qint64 afterAnswer)
{
    m_lastRead = m_database.number(NewestCard);
    if (afterAnswer > 0) {
        m_readNewer.bindValue(0, afterAnswer);
        return readFrom(m_readNewer);
    }
    QSqlQuery all = m_database.prepared(QStringLiteral("SELECT word, %1 FROM card").arg(CardColumns));
    return readFrom(all);
}

std::optional<Cards> MemoryStore::readFrom(QSqlQuery &query)
{
    MemoryDatabase::execute(query);
    Cards cards;
    bool isTrue = true;
    while (MemoryDatabase::next(query)) {
        const Card card = cardIn(query, 1);
        isTrue = isTrue && isPlausible(card);
        cards.insert(query.value(0).toLongLong(), card);
    }
    return isTrue ? std::optional(cards) : std::nullopt;
}

Cards MemoryStore::append(const std::vector<StoredAnswer> &answers)
{
    Cards changed;
    Transaction change(m_database);
    for (const StoredAnswer &answer : answers)
        changed.insert(answer.answer.word.number(), appendOne(answer));
    change.commit();
    return changed;
}

/// A new one if the word has none.
Card MemoryStore::cardOf(qint64 word)
{
    m_readCard.bindValue(0, word);
    MemoryDatabase::execute(m_readCard);
    const Card card = MemoryDatabase::next(m_readCard) ? cardIn(m_readCard, 0) : Card();
    m_readCard.finish();
    return card;
}

Card MemoryStore::appendOne(const StoredAnswer &stored)
{
    const Answer &answer = stored.answer;
    const qint64 word = answer.word.number();
    Card before = cardOf(word);
    if (!(before == Card()) && !isPlausible(before)) {
        makeCards();
        before = cardOf(word);
    }
    if (before.isNew()) {
        MemoryDatabase::bind(m_addWord, {word, neverNull(answer.word.asked), neverNull(answer.word.answer)});
        MemoryDatabase::execute(m_addWord);
    }
    MemoryDatabase::bind(m_addAnswer, {word, stored.time, stored.day, int(answer.kind), int(answer.right),
                                       int(answer.hintUsed), answer.milliseconds});
    MemoryDatabase::execute(m_addAnswer);
    const Card after = Schedule::next(before, answer.grade(), stored.day);
    writeCard(m_writeCard, word, after, m_addAnswer.lastInsertId().toLongLong());
    return after;
}

void MemoryStore::rebuild()
{
    Transaction change(m_database);
    makeCards();
    change.commit();
}

/// Within a transaction: of all the answers.
void MemoryStore::makeCards()
{
    struct Made
    {
        Card card;
        qint64 answer = 0;
    };
    QHash<qint64, Made> made;
    QSqlQuery query =
        m_database.prepared(QStringLiteral("SELECT id, word, day, kind, correct, hint FROM answer ORDER BY id"));
    MemoryDatabase::execute(query);
    while (MemoryDatabase::next(query)) {
        const Answer answer{.kind = Answer::Kind(query.value(3).toInt()),
                            .right = query.value(4).toBool(),
                            .hintUsed = query.value(5).toBool()};
        Made &word = made[query.value(1).toLongLong()];
        word.card = Schedule::next(word.card, answer.grade(), query.value(2).toInt());
        word.answer = query.value(0).toLongLong();
    }
    m_database.run(QStringLiteral("DELETE FROM card"));
    for (auto it = made.cbegin(); it != made.cend(); ++it)
        writeCard(m_writeCard, it.key(), it->card, it->answer);
}

QHash<int, int> MemoryStore::answersByDay(const QSet<qint64> &words, int first, int last)
{
    QSqlQuery query = m_database.prepared(QStringLiteral("SELECT day, word, count(*) FROM answer "
                                                         "WHERE day BETWEEN ? AND ? GROUP BY day, word"));
    MemoryDatabase::bind(query, {first, last});
    MemoryDatabase::execute(query);
    QHash<int, int> counts;
    while (MemoryDatabase::next(query)) {
        if (words.contains(query.value(1).toLongLong()))
            counts[query.value(0).toInt()] += query.value(2).toInt();
    }
    return counts;
}

void MemoryStore::forget(const QSet<qint64> &words)
{
    m_database.run(QStringLiteral("CREATE TEMP TABLE IF NOT EXISTS gone (word INTEGER PRIMARY KEY)"));
    Transaction change(m_database);
    m_database.run(QStringLiteral("DELETE FROM gone"));
    QSqlQuery query = m_database.prepared(QStringLiteral("INSERT INTO gone VALUES (?)"));
    for (const qint64 word : words) {
        query.bindValue(0, word);
        MemoryDatabase::execute(query);
    }
    m_database.run(QStringLiteral("PRAGMA secure_delete = ON"));
    m_database.run(QStringLiteral("DELETE FROM answer WHERE word IN gone"));
    m_database.run(QStringLiteral("DELETE FROM card WHERE word IN gone"));
    m_database.run(QStringLiteral("DELETE FROM word WHERE id IN gone"));
    change.commit();
    erase();
}

void MemoryStore::forgetAll()
{
    Transaction change(m_database);
    m_database.run(QStringLiteral("PRAGMA secure_delete = ON"));
    for (const char *table : {"answer", "card", "word"})
        m_database.run(QStringLiteral("DELETE FROM ") + QLatin1String(table));
    change.commit();
    m_database.tryTo(QStringLiteral("VACUUM"));
    erase();
}

/// What was forgotten is to be in none of the files. Another program that reads may be in the way; the file is put
/// right when the last program closes it.
void MemoryStore::erase()
{
    m_dataVersion = -1;
    m_database.tryTo(QStringLiteral("PRAGMA wal_checkpoint(TRUNCATE)"));
}

bool MemoryStore::isWhole()
{
    QSqlQuery query = m_database.prepared(QStringLiteral("PRAGMA quick_check(1)"));
    MemoryDatabase::execute(query);
    return MemoryDatabase::next(query) && query.value(0).toString() == u"ok";
}

QString MemoryStore::setAside(const QString &path)
{
    constexpr int Wait = 2000; // milliseconds
    const FolderLock lock(QFileInfo(path).path(), Wait);
    try {
        if (MemoryStore(path).isWhole())
            return {};
    } catch (const StoreError &error) {
        if (error.trouble != MemoryTrouble::Damaged)
            return {};
    }
    QString name = freeName(path);
    if (!QFile::rename(path, name))
        return {};
    for (const char *part : {"-wal", "-shm"})
        QFile::rename(path + QLatin1String(part), name + QLatin1String(part));
    return name;
}
