#pragma once

#include "document/rules/Vocabulary.h"
#include "exchange/rules/ListSource.h"

/// A vocabulary of the program's own kind as a list like any other.
class VocabularyLists : public ListSource
{
public:
    /// codePage: of files that do not say theirs. Throws ReadFailure.
    VocabularyLists(const QByteArray &bytes, const QByteArray &codePage);

    /// Whether the file begins like one.
    static bool isOne(const QByteArray &bytes);

    Kind kind() const override { return Kind::Vocabulary; }
    TextTable table(const ReadChoices &choices) const override;

private:
    Vocabulary m_vocabulary;
};
