#pragma once

#include <QSqlDatabase>
#include <QSqlQuery>

class QSqlError;

/// Why answers cannot be kept.
enum class MemoryTrouble {
    Unavailable, ///< the store cannot be opened or read
    Newer,       ///< a newer version of the program has made it
    Locked,      ///< another program holds it
    Refused,     ///< the store may not be written, or there is no room for it
    Damaged      ///< what is in it is no store
};

struct StoreError
{
    MemoryTrouble trouble;
};

/// A connection to a database file whose every failure is thrown as a StoreError. Used by one thread.
class MemoryDatabase
{
public:
    /// All or nothing: what is not committed is undone. Others may read meanwhile, not write.
    class Transaction
    {
    public:
        explicit Transaction(MemoryDatabase &database);
        ~Transaction();
        Q_DISABLE_COPY_MOVE(Transaction)
        void commit();

    private:
        MemoryDatabase &m_database;
    };

    /// Opens the file, or makes one.
    explicit MemoryDatabase(const QString &path);
    ~MemoryDatabase();
    Q_DISABLE_COPY_MOVE(MemoryDatabase)

    void run(const QString &sql);
    /// As run(); whether it could be done does not matter.
    void tryTo(const QString &sql);
    /// The one number that a query gives.
    qint64 number(const QString &sql);
    QSqlQuery prepared(const QString &sql);
    static void execute(QSqlQuery &query);
    /// The next row, as QSqlQuery::next().
    static bool next(QSqlQuery &query);
    static void bind(QSqlQuery &query, std::initializer_list<QVariant> values);

private:
    struct Connection
    {
        Connection();
        ~Connection();
        Q_DISABLE_COPY_MOVE(Connection)
        QString name;
        QSqlDatabase database;
    };
    Connection m_connection;
};
