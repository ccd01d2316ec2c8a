#include "exchange/rules/ListReader.h"

#include "exchange/rules/VocabularyLists.h"
#include "exchange/rules/archive/ZipPackage.h"
#include "exchange/rules/cards/CardPackage.h"
#include "exchange/rules/text/TextLists.h"
#include "exchange/rules/workbook/Workbook.h"
#include "platform/files/RegularFile.h"
#include "resources/StringTable.h"

#include <new>

namespace {

using ListReader::Surroundings;

constexpr char Zip[] = "PK\x03\x04";
constexpr char Gzip[] = "\x1F\x8B";
constexpr char OldOffice[] = "\xD0\xCF\x11\xE0";
constexpr int FirstMessage = 14540;

std::unique_ptr<ListSource> openArchive(const QByteArray &bytes, const Surroundings &surroundings)
{
    const ZipPackage package(bytes);
    if (package.contains(QStringLiteral("xl/workbook.xml")))
        return std::make_unique<Workbook>(WorkbookReader::xlsx(bytes, package, surroundings.locale));
    if (package.start(QStringLiteral("mimetype"), 64).contains("opendocument.spreadsheet"))
        return std::make_unique<Workbook>(WorkbookReader::ods(bytes, package));
    if (CardPackage::isIn(package))
        return CardPackage::open(bytes, package);
    throw ReadFailure(ReadError::OtherKind);
}

bool isPlainGnumeric(const QByteArray &bytes)
{
    static constexpr qsizetype Start = 1024;
    return bytes.startsWith("<?xml") && bytes.left(Start).contains("www.gnumeric.org");
}

std::unique_ptr<ListSource> openAny(const QByteArray &bytes, const Surroundings &surroundings)
{
    if (bytes.startsWith(Zip))
        return openArchive(bytes, surroundings);
    if (bytes.startsWith(Gzip) || isPlainGnumeric(bytes))
        return std::make_unique<Workbook>(WorkbookReader::gnumeric(bytes, surroundings.locale));
    if (bytes.startsWith(OldOffice))
        throw ReadFailure(ReadError::OldKind);
    if (VocabularyLists::isOne(bytes))
        return std::make_unique<VocabularyLists>(bytes, surroundings.codePage);
    return std::make_unique<TextLists>(bytes, surroundings.codePage);
}

/// Whatever ends a reader becomes an error that can be told.
template <typename Action> ReadError errorOf(Action action)
{
    try {
        action();
    } catch (const ReadFailure &failure) {
        return failure.error();
    } catch (const std::bad_alloc &) {
        return ReadError::TooLarge;
    }
    return ReadError::None;
}

} // namespace

namespace ListReader {

Result open(const QByteArray &bytes, const Surroundings &surroundings)
{
    Result result;
    result.error = errorOf([&] { result.source = openAny(bytes, surroundings); });
    return result;
}

Result openFile(const QString &path, const Surroundings &surroundings)
{
    QFile file;
    if (!RegularFile::open(file, path))
        return {nullptr, ReadError::CannotOpen};
    if (file.size() > LargestFile)
        return {nullptr, ReadError::TooLarge};
    const QByteArray bytes = file.readAll();
    if (file.error() != QFile::NoError)
        return {nullptr, ReadError::CannotOpen};
    return open(bytes, surroundings);
}

Result openText(const QString &text)
{
    Result result;
    result.error = errorOf([&] { result.source = std::make_unique<TextLists>(text); });
    return result;
}

Table read(const ListSource &source, const ReadChoices &choices)
{
    Table result;
    result.error = errorOf([&] { result.table = source.table(choices); });
    return result;
}

QString message(ReadError error)
{
    return resText(FirstMessage + int(error));
}

} // namespace ListReader
