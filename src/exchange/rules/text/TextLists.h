#pragma once

#include "exchange/rules/ListSource.h"
#include "exchange/rules/text/AnkiHeader.h"

/// A text with a pair of words in each line, from a file or from the clipboard.
class TextLists : public ListSource
{
public:
    /// encoding: the character set where the bytes do not tell. Throws ReadFailure.
    TextLists(QByteArray bytes, const QByteArray &encoding);
    /// A text that has no character set.
    explicit TextLists(const QString &text);

    Kind kind() const override { return Kind::Text; }
    ReadChoices proposal() const override { return m_proposal; }
    bool isEncoded() const override { return m_encoded; }
    bool hasMarkup() const override { return m_markup; }
    TextTable table(const ReadChoices &choices) const override;

private:
    QByteArray m_bytes;
    ReadChoices m_proposal;
    bool m_encoded = true;
    bool m_markup = false;
};
