#include "document/rules/file/LineReader.h"
#include "document/rules/file/ProgressTicks.h"
#include "document/rules/file/Utf8Text.h"
#include "document/rules/file/VocabularyCodec.h"
#include "platform/Twips.h"
#include "services/rules/CellText.h"

namespace {

using VocabularyCodec::DecodeResult;
using VocabularyCodec::Header;
using VocabularyCodec::Outcome;
using VocabularyCodec::Progress;

constexpr int FormatVersion = GLOSARIA_VERSION[0] - '0';
constexpr QByteArrayView MarkerStart("   [");
constexpr qsizetype MarkerDigits = 10;

/// How the letters of a file are to be read; found out before the first of them.
class LetterReader
{
public:
    LetterReader(QByteArrayView bytes, bool declaredUtf8, const CodePage &codePage)
        : m_codePage(codePage)
        , m_utf8(bytes.isValidUtf8())
        , m_mended(declaredUtf8 && !m_utf8)
    {
    }

    QString read(QByteArrayView line) const
    {
        if (line.isEmpty())
            return QString();
        if (m_utf8)
            return Utf8Text::decodeProper(line);
        return m_mended ? mended(line) : m_codePage.decode(line);
    }

private:
    QString mended(QByteArrayView line) const
    {
        std::optional<QString> text = Utf8Text::decode(line);
        return text ? *std::move(text) : m_codePage.decode(line);
    }

    const CodePage &m_codePage;
    const bool m_utf8;
    const bool m_mended; ///< UTF-8 in all lines but some
};

enum class DeclaredEncoding { None, Utf8, Unknown };

/// Older files have no sections, and any line in them may be a word.
DeclaredEncoding declaredEncoding(LineReader lines, bool olderVersion)
{
    if (olderVersion)
        return DeclaredEncoding::None;
    while (!lines.atEnd()) {
        const QByteArrayView line = lines.next();
        if (line == "[Vocabulary]")
            break;
        if (line == "[Encoding]") {
            const bool utf8 = !lines.atEnd() && lines.next().compare("UTF-8", Qt::CaseInsensitive) == 0;
            return utf8 ? DeclaredEncoding::Utf8 : DeclaredEncoding::Unknown;
        }
    }
    return DeclaredEncoding::None;
}

std::optional<int> rowHeight(QByteArrayView digits)
{
    if (digits.size() != MarkerDigits)
        return std::nullopt;
    qint64 height = 0;
    for (const char digit : digits) {
        if (digit < '0' || digit > '9')
            return std::nullopt;
        height = height * 10 + (digit - '0');
    }
    return height <= Twips::LargestSize ? std::optional<int>(int(height)) : std::nullopt;
}

class Decoder
{
public:
    Decoder(QByteArrayView bytes, bool olderVersion, const CodePage &codePage, const Progress &progress)
        : m_lines(bytes)
        , m_olderVersion(olderVersion)
        , m_declared(declaredEncoding(m_lines, olderVersion))
        , m_letters(bytes, m_declared == DeclaredEncoding::Utf8, codePage)
        , m_ticks(progress, bytes.size())
    {
    }

    Outcome run(Vocabulary &vocabulary)
    {
        if (m_declared == DeclaredEncoding::Unknown)
            return Outcome::Failed;
        m_lines.next();
        m_lines.next();
        if (!m_olderVersion && !readSections(vocabulary))
            return Outcome::Failed;
        const QByteArrayView rest = m_lines.rest();
        const qsizetype rows = std::count(rest.begin(), rest.end(), '\r') / 2 + 1;
        if (rows > Vocabulary::MostRows)
            return Outcome::TooManyRows;
        return readRows(vocabulary, size_t(rows)) ? Outcome::Ok : Outcome::Failed;
    }

private:
    bool skipTo(QByteArrayView wanted)
    {
        while (!m_lines.atEnd()) {
            if (m_lines.next() == wanted)
                return true;
        }
        return false;
    }

    bool readSections(Vocabulary &vocabulary)
    {
        if (!skipTo("[Font Info]") || !readFont(vocabulary.font.emplace()))
            return false;
        while (!m_lines.atEnd()) {
            const QByteArrayView line = m_lines.next();
            if (line == "[Vocabulary]")
                return true;
            if (line == "[Grid Info]" && !readWidths(vocabulary.columnWidths.emplace()))
                return false;
        }
        return false;
    }

    bool readFont(VocabularyFont &font)
    {
        return readQuoted(font.name) && readSize(font.size) && readFlag(font.bold) && readFlag(font.italic) &&
               readInteger(font.color);
    }

    bool readWidths(std::array<int, 3> &widths)
    {
        return std::all_of(widths.begin(), widths.end(), [this](int &width) {
            return readInteger(width) && width >= 0 && width <= Twips::LargestSize;
        });
    }

