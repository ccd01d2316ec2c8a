// Any bytes as a vocabulary file: whatever can be read must come back the same after it has been saved.

#include "Require.h"

#include "document/rules/file/VocabularyCodec.h"

#include <cstdint>

namespace {

using VocabularyCodec::Outcome;

/// Rows that the format keeps: those up to the last with a word in the first language, and at least the header.
void dropUnsavedRows(Vocabulary &vocabulary)
{
    while (vocabulary.rows() > 1 && vocabulary.first.back().isEmpty()) {
        vocabulary.first.pop_back();
        vocabulary.second.pop_back();
        vocabulary.heights.pop_back();
    }
}

/// The format cannot hold a word of the first language that looks like a height marker.
bool hasMarkerInWord(const Vocabulary &vocabulary)
{
    return std::any_of(vocabulary.first.begin(), vocabulary.first.end(),
                       [](const QString &word) { return word.contains(QStringLiteral("   [")); });
}

void checkRoundTrip(QByteArrayView bytes, const CodePage &codePage)
{
    VocabularyCodec::DecodeResult read = VocabularyCodec::decode(bytes, codePage);
    if (read.outcome != Outcome::Ok) {
        require(read.vocabulary == Vocabulary(), "a failed load gives no rows");
        return;
    }
    const QByteArray saved = VocabularyCodec::encode(read.vocabulary, codePage);
    if (hasMarkerInWord(read.vocabulary))
        return;
    const VocabularyCodec::DecodeResult again = VocabularyCodec::decode(saved, codePage);
    require(again.outcome == Outcome::Ok && !again.olderVersion, "what was saved can be read");
    dropUnsavedRows(read.vocabulary);
    require(again.vocabulary.first == read.vocabulary.first, "words of language 1 are kept");
    require(again.vocabulary.second == read.vocabulary.second, "words of language 2 are kept");
    require(again.vocabulary.heights == read.vocabulary.heights, "heights are kept");
    if (read.vocabulary.font && read.vocabulary.columnWidths)
        require(again.vocabulary.columnWidths == read.vocabulary.columnWidths, "widths are kept");
    require(VocabularyCodec::encode(again.vocabulary, codePage) == saved, "saving twice gives the same bytes");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const CodePage codePages[] = {CodePage("windows-1252"), CodePage("windows-1255"), CodePage("windows-932")};
    for (const CodePage &codePage : codePages)
        checkRoundTrip(QByteArrayView(data, qsizetype(size)), codePage);
    return 0;
}
