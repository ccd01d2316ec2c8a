#include "exchange/rules/cards/CollectionReader.h"

#include "exchange/rules/archive/PackageLibraries.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSqlDriver>
#include <QSqlError>
#include <QSqlQuery>
#include <QUuid>

#include <map>

namespace {

constexpr QChar FieldEnd(0x1F);

/// A deck within another is written with a sign between the names, which differs by the collection's age.
QString deckName(QString name)
{
    return name.replace(FieldEnd, QStringLiteral("::"));
}

/// Newer collections order names by a rule that only their own program has. Tables can be looked at only where there is
/// one of its name; nothing here depends on what it says.
constexpr char NameOrder[] = "unicase";

} // namespace

CollectionReader::CollectionReader(const QString &path, const Limits &limits)
    : m_connection(QUuid::createUuid().toString())
    , m_limits(limits)
{
    m_database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), m_connection);
    m_database.setDatabaseName(path);
    m_database.setConnectOptions(QStringLiteral("QSQLITE_OPEN_READONLY"));
    require(m_database.open());
    void *handle = *static_cast<void **>(m_database.driver()->handle().data());
    PackageLibraries::loaded().addOrder(handle, NameOrder);
    for (const char *guard : {"PRAGMA query_only = ON", "PRAGMA trusted_schema = OFF", "PRAGMA cell_size_check = ON"})
        QSqlQuery(m_database).exec(QString::fromLatin1(guard));
}

CollectionReader::~CollectionReader()
{
    m_database.close();
    m_database = {};
    QSqlDatabase::removeDatabase(m_connection);
}

void CollectionReader::require(bool holds) const
{
    if (!holds)
        throw ReadFailure(ReadError::Damaged);
}

/// Whether there is a plain table of that name. A view or a table of another program's making would run whatever its
/// maker wants, and tables that lead in circles would be read for ever: both count as damage.
bool CollectionReader::hasTable(const QString &name) const
{
    QSqlQuery query(m_database);
    query.prepare(QStringLiteral("SELECT type, sql FROM sqlite_master WHERE name = ?"));
    query.addBindValue(name);
    require(query.exec());
    if (!query.next())
        return false;
    const QString sql = query.value(1).toString();
    require(query.value(0).toString() == u"table" && sql.startsWith(u"CREATE TABLE", Qt::CaseInsensitive) &&
            !sql.contains(u"GENERATED", Qt::CaseInsensitive) && !sql.contains(u" AS ", Qt::CaseInsensitive));
    QSqlQuery check(m_database);
    check.setForwardOnly(true);
    require(check.exec(QStringLiteral("PRAGMA quick_check('%1')").arg(name)) && check.next() &&
            check.value(0).toString() == u"ok");
    return true;
}

QSqlQuery CollectionReader::select(const QString &sql) const
{
    QSqlQuery query(m_database);
    query.setForwardOnly(true);
    require(query.exec(sql));
    return query;
}

/// Newer collections have tables for them.
void CollectionReader::readNames()
{
    QSqlQuery decks = select(QStringLiteral("SELECT id, name FROM decks NOT INDEXED"));
    while (decks.next())
        m_deckNames.insert(decks.value(0).toLongLong(), deckName(decks.value(1).toString()));
    if (!hasTable(QStringLiteral("fields")))
        return;
    QSqlQuery fields = select(QStringLiteral("SELECT ntid, ord, name FROM fields NOT INDEXED"));
    QHash<qint64, std::map<int, QString>> names;
    while (fields.next())
        names[fields.value(0).toLongLong()][fields.value(1).toInt()] = fields.value(2).toString();
    for (auto kind = names.cbegin(); kind != names.cend(); ++kind) {
        for (const auto &[ord, name] : *kind)
            m_fieldNames[kind.key()] += name;
    }
}

/// Older ones keep them as JSON in the one row of a table.
void CollectionReader::readNamesAsText()
{
    require(hasTable(QStringLiteral("col")));
    QSqlQuery query = select(QStringLiteral("SELECT decks, models FROM col"));
    require(query.next());
    const QJsonObject decks = QJsonDocument::fromJson(query.value(0).toByteArray()).object();
    for (auto deck = decks.begin(); deck != decks.end(); ++deck)
        m_deckNames.insert(deck.key().toLongLong(), deckName(deck.value()[u"name"].toString()));
    const QJsonObject models = QJsonDocument::fromJson(query.value(1).toByteArray()).object();
    for (auto model = models.begin(); model != models.end(); ++model) {
        const QJsonArray fields = model.value()[u"flds"].toArray();
        for (const auto &field : fields)
            m_fieldNames[model.key().toLongLong()] += field[u"name"].toString();
    }
}

/// A note is in the deck of its first card; one that was borrowed by another deck, in its own.
QHash<qint64, qint64> CollectionReader::decksOfNotes() const
{
    QHash<qint64, qint64> decks;
    QSqlQuery cards = select(QStringLiteral("SELECT nid, did, odid FROM cards NOT INDEXED"));
    while (cards.next()) {
        const qint64 own = cards.value(2).toLongLong();
        qint64 &deck = decks[cards.value(0).toLongLong()];
        if (deck == 0)
            deck = own != 0 ? own : cards.value(1).toLongLong();
    }
    return decks;
}

std::vector<CardPackage::Deck> CollectionReader::decks()
{
    require(hasTable(QStringLiteral("notes")) && hasTable(QStringLiteral("cards")));
    if (hasTable(QStringLiteral("decks")))
        readNames();
    else
        readNamesAsText();
    const QHash<qint64, qint64> deckOf = decksOfNotes();
    std::vector<CardPackage::Deck> all(1);
    std::map<QString, TextTable> byName;
    QHash<qint64, qsizetype> kinds;
    qsizetype kept = 0;
    QSqlQuery notes = select(QStringLiteral("SELECT id, mid, flds FROM notes NOT INDEXED"));
    while (notes.next()) {
        const QString fields = notes.value(2).toString();
        ++kinds[notes.value(1).toLongLong()];
        for (TextTable *table :
             {&all[0].table, &byName[m_deckNames.value(deckOf.value(notes.value(0).toLongLong()))]}) {
            for (const QStringView field : QStringView(fields).tokenize(FieldEnd))
                table->addCell(field);
            table->endRow();
        }
        m_limits.keep(kept += fields.size() * 4);
    }
    require(!notes.lastError().isValid());
    if (kinds.isEmpty())
        throw ReadFailure(ReadError::Empty);
    const auto usual = std::max_element(kinds.cbegin(), kinds.cend());
    for (auto &[name, table] : byName) {
        if (byName.size() > 1)
            all.push_back({name, std::move(table)});
    }
    for (CardPackage::Deck &deck : all)
        deck.table.columnNames = m_fieldNames.value(usual.key());
    return all;
}
