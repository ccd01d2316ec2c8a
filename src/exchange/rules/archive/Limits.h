#pragma once

#include "exchange/rules/ListSource.h"

/// What reading a file of some size may take: a small file that unpacks to gigabytes has been made to do harm.
class Limits
{
public:
    explicit Limits(qsizetype fileSize)
        : m_unpacked(32 * MB + 20 * fileSize)
        , m_kept(64 * MB + 5 * fileSize)
    {
    }

    /// To be told of every part that was unpacked. False: it was too much.
    bool mayUnpack(qsizetype bytes)
    {
        m_unpacked -= bytes;
        return m_unpacked >= 0;
    }
    /// To be told what is kept of it by now. Throws ReadFailure when that is too much.
    void keep(qsizetype bytes) const
    {
        if (bytes > m_kept)
            throw ReadFailure(ReadError::TooLarge);
    }

private:
    static constexpr qsizetype MB = qsizetype(1024) * 1024;

    qsizetype m_unpacked;
    qsizetype m_kept;
};
