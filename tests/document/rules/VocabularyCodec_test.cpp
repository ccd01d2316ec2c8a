#include "document/rules/VocabularyCodec.h"

namespace {

Vocabulary twoPairs()
{
    Vocabulary vocabulary;
    vocabulary.font = VocabularyFont();
    vocabulary.columnWidths = {340, 4000, 4000};
    vocabulary.append(QStringLiteral("Language 1"), QStringLiteral("Language 2"));
    vocabulary.append(QStringLiteral("house"), QStringLiteral("Haus"));
    vocabulary.append(QStringLiteral("tree"), QStringLiteral("Baum"));
    return vocabulary;
}

QByteArray twoPairsBytes()
{
    return QByteArrayLiteral(
        "Glosaria\r\n3.1.0\r\n\r\n[Font Info]\r\n\"Arial\"\r\n10\r\n#FALSE#\r\n#FALSE#\r\n0\r\n\r\n"
        "[Grid Info]\r\n340\r\n4000\r\n4000\r\n2\r\n\r\n[Vocabulary]\r\n"
        "Language 1   [0000000285]\r\nLanguage 2\r\nhouse   [0000000285]\r\nHaus\r\n"
        "tree   [0000000285]\r\nBaum\r\n");
}

} // namespace

TEST(VocabularyCodec, FileIsExactToTheByte)
{
    const CodePage western;
    EXPECT_EQ(VocabularyCodec::encode(twoPairs(), western), twoPairsBytes());
    const VocabularyCodec::DecodeResult result = VocabularyCodec::decode(twoPairsBytes(), western);
    EXPECT_EQ(result.outcome, VocabularyCodec::Outcome::Ok);
    EXPECT_TRUE(result.vocabulary == twoPairs());
}
