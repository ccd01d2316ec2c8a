#include "document/rules/Vocabulary.h"

qsizetype Vocabulary::filledRows() const
{
    qsizetype count = rows();
    while (count > 1 && first[size_t(count - 1)].isEmpty() && second[size_t(count - 1)].isEmpty())
        --count;
    return count;
}

qsizetype Vocabulary::storedRows() const
{
    qsizetype count = rows();
    while (count > 1 && first[size_t(count - 1)].isEmpty())
        --count;
    return count;
}
