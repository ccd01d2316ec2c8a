#pragma once

#include "exchange/rules/ListReader.h"
#include "exchange/rules/Pairs.h"

#include <zip.h>

inline const QString Data = QStringLiteral(SOURCE_FOLDER "/tests/exchange/data/");

/// "a|b" for every row that arrives, the names first; the error as a number when nothing can be read.
inline QStringList pairsOf(const ListReader::Result &opened)
{
    if (!opened.source)
        return {QString::number(int(opened.error))};
    const ListReader::Table read = ListReader::read(*opened.source, opened.source->proposal());
    const Vocabulary words = Pairs::take(read.table, Pairs::proposal(read.table, opened.source->hasMarkup()));
    QStringList rows;
    for (qsizetype row = 0; row < words.rows(); ++row)
        rows += words.first[size_t(row)] + u'|' + words.second[size_t(row)];
    return rows;
}

inline ListReader::Result openBytes(const QByteArray &bytes)
{
    return ListReader::open(bytes, {"windows-1252", QLocale::c()});
}

inline QStringList pairsOf(const QByteArray &bytes)
{
    return pairsOf(openBytes(bytes));
}

/// All lists of a source, the one that is proposed marked: their names, and their rows without what is blank at the
/// end.
inline QString described(const ListReader::Result &opened)
{
    QString text;
    ReadChoices choices = opened.source->proposal();
    const int proposed = std::exchange(choices.list, 0);
    for (const QString &name : opened.source->lists()) {
        const TextTable table = ListReader::read(*opened.source, choices).table;
        text += QString("%1 %2 [%3] ").arg(choices.list++ == proposed ? '*' : '-').arg(name).arg(table.columns());
        const Dropped dropped = Pairs::count(table, {}).dropped;
        text += table.columnNames.join('|') + QString("?").repeated(int(dropped.missingResults)) + '\n';
        for (qsizetype row = 0; row < table.rows(); ++row) {
            for (qsizetype column = 0; column < table.keptColumns(); ++column)
                text += table.cell(row, column).toString() + '|';
            text = text.left(text.lastIndexOf(QRegularExpression("[^|]")) + 1) + '\n';
        }
    }
    return text;
}

inline QByteArray zipOf(const std::vector<std::pair<QByteArray, QByteArray>> &entries, const char *password = nullptr)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("a.zip");
    zip_t *archive = zip_open(path.toUtf8().constData(), ZIP_CREATE, nullptr);
    for (const auto &[name, bytes] : entries) {
        const zip_int64_t entry = zip_file_add(
            archive, name.constData(), zip_source_buffer(archive, bytes.constData(), zip_uint64_t(bytes.size()), 0), 0);
        zip_file_set_encryption(archive, zip_uint64_t(entry), password ? ZIP_EM_AES_256 : ZIP_EM_NONE, password);
    }
    EXPECT_EQ(zip_close(archive), 0);
    return readFile(path);
}

/// The files of a folder as a package.
inline QByteArray zippedFolder(const QString &folder)
{
    std::vector<std::pair<QByteArray, QByteArray>> entries;
    for (QDirIterator files(folder, QDir::Files, QDirIterator::Subdirectories); files.hasNext();) {
        const QString path = files.next();
        entries.emplace_back(path.mid(folder.size() + 1).toUtf8(), readFile(path));
    }
    return zipOf(entries);
}

inline QByteArray ods(const QByteArray &content)
{
    return zipOf({{"mimetype", "application/vnd.oasis.opendocument.spreadsheet"}, {"content.xml", content}});
}
