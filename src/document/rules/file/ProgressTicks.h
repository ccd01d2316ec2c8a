#pragma once

#include "document/rules/file/VocabularyCodec.h"

/// Passes on how far a long run has come, a hundred times at most and never backwards.
class ProgressTicks
{
public:
    ProgressTicks(const VocabularyCodec::Progress &progress, qint64 total)
        : m_progress(progress)
        , m_step(total / 100 + 1)
        , m_next(m_step)
    {
    }

    void reach(qint64 done)
    {
        if (done < m_next)
            return;
        m_next = done + m_step;
        if (m_progress)
            m_progress(done);
    }

private:
    const VocabularyCodec::Progress &m_progress;
    const qint64 m_step;
    qint64 m_next;
};
