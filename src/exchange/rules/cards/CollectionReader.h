#pragma once

#include "exchange/rules/archive/Limits.h"
#include "exchange/rules/cards/CardPackage.h"

#include <QHash>
#include <QSqlDatabase>

class QSqlQuery;

/// Reads the database of a collection of cards, which may come from anywhere: nothing is written to it, and nothing in
/// it is run: only plain tables are looked at.
class CollectionReader
{
public:
    /// Throws ReadFailure when the file is no such database or is damaged.
    CollectionReader(const QString &path, const Limits &limits);
    ~CollectionReader();
    Q_DISABLE_COPY_MOVE(CollectionReader)

    /// All notes, then those of each deck by the decks' names, where there are several with any. Throws ReadFailure.
    std::vector<CardPackage::Deck> decks();

private:
    bool hasTable(const QString &name) const;
    QSqlQuery select(const QString &sql) const;
    void readNames();
    void readNamesAsText();
    QHash<qint64, qint64> decksOfNotes() const;
    void require(bool holds) const;

    QString m_connection;
    QSqlDatabase m_database;
    const Limits &m_limits;
    QHash<qint64, QString> m_deckNames;
    QHash<qint64, QStringList> m_fieldNames; ///< by kind of note
};
