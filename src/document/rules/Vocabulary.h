#pragma once

#include <QFont>

#include <array>
#include <optional>
#include <vector>

/// The grid's one font and text colour as a vocabulary file keeps them.
struct VocabularyFont
{
    static constexpr double SmallestSize = 1.0;
    static constexpr double LargestSize = 2048.0;

    QString name = QStringLiteral("Arial");
    double size = 10.0; ///< points
    bool bold = false;
    bool italic = false;
    int color = 0; ///< 0x00BBGGRR; with the top bit set a system colour

    QFont toFont() const;
    bool operator==(const VocabularyFont &) const = default;
};

/// A word list apart from any window: what a vocabulary file holds and a document's grid shows. Row 0 carries the names
/// of the two languages, the rows after it the word pairs; the grid's empty last row is not part of it.
struct Vocabulary
{
    static constexpr int DefaultRowHeight = 285;
    /// How many rows can be opened.
    static constexpr int MostRows = 5000000;

    /// Missing after reading a file of an older version, which holds only the rows: the document keeps its own.
    std::optional<VocabularyFont> font;
    /// Twips, 0 to Twips::LargestSize: the row numbers, language 1, language 2. Missing like the font.
    std::optional<std::array<int, 3>> columnWidths;

    /// One entry a row in each of the three; no text holds a line break.
    std::vector<QString> first;
    std::vector<QString> second;
    std::vector<int> heights; ///< twips, 0 to Twips::LargestSize

    qsizetype rows() const { return qsizetype(first.size()); }
    /// Makes room for as many rows.
    void reserve(qsizetype count)
    {
        first.reserve(size_t(count));
        second.reserve(size_t(count));
        heights.reserve(size_t(count));
    }
    void append(QString firstWord, QString secondWord, int height = DefaultRowHeight)
    {
        first.push_back(std::move(firstWord));
        second.push_back(std::move(secondWord));
        heights.push_back(height);
    }

    /// How many rows there are up to the last with a word; the names of the languages always count.
    qsizetype filledRows() const;
    /// How many of them a file holds: up to the last with a word in the first language.
    qsizetype storedRows() const;
    /// The rows after those that have words all the same, which a file cannot hold.
    std::vector<qsizetype> unstoredRows() const;

    /// Whether it has words that the other lacks, wherever they stand.
    bool hasWordsBeyond(const Vocabulary &other) const;

    bool operator==(const Vocabulary &) const = default;
};
