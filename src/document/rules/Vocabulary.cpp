#include "document/rules/Vocabulary.h"

#include <algorithm>

namespace {

std::vector<QStringView> sortedWords(const std::vector<QString> &column)
{
    std::vector<QStringView> words;
    std::copy_if(column.begin(), column.end(), std::back_inserter(words),
                 [](QStringView word) { return !word.isEmpty(); });
    std::sort(words.begin(), words.end());
    return words;
}

bool includes(const std::vector<QString> &column, const std::vector<QString> &part)
{
    const std::vector<QStringView> all = sortedWords(column);
    const std::vector<QStringView> some = sortedWords(part);
    return std::includes(all.begin(), all.end(), some.begin(), some.end());
}

} // namespace

QFont VocabularyFont::toFont() const
{
    QFont font(name);
    font.setPointSizeF(size);
    font.setBold(bold);
    font.setItalic(italic);
    return font;
}

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

bool Vocabulary::hasWordsBeyond(const Vocabulary &other) const
{
    return !includes(other.first, first) || !includes(other.second, second);
}
