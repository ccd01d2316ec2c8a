#include "document/rules/file/ProgressTicks.h"
#include "document/rules/file/Utf8Text.h"
#include "document/rules/file/VocabularyCodec.h"
#include "platform/Twips.h"
#include "services/rules/CellText.h"

#include <cstring>

namespace {

using VocabularyCodec::Progress;

constexpr QByteArrayView LineEnd("\r\n");
constexpr qsizetype MarkerSize = 15;
constexpr int SizeDecimals = 4;

bool isAscii(QByteArrayView bytes)
{
    return std::all_of(bytes.begin(), bytes.end(), [](char byte) { return uchar(byte) < 0x80; });
}

/// At most four decimals, none that say nothing.
QByteArray decimalNumber(double number)
{
    QByteArray text = QByteArray::number(number, 'f', SizeDecimals);
    while (text.endsWith('0'))
        text.chop(1);
    if (text.endsWith('.'))
        text.chop(1);
    return text;
}

/// The file being made, in the one or the other character set. Fails for good at the first letter that has no place.
class Output
{
public:
    /// codePage: null for UTF-8.
    Output(const CodePage *codePage, qsizetype expectedSize)
        : m_codePage(codePage)
    {
        m_bytes.resize(expectedSize);
    }

    void put(QByteArrayView ascii)
    {
        std::memcpy(room(ascii.size()), ascii.data(), size_t(ascii.size()));
        m_used += ascii.size();
    }

    void putLine(QByteArrayView ascii)
    {
        put(ascii);
        put(LineEnd);
    }

    void putText(const QString &text) { putLetters(CellText::cleaned(text)); }

    /// Ten digits in brackets, three blanks before.
    void putMarker(int height)
    {
        char *out = room(MarkerSize);
        std::memcpy(out, "   [0000000000]", MarkerSize);
        for (int at = 13; height > 0; height /= 10)
            out[at--] = char('0' + height % 10);
        m_used += MarkerSize;
    }

    bool failed() const { return m_failed; }

    QByteArray take()
    {
        m_bytes.truncate(m_used);
        return std::move(m_bytes);
    }

private:
    char *room(qsizetype size)
    {
        if (m_bytes.size() - m_used < size)
            m_bytes.resize(m_used + size + m_used / 2);
        return m_bytes.data() + m_used;
    }

    void putLetters(QStringView text)
    {
        char *out = room(Utf8Text::BytesPerChar * text.size());
        const char *end = m_codePage ? m_codePage->encodeTo(text, out) : Utf8Text::encodeTo(text, out);
        m_failed |= !end;
        m_used += end ? end - out : 0;
    }

    const CodePage *m_codePage;
    QByteArray m_bytes;
    qsizetype m_used = 0;
    bool m_failed = false;
};

class Encoder
{
public:
    Encoder(const Vocabulary &vocabulary, const Progress &progress)
        : m_vocabulary(vocabulary)
        , m_ticks(progress, vocabulary.rows())
        , m_rows(vocabulary.storedRows())
    {
        m_expectedSize = 512;
        for (qsizetype row = 0; row < m_rows; ++row)
            m_expectedSize += vocabulary.first[size_t(row)].size() + vocabulary.second[size_t(row)].size() + 19;
    }

    /// codePage: null for UTF-8. No value when it lacks a letter.
    std::optional<QByteArray> run(const CodePage *codePage)
    {
        Output output(codePage, m_expectedSize);
        putSections(output, !codePage);
        for (qsizetype row = 0; row < m_rows && !output.failed(); ++row) {
            putRow(output, size_t(row));
            m_ticks.reach(row + 1);
        }
        return output.failed() ? std::nullopt : std::optional<QByteArray>(output.take());
    }

private:
    void putSections(Output &output, bool declareUtf8) const
    {
        output.putLine("Glosaria");
        output.putLine(GLOSARIA_VERSION);
        output.putLine("");
        putFont(output);
        output.putLine("");
        output.putLine("[Grid Info]");
        for (const int width : m_vocabulary.columnWidths.value_or(std::array<int, 3>{340, 4000, 4000}))
            output.putLine(QByteArray::number(std::clamp(width, 0, Twips::LargestSize)));
        output.putLine(QByteArray::number(std::max(m_rows - 1, qsizetype(0))));
        output.putLine("");
        if (declareUtf8) {
            output.putLine("[Encoding]");
            output.putLine("UTF-8");
            output.putLine("");
        }
        output.putLine("[Vocabulary]");
    }

    void putFont(Output &output) const
    {
        const VocabularyFont font = m_vocabulary.font.value_or(VocabularyFont());
        output.putLine("[Font Info]");
        output.put("\"");
        output.putText(font.name);
        output.putLine("\"");
        output.putLine(decimalNumber(std::clamp(font.size, VocabularyFont::SmallestSize, VocabularyFont::LargestSize)));
        output.putLine(font.bold ? "#TRUE#" : "#FALSE#");
        output.putLine(font.italic ? "#TRUE#" : "#FALSE#");
        output.putLine(QByteArray::number(font.color));
    }

    void putRow(Output &output, size_t row) const
    {
        output.putText(m_vocabulary.first[row]);
        output.putMarker(std::clamp(m_vocabulary.heights[row], 0, Twips::LargestSize));
        output.put(LineEnd);
        output.putText(m_vocabulary.second[row]);
        output.put(LineEnd);
    }

    const Vocabulary &m_vocabulary;
    ProgressTicks m_ticks;
    qsizetype m_rows;
    qsizetype m_expectedSize = 0;
};

} // namespace

namespace VocabularyCodec {

QByteArray encode(const Vocabulary &vocabulary, const CodePage &codePage, const Progress &progress)
{
    Encoder encoder(vocabulary, progress);
    std::optional<QByteArray> bytes = encoder.run(&codePage);
    if (bytes && (!bytes->isValidUtf8() || isAscii(*bytes)))
        return *std::move(bytes);
    bytes.reset();
    return encoder.run(nullptr).value_or(QByteArray());
}

} // namespace VocabularyCodec
