#include "document/rules/recovery/RecoveryCopy.h"

#include <QDataStream>
#include <QIODevice>

#include <new>

namespace {

constexpr quint32 Signature = 0x474C5231;
constexpr quint32 EndMark = 0x454E4431; ///< of the first cause; those of the others follow
constexpr quint32 LastCause = quint32(RecoveryCopy::Cause::NotInFile);

void write(QDataStream &stream, const VocabularyFont &font)
{
    stream << font.name << font.size << font.bold << font.italic << qint32(font.color);
}

void read(QDataStream &stream, VocabularyFont &font)
{
    stream >> font.name >> font.size >> font.bold >> font.italic >> font.color;
}

void write(QDataStream &stream, const Vocabulary &vocabulary)
{
    write(stream, vocabulary.font.value_or(VocabularyFont()));
    for (const int width : vocabulary.columnWidths.value_or(std::array<int, 3>()))
        stream << qint32(width);
    stream << quint32(vocabulary.first.size());
    for (size_t row = 0; row < vocabulary.first.size(); ++row)
        stream << vocabulary.first[row] << vocabulary.second[row] << qint32(vocabulary.heights[row]);
}

/// A count from damaged bytes ends with the bytes: no room is made ahead for rows that may not be there.
void read(QDataStream &stream, Vocabulary &vocabulary)
{
    vocabulary.font.emplace();
    read(stream, *vocabulary.font);
    vocabulary.columnWidths.emplace();
    for (int &width : *vocabulary.columnWidths)
        stream >> width;
    quint32 rows = 0;
    stream >> rows;
    if (rows > Vocabulary::MostRows)
        stream.setStatus(QDataStream::ReadCorruptData);
    for (quint32 row = 0; row < rows && stream.status() == QDataStream::Ok; ++row) {
        QString first, second;
        qint32 height = 0;
        stream >> first >> second >> height;
        vocabulary.append(std::move(first), std::move(second), height);
    }
}

bool isUsable(const Vocabulary &vocabulary)
{
    const double size = vocabulary.font->size;
    return size >= VocabularyFont::SmallestSize && size <= VocabularyFont::LargestSize && !vocabulary.first.empty();
}

/// What follows the signature.
std::optional<RecoveryCopy> readRest(QDataStream &stream)
{
    RecoveryCopy copy;
    quint32 end = 0;
    stream >> copy.caption >> copy.docName >> copy.fileStamp.size >> copy.fileStamp.changed >> copy.time;
    read(stream, copy.vocabulary);
    stream >> end;
    const quint32 cause = end - EndMark;
    if (stream.status() != QDataStream::Ok || cause > LastCause || !stream.atEnd() || !isUsable(copy.vocabulary))
        return {};
    copy.cause = RecoveryCopy::Cause(cause);
    return copy;
}

} // namespace

bool RecoveryCopy::isFileChanged() const
{
    const FileStamp now = FileStamp::of(docName);
    return now.exists() && now != fileStamp;
}

QByteArray RecoveryCopy::toBytes() const
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(QDataStream::Qt_6_0);
    stream << Signature << caption << docName << fileStamp.size << fileStamp.changed << time;
    write(stream, vocabulary);
    stream << EndMark + quint32(cause);
    return bytes;
}

std::optional<RecoveryCopy> RecoveryCopy::read(QIODevice &device)
{
    QDataStream stream(&device);
    stream.setVersion(QDataStream::Qt_6_0);
    quint32 signature = 0;
    stream >> signature;
    if (signature != Signature || device.size() > LargestSize)
        return {};
    try {
        return readRest(stream);
    } catch (const std::bad_alloc &) {
        return {}; // what memory cannot hold was not written by a program that had it in memory
    }
}
