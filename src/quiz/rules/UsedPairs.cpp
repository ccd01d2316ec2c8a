#include "quiz/rules/UsedPairs.h"

UsedPairs::UsedPairs(int words)
    : m_takenBy(size_t(words) * 2, 0)
{
}

bool UsedPairs::fUnique(qint32 k, qint16 d, qint16 w)
{
    qint16 &takenBy = m_takenBy[size_t(w - 1) * 2 + size_t(d - 1)];
    if (takenBy != 0)
        return false;
    takenBy = qint16(k);
    return true;
}
