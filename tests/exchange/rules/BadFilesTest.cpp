#include "ListFixtures.h"

#include <QSqlDatabase>
#include <QSqlQuery>

#include <zstd.h>

namespace {

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

} // namespace

TEST(OddFiles, ArriveOrEndInTheirOwnReason)
{
    // The entries of a package, the table of a workbook, or what makes a collection of cards; then the error, the words
    // or, after a "+", all lists.
    for (const QString &each : QString(readFile(Data + "odd_files.txt")).split('\n', Qt::SkipEmptyParts)) {
        const QString kind = each.section(' ', 0, 0), content = each.section(' ', 1).section(" => ", 0, 0);
        std::vector<std::pair<QByteArray, QByteArray>> entries;
        for (const QString &entry : kind == "zip" ? content.split(" ; ") : QStringList())
            entries.emplace_back(entry.section('=', 0, 0).toUtf8(), entry.section('=', 1).toUtf8());
        const QByteArray bytes = kind == "zip"   ? zipOf(entries)
                                 : kind == "ods" ? ods(content.toUtf8())
                                                 : cards(content.split("; "));
        const QString found = kind.endsWith('+') ? described(openBytes(bytes)) : pairsOf(bytes).join('~');
        EXPECT_EQ(QString(found).replace('\n', '~').toStdString(), each.section(" => ", 1).toStdString())
            << each.left(200).toStdString();
    }
    const QByteArray wide = "a;b" + QByteArray(";c").repeated(100000) + "\n";
    const QByteArray elements = QByteArray("<x/>").repeated(300000);
    const auto longToken = [](qsizetype size) { return ods("<a>" + QByteArray(size, 'x') + "</a>"); };
    const auto error = [](ReadError reason) { return QStringList(QString::number(int(reason))); };
    const std::pair<QByteArray, QStringList> cases[] = {
        {"", error(ReadError::Empty)},
        {" \r\n\t\n", error(ReadError::Empty)},
        {"%PDF-1.4\n", error(ReadError::OtherKind)},
        {QByteArray("\x89PNG\r\n\x1a\n\0\0\0\rIHDR\xff\xfe", 18), error(ReadError::OtherKind)},
        {QByteArray("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1", 8), error(ReadError::OldKind)},
        {"PK\x03\x04nothing", error(ReadError::Damaged)},
        {"\x1F\x8Bnothing", error(ReadError::Damaged)},
        {"Glosaria\r\n9.0\r\n", error(ReadError::NewerKind)},
        {"Glosaria\r\n3.1.0\r\n[Font Info]\r\n", error(ReadError::Damaged)},
        {"Glosaria\r\n2\r\n", error(ReadError::Empty)},
        {zipOf({{"xl/workbook.xml", "<a/>"}}, "password"), error(ReadError::Locked)},
        {zipOf({{"xl/workbook.xml", "<a/>"}}) // packed in an unknown way
             .replace(QByteArray("\x14\0\0\0\0\0", 6), QByteArray("\x14\0\0\0\x61\0", 6)),
         error(ReadError::Damaged)},
        {longToken(1048573), error(ReadError::Empty)},
        {longToken(1048574), error(ReadError::TooLarge)},
        {ods("<a><!-- > " + QByteArray(3 << 20, '<') + " --></a>"), error(ReadError::TooLarge)},
        {ods("<a b='" + QByteArray(3 << 20, '>') + "'></a>"), error(ReadError::TooLarge)},
        {ods("<a>" + QByteArray("<table name='a'/>").repeated(1001) + "</a>"), error(ReadError::TooLarge)},
        {ods("<a>" + QByteArray("<table name='a'/>").repeated(1000) + "</a>"), error(ReadError::Empty)},
        {wide, {"|", "a|b"}},
        {QByteArray("a\0b\tc\n\0\t\0\n", 10), {"|", "ab|c"}},
        {"#separator:;\r\n#columns:A;B\r\na;b\r\nc;d\r\re;f\n", {"A|B", "a|b", "c|d", "e|f"}},
        {ods("<?xml version='1.0'?><table>" + elements + "<!-- > -->" + elements + "<![CDATA[>]]>" + elements +
             "<table-row><table-cell><p>a</p></table-cell></table-row></table>"),
         {"|", "a|"}}};
    for (const auto &[bytes, words] : cases)
        EXPECT_EQ(pairsOf(bytes), words) << bytes.left(60).toStdString();
    EXPECT_EQ(openBytes("\xE9" + QByteArray(4095, 'a') + '\0').error, ReadError::None);
    EXPECT_TRUE(ListReader::message(ReadError::NewerKind).endsWith("newer program."));
    EXPECT_EQ(pairsOf(ListReader::openFile("/dev/zero", {})), error(ReadError::CannotOpen));
    const QString many = "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n LIMIT 30000) "
                         "SELECT i, 1, hex(randomblob(9)) || char(31) || i FROM n";
    const QStringList words = pairsOf(cards({"CREATE TABLE cards (nid, did, odid)", "CREATE TABLE decks (id, name)",
                                             "CREATE TABLE notes (id, mid, flds)", "INSERT INTO notes " + many},
                                            true));
    EXPECT_TRUE(words.size() == 30001 && words.last().endsWith("|30000")) << words.size();
    EXPECT_EQ(openBytes(wide).source->table({";", "UTF-8"}).columns(), 100002);
}
