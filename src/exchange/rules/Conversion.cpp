#include "exchange/rules/Conversion.h"

#include "document/rules/file/VocabularyCodec.h"
#include "exchange/rules/ListWriter.h"
#include "exchange/rules/Pairs.h"
#include "platform/files/AtomicFile.h"
#include "resources/StringTable.h"

#include <QFileInfo>
#include <QTextStream>

namespace {

const QString StandardOutput = QStringLiteral("-");
constexpr int UnknownFormatId = 14561;
constexpr int CannotWriteId = 14562;
constexpr int ComplaintId = 14563; ///< the program's name before what it says

bool isVocabulary(const QString &path)
{
    return path.endsWith(QStringLiteral(".gla"), Qt::CaseInsensitive);
}

void complain(QTextStream &complaints, const QString &text)
{
    complaints << resText(ComplaintId).arg(text) << '\n';
}

/// A file with texts is made pair by pair: an open vocabulary would take many times their memory.
QByteArray bytesFor(TextTable &&table, const PairChoice &choice, const QString &out, const QByteArray &codePage)
{
    if (isVocabulary(out))
        return VocabularyCodec::encode(Pairs::takeAll(std::move(table), choice), CodePage(codePage));
    const auto [first, second] = Pairs::names(table, choice);
    ListWriter::Output output(ListWriter::formatOf(out).value_or(ListWriter::Format::Tabs), first, second,
                              QFileInfo(out).completeBaseName());
    Pairs::each(table, choice, Vocabulary::MostRows - 1,
                [&output](const Pairs::Pair &pair) { output.add(pair.first, pair.second); });
    return output.bytes();
}

bool writeTo(const QString &out, const QByteArray &bytes, QString &error)
{
    if (out != StandardOutput)
        return AtomicFile::write(out, bytes, &error);
    QFile output;
    const bool written = output.open(stdout, QIODevice::WriteOnly) && output.write(bytes) == bytes.size();
    error = output.errorString();
    return written && output.flush();
}

} // namespace

int Conversion::run(const QString &in, const QString &out, const ListReader::Surroundings &surroundings,
                    QTextStream &complaints)
{
    if (out != StandardOutput && !isVocabulary(out) && !ListWriter::formatOf(out)) {
        complain(complaints, resText(UnknownFormatId).arg(out));
        return WrongUse;
    }
    ListReader::Result opened = ListReader::openFile(in, surroundings);
    ListReader::Table read = opened.source ? ListReader::read(*opened.source, opened.source->proposal())
                                           : ListReader::Table{{}, opened.error};
    if (read.error != ReadError::None) {
        complain(complaints, ListReader::message(read.error).arg(in));
        return Failed;
    }
    const PairChoice choice = Pairs::proposal(read.table, opened.source->hasMarkup());
    opened.source.reset();
    QString error;
    if (writeTo(out, bytesFor(std::move(read.table), choice, out, surroundings.codePage), error))
        return Done;
    complain(complaints, resText(CannotWriteId).arg(out, error));
    return Failed;
}
