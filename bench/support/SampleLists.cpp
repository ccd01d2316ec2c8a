#include "support/SampleLists.h"

#include "document/rules/Vocabulary.h"
#include "exchange/rules/ListWriter.h"

#include <QFile>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTemporaryDir>

#include <zip.h>

namespace {

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray zipped(const std::vector<std::pair<const char *, QByteArray>> &entries)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("sample.zip"));
    zip_t *archive = zip_open(QFile::encodeName(path).constData(), ZIP_CREATE, nullptr);
    for (const auto &[name, bytes] : entries)
        zip_file_add(archive, name, zip_source_buffer(archive, bytes.constData(), zip_uint64_t(bytes.size()), 0), 0);
    if (zip_close(archive) != 0)
        qFatal("The sample cannot be written");
    return contentOf(path);
}

/// The rows without the names, numbered from 1 on.
template <typename Row> QByteArray rows(const Vocabulary &vocabulary, Row row)
{
    QByteArray text;
    for (size_t i = 1; i < vocabulary.first.size(); ++i)
        text += row(i, vocabulary.first[i].toHtmlEscaped(), vocabulary.second[i].toHtmlEscaped()).toUtf8();
    return text;
}

QString odsCell(const QString &word)
{
    return QStringLiteral("<table:table-cell office:value-type=\"string\" calcext:value-type=\"string\"><text:p>") +
           word + QStringLiteral("</text:p></table:table-cell>");
}

QString xlsxCell(char column, size_t row)
{
    return QStringLiteral("<c r=\"%1%2\" s=\"0\" t=\"s\"><v>%3</v></c>")
        .arg(QLatin1Char(column))
        .arg(row)
        .arg(2 * (row - 1) + (column == 'B' ? 1 : 0));
}

} // namespace

namespace SampleLists {

QByteArray csv(const Vocabulary &vocabulary)
{
    return ListWriter::write(vocabulary, ListWriter::Format::Csv, {});
}

QByteArray ods(const Vocabulary &vocabulary)
{
    const QByteArray content =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?><office:document-content xmlns:office=\"o\" xmlns:table=\"t\" "
        "xmlns:text=\"x\" xmlns:calcext=\"c\"><office:body><office:spreadsheet><table:table table:name=\"Words\">" +
        rows(vocabulary,
             [](size_t, const QString &first, const QString &second) {
                 return QStringLiteral("<table:table-row table:style-name=\"ro1\">") + odsCell(first) +
                        odsCell(second) + QStringLiteral("</table:table-row>");
             }) +
        "</table:table></office:spreadsheet></office:body></office:document-content>";
    return zipped({{"mimetype", "application/vnd.oasis.opendocument.spreadsheet"}, {"content.xml", content}});
}

QByteArray xlsx(const Vocabulary &vocabulary)
{
    const QByteArray strings = "<sst>" +
                               rows(vocabulary,
                                    [](size_t, const QString &first, const QString &second) {
                                        return QStringLiteral("<si><t xml:space=\"preserve\">") + first +
                                               QStringLiteral("</t></si><si><t xml:space=\"preserve\">") + second +
                                               QStringLiteral("</t></si>");
                                    }) +
                               "</sst>";
    const QByteArray sheet =
        "<worksheet><sheetData>" +
        rows(vocabulary,
             [](size_t row, const QString &, const QString &) {
                 return QStringLiteral("<row r=\"%1\" customFormat=\"false\" ht=\"12.8\" hidden=\"false\">").arg(row) +
                        xlsxCell('A', row) + xlsxCell('B', row) + QStringLiteral("</row>");
             }) +
        "</sheetData></worksheet>";
    return zipped(
        {{"xl/workbook.xml", "<workbook><sheets><sheet name=\"Words\" id=\"1\"/></sheets></workbook>"},
         {"xl/_rels/workbook.xml.rels",
          "<Relationships><Relationship Id=\"1\" Type=\"x/worksheet\" Target=\"sheet.xml\"/><Relationship Id=\"2\" "
          "Type=\"x/sharedStrings\" Target=\"strings.xml\"/></Relationships>"},
         {"xl/strings.xml", strings},
         {"xl/sheet.xml", sheet}});
}

QByteArray apkg(const Vocabulary &vocabulary)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("sample.db"));
    const QString connection = QStringLiteral("sample");
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connection);
        database.setDatabaseName(path);
        database.open();
        for (const char *statement :
             {"CREATE TABLE col (decks text, models text)", "INSERT INTO col VALUES ('{}', '{}')",
              "CREATE TABLE notes (id integer primary key, guid text, mid integer, tags text, flds text)",
              "CREATE TABLE cards (id integer primary key, nid integer, did integer, odid integer)", "BEGIN"})
            QSqlQuery(database).exec(QString::fromLatin1(statement));
        QSqlQuery note(database);
        note.prepare(QStringLiteral("INSERT INTO notes VALUES (?, 'abcdefghij', 1, '', ?)"));
        QSqlQuery card(database);
        card.prepare(QStringLiteral("INSERT INTO cards VALUES (?, ?, 1, 0)"));
        for (size_t i = 1; i < vocabulary.first.size(); ++i) {
            note.bindValue(0, qlonglong(i));
            note.bindValue(1, QString(vocabulary.first[i] + QChar(0x1F) + vocabulary.second[i]));
            card.bindValue(0, qlonglong(i));
            card.bindValue(1, qlonglong(i));
            if (!note.exec() || !card.exec())
                qFatal("The sample cannot be written");
        }
        QSqlQuery(database).exec(QStringLiteral("COMMIT"));
    }
    QSqlDatabase::removeDatabase(connection);
    return zipped({{"collection.anki2", contentOf(path)}});
}

} // namespace SampleLists
