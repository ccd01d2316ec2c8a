#pragma once

#include "quiz/rules/WordSource.h"

/// A vocabulary made of a list of pairs, in the two languages "English" and "German". Like a document it ends in an
/// empty row.
struct ListWords : WordSource
{
    using Pairs = std::vector<std::pair<QString, QString>>;

    ListWords(std::initializer_list<Pairs::value_type> pairs)
        : ListWords(Pairs(pairs))
    {
    }

    explicit ListWords(Pairs pairs)
        : words(std::move(pairs))
    {
        words.insert(words.begin(), {"English", "German"});
        words.emplace_back();
    }

    /// The pairs ("e1", "g1") to ("e<count>", "g<count>").
    static ListWords numbered(int count)
    {
        Pairs pairs;
        for (int i = 1; i <= count; ++i)
            pairs.emplace_back(QStringLiteral("e%1").arg(i), QStringLiteral("g%1").arg(i));
        return ListWords(std::move(pairs));
    }

    int Rows() const override { return int(words.size()); }
    QString TextMatrix(int row, int col) const override
    {
        const auto &pair = words[size_t(row)];
        return col == 1 ? pair.first : pair.second;
    }

    Pairs words; ///< below the names of the languages
};
