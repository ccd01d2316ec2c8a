#include "exchange/rules/archive/Unpacked.h"

#include <zlib.h>
#include <zstd.h>

namespace {

class GzipReader
{
public:
    explicit GzipReader(const QByteArray &bytes)
    {
        m_state.next_in = reinterpret_cast<Bytef *>(const_cast<char *>(bytes.constData()));
        m_state.avail_in = uInt(bytes.size());
        static constexpr int GzipOnly = 16 + MAX_WBITS;
        inflateInit2(&m_state, GzipOnly);
    }
    ~GzipReader() { inflateEnd(&m_state); }
    Q_DISABLE_COPY_MOVE(GzipReader)

    qint64 read(char *out, qint64 most)
    {
        if (m_ended)
            return 0;
        m_state.next_out = reinterpret_cast<Bytef *>(out);
        m_state.avail_out = uInt(most);
        const int result = inflate(&m_state, Z_NO_FLUSH);
        m_ended = result == Z_STREAM_END;
        const qint64 size = most - qint64(m_state.avail_out);
        return m_ended || (result == Z_OK && size > 0) ? size : -1;
    }

private:
    z_stream m_state = {};
    bool m_ended = false;
};

class ZstdReader
{
public:
    explicit ZstdReader(std::shared_ptr<PackedStream> packed)
        : m_packed(std::move(packed))
        , m_state(ZSTD_createDStream())
    {
        static constexpr int LargestWindow = 26; // 64 MB; those who pack for exchange stay far below
        ZSTD_DCtx_setParameter(m_state, ZSTD_d_windowLogMax, LargestWindow);
    }
    ~ZstdReader() { ZSTD_freeDStream(m_state); }
    Q_DISABLE_COPY_MOVE(ZstdReader)

    qint64 read(char *out, qint64 most)
    {
        ZSTD_outBuffer unpacked{out, size_t(most), 0};
        while (unpacked.pos == 0) {
            if (m_next.pos == m_next.size && !refill())
                return m_inFrame ? -1 : 0;
            const size_t result = ZSTD_decompressStream(m_state, &unpacked, &m_next);
            if (ZSTD_isError(result))
                return -1;
            m_inFrame = result != 0;
        }
        return qint64(unpacked.pos);
    }

private:
    bool refill()
    {
        static constexpr qint64 PartSize = qint64(128) * 1024;
        m_part = m_packed->read(PartSize);
        m_next = {m_part.constData(), size_t(m_part.size()), 0};
        return !m_part.isEmpty();
    }

    std::shared_ptr<PackedStream> m_packed;
    ZSTD_DStream *m_state;
    QByteArray m_part;
    ZSTD_inBuffer m_next = {};
    bool m_inFrame = false;
};

template <typename Reader> PackedStream::Source sourceOf(std::shared_ptr<Reader> reader)
{
    return [reader](char *out, qint64 most) { return reader->read(out, most); };
}

} // namespace

std::unique_ptr<PackedStream> Unpacked::gzip(const QByteArray &bytes, Limits &limits)
{
    return std::make_unique<PackedStream>(sourceOf(std::make_shared<GzipReader>(bytes)), limits);
}

std::unique_ptr<PackedStream> Unpacked::zstd(std::shared_ptr<PackedStream> packed, Limits &limits)
{
    return std::make_unique<PackedStream>(sourceOf(std::make_shared<ZstdReader>(std::move(packed))), limits);
}
