#pragma once

#include "exchange/rules/ListSource.h"

class ZipPackage;

/// The notes of a package of cards, by decks: old and new collections. The fields of a note are its columns.
class CardPackage : public ListSource
{
public:
    struct Deck
    {
        QString name;
        TextTable table;
    };

    /// The collection within a zip archive. Throws ReadFailure.
    static std::unique_ptr<CardPackage> open(const QByteArray &bytes, const ZipPackage &package);
    /// Whether an archive holds one.
    static bool isIn(const ZipPackage &package);

    /// decks: the first holds all notes.
    explicit CardPackage(std::vector<Deck> decks)
        : m_decks(std::move(decks))
    {
    }

    Kind kind() const override { return Kind::Package; }
    QStringList lists() const override;
    bool hasMarkup() const override { return true; }
    TextTable table(const ReadChoices &choices) const override { return m_decks.at(size_t(choices.list)).table; }

private:
    std::vector<Deck> m_decks;
};
