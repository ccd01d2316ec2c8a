#include "ListFixtures.h"

#include <QSqlDatabase>
#include <QSqlQuery>

#include <zstd.h>

namespace {

QByteArray row(const QByteArray &cells, const QByteArray &attributes = {})
{
    return "<spreadsheet><table name='a'><table-row " + attributes + ">" + cells + "</table-row></table></spreadsheet>";
}

const QByteArray Cell = "<table-cell><p>a</p></table-cell>";

QByteArray zstd(const QByteArray &bytes)
{
    QByteArray packed(qsizetype(ZSTD_compressBound(size_t(bytes.size()))), '\0');
    packed.resize(
        qsizetype(ZSTD_compress(packed.data(), size_t(packed.size()), bytes.data(), size_t(bytes.size()), 1)));
    return packed;
}

/// A package of cards whose database was made by these statements; newer ones are packed once more.
QByteArray cards(const QStringList &statements, bool newer = false)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("c.db");
    {
        QSqlDatabase database = QSqlDatabase::addDatabase("QSQLITE", "made");
        database.setDatabaseName(path);
        EXPECT_TRUE(database.open());
        for (const QString &statement : statements)
            EXPECT_TRUE(QSqlQuery(database).exec(statement)) << statement.toStdString();
    }
    QSqlDatabase::removeDatabase("made");
    return newer ? zipOf({{"collection.anki21b", zstd(readFile(path))}})
                 : zipOf({{"collection.anki2", readFile(path)}});
}

const QString Notes = "CREATE TABLE notes (id integer primary key, mid integer, flds text)";
const QString Cards = "CREATE TABLE cards (nid integer, did integer, odid integer)";
const QString Col = "CREATE TABLE col (decks text, models text)";

} // namespace

TEST(BadFiles, EachEndsInItsOwnReason)
{
    const QByteArray bomb = "<a>" + QByteArray(3 << 20, 'x') + "</a>";
    const QByteArray comment = "<a><!-- " + QByteArray(3 << 20, '<') + " --></a>";
    const QByteArray attribute = "<a b='" + QByteArray(3 << 20, '>') + "'></a>";
    const std::pair<QByteArray, ReadError> cases[] = {
        {"", ReadError::Empty},
        {" \r\n\t\n", ReadError::Empty},
        {"%PDF-1.4\n", ReadError::OtherKind},
        {QByteArray("\x89PNG\r\n\x1a\n\0\0\0\rIHDR\xff\xfe", 18), ReadError::OtherKind},
        {QByteArray("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1", 8), ReadError::OldKind},
        {"PK\x03\x04nothing", ReadError::Damaged},
        {"\x1F\x8Bnothing", ReadError::Damaged},
        {"Glosaria\r\n9.0\r\n", ReadError::NewerKind},
        {"Glosaria\r\n3.1.0\r\n[Font Info]\r\n", ReadError::Damaged},
        {zipOf({{"../../etc/passwd", "x"}}), ReadError::OtherKind},
        {zipOf({{"xl/workbook.xml", "<a/>"}}, "password"), ReadError::Locked},
        {zipOf({{"xl/workbook.xml", "<a/>"}})
             .replace(QByteArray("\x14\0\0\0\0\0", 6), QByteArray("\x14\0\0\0\x61\0", 6)),
         ReadError::Damaged}, // packed in an unknown way
        {zipOf({{"XL/WORKBOOK.XML", "<a/>"}}), ReadError::OtherKind},
        {zipOf({{"mimetype", "opendocument.spreadsheet"}, {"CONTENT.XML", "<a/>"}}), ReadError::Damaged},
        {zipOf({{"collection.anki21b", "no frame"}}), ReadError::Damaged},
        {zipOf({{"collection.anki2", "no database"}}), ReadError::Damaged},
        {zipOf({{"mimetype", "application/vnd.oasis.opendocument.spreadsheet"}}), ReadError::Damaged},
        {zipOf({{"mimetype", "application/vnd.oasis.opendocument.spreadsheet"},
                {"META-INF/manifest.xml", "<manifest><encryption-data/></manifest>"},
                {"content.xml", "no XML"}}),
         ReadError::Locked},
        {ods("<spreadsheet><table name='a'/></spreadsheet>"), ReadError::Empty},
        {ods(row(Cell).chopped(9)), ReadError::Damaged},
        {ods("<!DOCTYPE a [<!ENTITY b 'c'>]>" + row(Cell)), ReadError::Damaged},
        {ods(QByteArray("<a>").repeated(10000)), ReadError::Damaged},
        {ods(bomb), ReadError::TooLarge},
        {ods(comment), ReadError::TooLarge},
        {ods(attribute), ReadError::TooLarge},
        {ods("<a " + QByteArray("b='' ").repeated(300) + "/>"), ReadError::TooLarge},
        {ods("<a>" + QByteArray("<table name='a'/>").repeated(2000) + "</a>"), ReadError::TooLarge},
        {ods(row(Cell, "number-rows-repeated='5000000'")), ReadError::TooLarge},
        {zipOf({{"xl/workbook.xml", "<workbook><sheets/></workbook>"}}), ReadError::Empty},
        {cards({Notes}), ReadError::Damaged},
        {cards({Notes, Cards, Col, "INSERT INTO col VALUES ('{}', '{}')"}), ReadError::Empty},
        {cards(
             {"CREATE VIEW notes AS WITH RECURSIVE n(id) AS (SELECT 1 UNION ALL SELECT id + 1 FROM n) SELECT id, 1 AS "
              "mid, 'a' AS flds FROM n",
              Cards, Col}),
         ReadError::Damaged},
        {cards({"CREATE TABLE notes (id integer, mid integer, flds text GENERATED ALWAYS AS (hex(zeroblob(1000))))",
                Cards, Col}),
         ReadError::Damaged},
        {cards({"CREATE VIRTUAL TABLE notes USING fts4(id, mid, flds)", Cards, Col}), ReadError::Damaged}};
    for (const auto &[bytes, error] : cases)
        EXPECT_EQ(pairsOf(bytes), QStringList(QString::number(int(error)))) << bytes.left(60).toStdString();
    EXPECT_TRUE(ListReader::message(ReadError::NewerKind).endsWith("newer program."));
    EXPECT_EQ(pairsOf(ListReader::openFile("/dev/zero", {})), QStringList(QString::number(int(ReadError::CannotOpen))));
}