    bool nextValue(QByteArrayView &value)
    {
        if (m_lines.atEnd())
            return false;
        value = m_lines.next().trimmed();
        return true;
    }

    bool readQuoted(QString &text)
    {
        QByteArrayView value;
        if (!nextValue(value))
            return false;
        if (value.size() >= 2 && value.startsWith('"') && value.endsWith('"'))
            value = value.sliced(1, value.size() - 2);
        text = read(value);
        return true;
    }

    bool readSize(double &size)
    {
        QByteArrayView value;
        bool isNumber = false;
        if (nextValue(value))
            size = value.toDouble(&isNumber);
        return isNumber && size >= VocabularyFont::SmallestSize && size <= VocabularyFont::LargestSize;
    }

    bool readFlag(bool &flag)
    {
        QByteArrayView value;
        if (!nextValue(value))
            return false;
        flag = value == "#TRUE#";
        return flag || value == "#FALSE#";
    }

    bool readInteger(int &number)
    {
        QByteArrayView value;
        bool isNumber = false;
        if (nextValue(value))
            number = value.toInt(&isNumber);
        return isNumber;
    }

    bool readRows(Vocabulary &vocabulary, size_t expected)
    {
        vocabulary.reserve(expected);
        while (!m_lines.atEnd()) {
            if (!readRow(vocabulary))
                return false;
        }
        return true;
    }

    bool readRow(Vocabulary &vocabulary)
    {
        const QByteArrayView firstLine = m_lines.next();
        std::optional<QByteArrayView> word = withoutMarker(firstLine);
        if (!word || m_lines.atEnd())
            return false;
        const QByteArrayView secondLine = m_lines.next();
        vocabulary.append(read(*word), read(secondLine), m_height);
        m_done += firstLine.size() + secondLine.size();
        m_ticks.reach(m_done);
        return true;
    }

    /// The line up to where a height marker begins for the first time, which sets the height of this row and those
    /// after it. A word that holds the beginning of a marker was saved with a whole one behind it, which tells the
    /// height then. No value when there is none. A blank can never be the second byte of a letter, so the marker is
    /// looked for in the bytes.
    std::optional<QByteArrayView> withoutMarker(QByteArrayView line)
    {
        const qsizetype start = line.endsWith(']') ? line.indexOf(MarkerStart) : -1;
        if (start >= 0 && endsInBracket(line)) {
            std::optional<int> height = heightAt(line, start);
            if (!height)
                height = heightAt(line, line.size() - MarkerStart.size() - MarkerDigits - 1);
            if (!height)
                return std::nullopt;
            m_height = *height;
            line = line.first(start);
        }
        if (m_height == 0)
            m_height = Vocabulary::DefaultRowHeight;
        return line;
    }

    /// The height in the marker that begins at a byte of the line; no value when none does.
    static std::optional<int> heightAt(QByteArrayView line, qsizetype start)
    {
        if (start < 0 || !line.sliced(start).startsWith(MarkerStart))
            return std::nullopt;
        const QByteArrayView digits = line.sliced(start + MarkerStart.size());
        return rowHeight(digits.first(std::min(MarkerDigits, digits.size())));
    }

    /// A last byte "]" may be the second half of an East Asian letter.
    bool endsInBracket(QByteArrayView line) const
    {
        return line.size() < 2 || uchar(line[line.size() - 2]) < 0x80 || m_letters.read(line).endsWith(u']');
    }

    QString read(QByteArrayView line) const { return CellText::cleaned(m_letters.read(line)); }

    LineReader m_lines;
    const bool m_olderVersion;
    const DeclaredEncoding m_declared;
    const LetterReader m_letters;
    ProgressTicks m_ticks;
    int m_height = 0;
    qint64 m_done = 0;
};

} // namespace

namespace VocabularyCodec {

Header readHeader(QByteArrayView bytes)
{
    LineReader lines(bytes);
    if (lines.atEnd() || lines.next() != "Glosaria")
        return {Outcome::BadFormat};
    const char version = lines.rest().isEmpty() ? '\0' : lines.rest().front();
    if (version < '0' || version > '9')
        return {Outcome::Failed};
    return {version - '0' > FormatVersion ? Outcome::NewerVersion : Outcome::Ok, version - '0' < FormatVersion};
}

DecodeResult decode(QByteArrayView bytes, const CodePage &codePage, const Progress &progress)
{
    const Header header = readHeader(bytes);
    DecodeResult result{header.outcome, header.olderVersion, {}};
    if (header.outcome == Outcome::Ok)
        result.outcome = Decoder(bytes, header.olderVersion, codePage, progress).run(result.vocabulary);
    if (result.outcome != Outcome::Ok)
        result.vocabulary = Vocabulary();
    return result;
}

} // namespace VocabularyCodec
