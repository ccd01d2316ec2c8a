#pragma once

#include "exchange/rules/archive/Limits.h"

#include <QIODevice>

/// Bytes that are unpacked as they are read, within limits: nothing of them is kept. It ends early where the source is
/// damaged or goes beyond the limits: whoever has read to the end asks require().
class PackedStream : public QIODevice
{
public:
    /// Unpacks up to most bytes to out; 0 at the end, negative where the source is damaged.
    using Source = std::function<qint64(char *out, qint64 most)>;

    PackedStream(Source source, Limits &limits)
        : m_source(std::move(source))
        , m_limits(limits)
    {
        open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    }

    /// Throws ReadFailure when it has ended early.
    void require() const
    {
        if (m_error != ReadError::None)
            throw ReadFailure(m_error);
    }

    bool isSequential() const override { return true; }

protected:
    qint64 readData(char *out, qint64 most) override
    {
        const qint64 size = m_error == ReadError::None ? m_source(out, most) : 0;
        if (size < 0)
            m_error = ReadError::Damaged;
        else if (!m_limits.mayUnpack(size))
            m_error = ReadError::TooLarge;
        return size == 0 || m_error != ReadError::None ? -1 : size;
    }
    qint64 writeData(const char *, qint64) override { return -1; }

private:
    Source m_source;
    Limits &m_limits;
    ReadError m_error = ReadError::None;
};
