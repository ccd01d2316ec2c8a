#include "exchange/rules/VocabularyLists.h"

#include "document/rules/file/VocabularyCodec.h"

using VocabularyCodec::Outcome;

VocabularyLists::VocabularyLists(const QByteArray &bytes, const QByteArray &codePage)
{
    VocabularyCodec::DecodeResult result = VocabularyCodec::decode(bytes, CodePage(codePage));
    if (result.outcome == Outcome::NewerVersion)
        throw ReadFailure(ReadError::NewerKind);
    if (result.outcome != Outcome::Ok)
        throw ReadFailure(ReadError::Damaged);
    if (result.vocabulary.rows() == 0)
        throw ReadFailure(ReadError::Empty);
    m_vocabulary = std::move(result.vocabulary);
}

bool VocabularyLists::isOne(const QByteArray &bytes)
{
    return VocabularyCodec::readHeader(bytes).outcome != Outcome::BadFormat;
}

TextTable VocabularyLists::table(const ReadChoices &) const
{
    TextTable table;
    table.columnNames = {m_vocabulary.first.front(), m_vocabulary.second.front()};
    for (size_t row = 1; row < m_vocabulary.first.size(); ++row) {
        table.addCell(m_vocabulary.first[row]);
        table.addCell(m_vocabulary.second[row]);
        table.endRow();
    }
    return table;
}
