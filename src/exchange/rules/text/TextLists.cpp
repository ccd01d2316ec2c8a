#include "exchange/rules/text/TextLists.h"

#include "exchange/rules/cards/MarkupText.h"
#include "exchange/rules/text/DelimitedText.h"
#include "exchange/rules/text/TextEncoding.h"

namespace {

constexpr qsizetype SampleSize = qsizetype(256) * 1024;

/// Pictures, documents and programs are no texts in any character set.
bool isNoText(QByteArrayView bytes, const QByteArray &encoding)
{
    const QByteArrayView start = bytes.first(std::min<qsizetype>(bytes.size(), 4096));
    return bytes.startsWith("%PDF") || (!encoding.startsWith("UTF") && start.contains('\0'));
}

} // namespace

TextLists::TextLists(QByteArray bytes, const QByteArray &encoding)
    : m_bytes(std::move(bytes))
{
    m_proposal.encoding = TextEncoding::detect(m_bytes, encoding);
    if (isNoText(m_bytes, m_proposal.encoding))
        throw ReadFailure(ReadError::OtherKind);
    const QString sample =
        TextEncoding::decode(QByteArrayView(m_bytes).first(std::min(m_bytes.size(), SampleSize)), m_proposal.encoding);
    if (sample.trimmed().isEmpty() && m_bytes.size() <= SampleSize)
        throw ReadFailure(ReadError::Empty);
    const AnkiHeader header = AnkiHeader::read(sample);
    const QStringView words = QStringView(sample).mid(header.size);
    m_proposal.separator = header.separator.isEmpty() ? DelimitedText::separatorOf(words) : header.separator;
    m_markup = header.markup.value_or(MarkupText::isLikely(words));
}

TextLists::TextLists(const QString &text)
    : TextLists(text.toUtf8(), QByteArrayLiteral("UTF-8"))
{
    m_encoded = false;
}

TextTable TextLists::table(const ReadChoices &choices) const
{
    const QString text = TextEncoding::decode(m_bytes, m_encoded ? choices.encoding : m_proposal.encoding);
    const AnkiHeader header = AnkiHeader::read(text);
    TextTable table = DelimitedText::split(QStringView(text).mid(header.size), choices.separator);
    table.columnNames = header.columnNames;
    table.otherColumns = header.otherColumns;
    return table;
}
