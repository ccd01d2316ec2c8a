// Changes what is packed in an archive instead of the packed bytes, whose checksums would give every change away.

#include "Archive.h"

#include <cstdint>
#include <cstring>
#include <random>
#include <zstd.h>

extern "C" size_t LLVMFuzzerMutate(uint8_t *data, size_t size, size_t maxSize);

namespace {

constexpr qsizetype LargestPart = qsizetype(64) * 1024;

QByteArray changed(QByteArray bytes)
{
    const qsizetype size = bytes.size();
    const qsizetype room = size + 64;
    bytes.resize(room);
    bytes.resize(qsizetype(LLVMFuzzerMutate(reinterpret_cast<uint8_t *>(bytes.data()), size_t(size), size_t(room))));
    return bytes;
}

/// Of a part that is packed once more within its archive. Null: it is not.
QByteArray unpacked(const QByteArray &frame)
{
    QByteArray bytes(LargestPart, Qt::Uninitialized);
    const size_t size = ZSTD_decompress(bytes.data(), size_t(bytes.size()), frame.constData(), size_t(frame.size()));
    return ZSTD_isError(size) ? QByteArray() : bytes.left(qsizetype(size));
}

QByteArray packed(const QByteArray &bytes)
{
    QByteArray frame(qsizetype(ZSTD_compressBound(size_t(bytes.size()))), Qt::Uninitialized);
    frame.resize(
        qsizetype(ZSTD_compress(frame.data(), size_t(frame.size()), bytes.constData(), size_t(bytes.size()), 1)));
    return frame;
}

} // namespace

extern "C" size_t LLVMFuzzerCustomMutator(uint8_t *data, size_t size, size_t maxSize, unsigned int seed)
{
    std::minstd_rand random(seed);
    const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    std::vector<ArchivePart> parts = random() % 8 == 0 ? std::vector<ArchivePart>() : partsOf(bytes, LargestPart);
    if (parts.empty())
        return LLVMFuzzerMutate(data, size, maxSize);
    QByteArray &part = parts[random() % parts.size()].bytes;
    const QByteArray inner = part.startsWith("\x28\xB5\x2F\xFD") ? unpacked(part) : QByteArray();
    part = inner.isNull() ? changed(part) : packed(changed(inner));
    const QByteArray archive = archiveOf(parts, true);
    if (size_t(archive.size()) > maxSize)
        return LLVMFuzzerMutate(data, size, maxSize);
    std::memcpy(data, archive.constData(), size_t(archive.size()));
    return size_t(archive.size());
}
