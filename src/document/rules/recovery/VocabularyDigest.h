#pragma once

#include <QByteArray>

struct Vocabulary;

/// Tells whether two word lists have the same content without keeping both.
struct VocabularyDigest
{
    QByteArray words;
    QByteArray layout; ///< font, colour and sizes

    /// Of the first so many rows.
    static VocabularyDigest of(const Vocabulary &vocabulary, qsizetype rows);

    bool operator==(const VocabularyDigest &) const = default;
};