TEST(BadFiles, OddOnesArriveAllTheSame)
{
    const QByteArray wide = "a;b" + QByteArray(";c").repeated(100000) + "\n";
    const std::pair<QByteArray, QStringList> cases[] = {
        {wide, {"|", "a|b"}},
        {QByteArray("a\0b\tc\n\0\t\0\n", 10), {"|", "ab|c"}},
        {"a\tb\rc\td\r\ne\tf\n\ng\th", {"|", "a|b", "c|d", "e|f", "g|h"}},
        {"\"a,b\nc,d\n", {"|", "\"a|b", "c|d"}},
        {"\"a\",\"b\"\"c\"\n\"d\ne\",f\nx\"y,\"z\n", {"|", "a|b\"c", "d e|f", "x\"y|\"z"}},
        {ods(row(Cell + "<table-cell number-columns-repeated='2000000000'/>" + Cell)), {"|", "a|"}},
        {ods(row("<table-cell formula='" + QByteArray(300, '=') + "'><p>a</p></table-cell>" + Cell)), {"|", "a|a"}},
        {ods(row(Cell + "<covered-table-cell/>" + Cell)), {"|", "a|a"}},
        {ods("<?xml version='1.0'?><table><shapes>" + Cell + "</shapes>" + QByteArray("<x/>").repeated(300000) +
             "<!-- > -->" + QByteArray("<x/>").repeated(300000) + "<table-row>" + Cell + "</table-row></table>"),
         {"|", "a|"}},
        {cards({Notes, Cards, "CREATE TABLE decks (id integer, name text)", "INSERT INTO notes VALUES (1, 2, 'a')"}),
         {"|", "a|"}},
        {cards({Notes, Cards, Col, "INSERT INTO col VALUES ('no JSON', '[1]')",
                "INSERT INTO notes VALUES (1, 2, 'a' || char(31) || 'b'), (2, 2, NULL), (3, 2, 'c')"}),
         {"|", "a|b", "c|"}}};
    for (const auto &[bytes, words] : cases)
        EXPECT_EQ(pairsOf(bytes), words) << bytes.left(60).toStdString();
    const QString many =
        "INSERT INTO notes WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n LIMIT 30000) "
        "SELECT i, 1, hex(randomblob(9)) || char(31) || i FROM n";
    const QStringList words = pairsOf(cards({Notes, Cards, "CREATE TABLE decks (id, name)", many}, true));
    EXPECT_TRUE(words.size() == 30001 && words.last().endsWith("|30000")) << words.size();
    const ListReader::Table table = ListReader::read(*openBytes(wide).source, openBytes(wide).source->proposal());
    EXPECT_EQ(Pairs::count(table.table, {}).dropped.columns, 100000);
}
