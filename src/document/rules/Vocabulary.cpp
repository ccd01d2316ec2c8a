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

std::vector<qsizetype> Vocabulary::unstoredRows() const
{
    std::vector<qsizetype> found;
    for (qsizetype row = storedRows(); row < rows(); ++row) {
        if (!second[size_t(row)].isEmpty())
            found.push_back(row);
    }
    return found;
}
