#include "memory/MemoryDatabase.h"

#include <QSqlError>

#include <atomic>

namespace {

constexpr int BusyTimeout = 250; // milliseconds that one statement waits for another program

MemoryTrouble troubleOf(const QSqlError &error)
{
    enum { Generic = 1, Busy = 5, TableLocked = 6, ReadOnly = 8, InOut = 10, Corrupt = 11, Full = 13, NoDatabase = 26 };
    constexpr int PrimaryCode = 0xff; // the bits above say more of the same
    switch (error.nativeErrorCode().toInt() & PrimaryCode) {
    case Busy:
    case TableLocked:
        return MemoryTrouble::Locked;
    case ReadOnly:
    case InOut:
    case Full:
        return MemoryTrouble::Refused;
    case Generic: // a table or a column is missing
    case Corrupt:
    case NoDatabase:
        return MemoryTrouble::Damaged;
    default:
        return MemoryTrouble::Unavailable;
    }
}

[[noreturn]] void fail(const QSqlError &error)
{
    throw StoreError{troubleOf(error)};
}

} // namespace

MemoryDatabase::Connection::Connection()
{
    static std::atomic<int> connections;
    name = QStringLiteral("memory%1").arg(++connections);
    database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name);
}

MemoryDatabase::Connection::~Connection()
{
    database = QSqlDatabase();
    QSqlDatabase::removeDatabase(name);
}

MemoryDatabase::Transaction::Transaction(MemoryDatabase &database)
    : m_database(database)
{
    m_database.run(QStringLiteral("BEGIN IMMEDIATE"));
}

/// After a commit there is nothing to undo.
MemoryDatabase::Transaction::~Transaction()
{
    m_database.tryTo(QStringLiteral("ROLLBACK"));
}

void MemoryDatabase::Transaction::commit()
{
    m_database.run(QStringLiteral("COMMIT"));
}

MemoryDatabase::MemoryDatabase(const QString &path)
{
    QSqlDatabase &database = m_connection.database;
    database.setDatabaseName(path);
    database.setConnectOptions(QStringLiteral("QSQLITE_BUSY_TIMEOUT=%1").arg(BusyTimeout));
    if (!database.open())
        fail(database.lastError());
}

MemoryDatabase::~MemoryDatabase() = default;

void MemoryDatabase::run(const QString &sql)
{
    QSqlQuery query(m_connection.database);
    if (!query.exec(sql))
        fail(query.lastError());
}

void MemoryDatabase::tryTo(const QString &sql)
{
    QSqlQuery(m_connection.database).exec(sql);
}

qint64 MemoryDatabase::number(const QString &sql)
{
    QSqlQuery query(m_connection.database);
    if (!query.exec(sql) || !query.next())
        fail(query.lastError());
    return query.value(0).toLongLong();
}

QSqlQuery MemoryDatabase::prepared(const QString &sql)
{
    QSqlQuery query(m_connection.database);
    query.setForwardOnly(true);
    if (!query.prepare(sql))
        fail(query.lastError());
    return query;
}

void MemoryDatabase::execute(QSqlQuery &query)
{
    if (!query.exec())
        fail(query.lastError());
}

bool MemoryDatabase::next(QSqlQuery &query)
{
    if (query.next())
        return true;
    if (query.lastError().isValid())
        fail(query.lastError());
    return false;
}

void MemoryDatabase::bind(QSqlQuery &query, std::initializer_list<QVariant> values)
{
    int place = 0;
    for (const QVariant &value : values)
        query.bindValue(place++, value);
}
