// Any bytes as a text with pairs of words: it ends in pairs or in a reason, no cell holds what cells may not, and what
// is written of it comes back.

#include "Require.h"

#include "exchange/rules/ListWriter.h"
#include "exchange/rules/Pairs.h"
#include "exchange/rules/text/DelimitedText.h"
#include "exchange/rules/text/TextLists.h"

#include <cstdint>

namespace {

void checkPairs(const TextTable &table, bool markup)
{
    const PairChoice choice = Pairs::proposal(table, markup);
    const Pairs::Count count = Pairs::count(table, choice);
    const Vocabulary words = Pairs::take(table, choice);
    require(words.rows() == count.rows + 1, "as many rows arrive as were told");
    for (const std::vector<QString> *column : {&words.first, &words.second}) {
        for (const QString &word : *column)
            require(!word.contains(u'\n') && !word.contains(u'\t') && !word.contains(QChar()), "words are lines");
    }
    // Rows that held nothing but markup are left out the second time, and rows without words at the end.
    if (markup || ListWriter::losesLetters(words) || words.filledRows() != words.rows())
        return;
    const QString csv = QString::fromUtf8(ListWriter::write(words, ListWriter::Format::Csv, {}));
    const TextTable again = DelimitedText::split(csv, QStringLiteral(","));
    const bool names = !words.first.front().isEmpty() || !words.second.front().isEmpty();
    require(again.rows() == words.rows() - (names ? 0 : 1), "every row comes back");
    for (qsizetype row = 0; row < again.rows(); ++row) {
        const size_t at = size_t(row + (names ? 0 : 1));
        require(again.cell(row, 1) == words.second[at], "every word comes back");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    try {
        const TextLists source(bytes, "windows-1252");
        ReadChoices choices = source.proposal();
        checkPairs(source.table(choices), source.hasMarkup());
        checkPairs(source.table(choices), true);
        for (const QString &separator : {QStringLiteral(","), DelimitedText::Dash, DelimitedText::Equals, QString()}) {
            choices.separator = separator;
            checkPairs(source.table(choices), false);
        }
    } catch (const ReadFailure &failure) {
        require(failure.error() != ReadError::None, "a failure has a reason");
    }
    return 0;
}
