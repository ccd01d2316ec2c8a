#include "support/SampleVocabulary.h"

#include <random>

namespace {

class Words
{
public:
    QString western() { return word(u'a', 26, m_random() % 4 == 0 ? QChar(0xE9) : QChar()); }
    QString cyrillic() { return word(u'\u0430', 32, QChar()); }

private:
    QString word(char16_t firstLetter, int letters, QChar accented)
    {
        QString text(2 + int((m_random() & 7) + (m_random() & 7) + (m_random() & 1)), Qt::Uninitialized);
        for (QChar &c : text)
            c = QChar(firstLetter + int(m_random() % letters));
        if (!accented.isNull())
            text[text.size() / 2] = accented;
        return text;
    }

    std::minstd_rand m_random{20240229};
};

} // namespace

namespace SampleVocabulary {

Vocabulary make(qsizetype pairs, Letters letters)
{
    Words words;
    Vocabulary vocabulary;
    vocabulary.font = VocabularyFont();
    vocabulary.columnWidths = {340, 4000, 4000};
    vocabulary.append(QStringLiteral("English"), QStringLiteral("Other"));
    for (qsizetype i = 0; i < pairs; ++i) {
        // no row is as high as the one before it
        const int height = Vocabulary::DefaultRowHeight + int(i % 1000);
        vocabulary.append(words.western(), letters == Letters::Western ? words.western() : words.cyrillic(), height);
    }
    return vocabulary;
}

void atAllSizes(benchmark::internal::Benchmark *bench)
{
    for (const int pairs : {1000, 32767, 100000, 1000000})
        bench->Arg(pairs);
    bench->Unit(benchmark::kMillisecond);
}

} // namespace SampleVocabulary
