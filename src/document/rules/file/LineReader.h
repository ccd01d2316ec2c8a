#pragma once

#include <QByteArrayView>

#include <cstring>

/// Splits a vocabulary file into its lines. A line ends at a carriage return, and a line feed right after it is
/// skipped; a line feed elsewhere belongs to the line. The last line needs no end.
class LineReader
{
public:
    explicit LineReader(QByteArrayView bytes)
        : m_next(bytes.data())
        , m_end(bytes.data() + bytes.size())
    {
    }

    bool atEnd() const { return m_next == m_end; }

    /// Only before the end; without the line's end.
    QByteArrayView next()
    {
        const char *const start = m_next;
        const auto *stop = static_cast<const char *>(std::memchr(start, '\r', size_t(m_end - start)));
        if (!stop) {
            m_next = m_end;
            return QByteArrayView(start, m_end);
        }
        m_next = stop + 1;
        if (m_next != m_end && *m_next == '\n')
            ++m_next;
        return QByteArrayView(start, stop);
    }

    /// What has not been read yet.
    QByteArrayView rest() const { return QByteArrayView(m_next, m_end); }

private:
    const char *m_next;
    const char *m_end;
};
