#include "document/rules/file/CodePage.h"

#include <QStringDecoder>
#include <QStringEncoder>

namespace {

constexpr int AsciiEnd = 0x80;
constexpr int ControlsEnd = 0xA0;
constexpr char16_t KeptBytes = 0xF800;

char16_t keptByte(int byte)
{
    return byte < ControlsEnd ? char16_t(byte) : char16_t(KeptBytes + byte);
}

/// Converters give private code points or the replacement character where the character set defines nothing.
bool isLetter(char16_t c)
{
    return c >= ControlsEnd && c != QChar::ReplacementCharacter && (c < 0xE000 || c >= 0xF900);
}

} // namespace

CodePage::CodePage(const QByteArray &name)
    : m_name(name)
    , m_codes(0x10000)
{
    for (int byte = 0; byte < 256; ++byte) {
        m_single[byte] = char16_t(byte);
        m_defined[byte] = true;
    }
    if (QStringDecoder(m_name.constData()).isValid()) {
        readSingleBytes();
        readPairs();
    } else {
        m_name = QByteArrayLiteral("iso-8859-1");
    }
    assignCodes();
}

void CodePage::readSingleBytes()
{
    // Each byte stands on a line of its own, so that a wrong one cannot disturb the next.
    QByteArray bytes;
    for (int byte = AsciiEnd; byte < 256; ++byte)
        bytes.append(char(byte)).append('\n');
    const QStringList lines = QString(QStringDecoder(m_name.constData())(bytes)).split(u'\n');
    for (int byte = AsciiEnd; byte < 256; ++byte) {
        const QString line = lines.value(byte - AsciiEnd);
        m_defined[byte] = line.size() == 1 && isLetter(line[0].unicode());
        m_single[byte] = m_defined[byte] ? line[0].unicode() : keptByte(byte);
    }
}

void CodePage::readPairs()
{
    // Each pair stands on a line of its own, too.
    QByteArray bytes;
    for (int lead = AsciiEnd; lead < 256; ++lead) {
        for (int trail = 0x30; trail < 256 && !isDefined(uchar(lead)); ++trail)
            bytes.append(char(lead)).append(char(trail)).append('\n');
    }
    const QString text = QStringDecoder(m_name.constData())(bytes);
    std::vector<char16_t> pairs(size_t(128) * 256);
    bool found = false;
    qsizetype start = 0;
    for (qsizetype at = 0; at < bytes.size(); at += 3) {
        const qsizetype end = text.indexOf(u'\n', start);
        const char16_t c = end == start + 1 ? text[start].unicode() : u'\0';
        if (c >= ControlsEnd && c != QChar::ReplacementCharacter) {
            pairs[(uchar(bytes[at]) - 0x80) * 256 + uchar(bytes[at + 1])] = c;
            found = true;
        }
        start = end + 1;
    }
    if (found)
        m_pairs = std::move(pairs);
}

void CodePage::assignCodes()
{
    std::vector<char16_t> ambiguous;
    for (size_t i = 0; i < m_pairs.size(); ++i) {
        const char16_t c = m_pairs[i];
        if (c != 0 && m_codes[c] != 0)
            ambiguous.push_back(c);
        else if (c != 0)
            m_codes[c] = quint16(0x8000 + i);
    }
    preferConverterCodes(ambiguous);
    for (int byte = 0; byte < 256; ++byte) {
        quint16 &code = m_codes[m_single[byte]];
        if (code == 0 || isDefined(uchar(byte)))
            code = quint16(byte);
    }
}

void CodePage::preferConverterCodes(const std::vector<char16_t> &ambiguous)
{
    for (const char16_t c : ambiguous) {
        const QByteArray bytes = QStringEncoder(m_name.constData())(QString(QChar(c)));
        if (bytes.size() == 2 && uchar(bytes[0]) >= AsciiEnd && pair(uchar(bytes[0]), uchar(bytes[1])) == c)
            m_codes[c] = quint16(uchar(bytes[0]) << 8 | uchar(bytes[1]));
    }
}

QString CodePage::decode(QByteArrayView bytes) const
{
    if (isMultiByte())
        return decodePairs(bytes);
    QString text(bytes.size(), Qt::Uninitialized);
    QChar *out = text.data();
    for (const char byte : bytes)
        *out++ = QChar(m_single[uchar(byte)]);
    return text;
}

QString CodePage::decodePairs(QByteArrayView bytes) const
{
    QString text(bytes.size(), Qt::Uninitialized);
    QChar *out = text.data();
    for (qsizetype i = 0; i < bytes.size(); ++i) {
        const uchar lead = uchar(bytes[i]);
        const char16_t letter = isDefined(lead) || i + 1 == bytes.size() ? 0 : pair(lead, uchar(bytes[i + 1]));
        *out++ = QChar(letter ? letter : m_single[lead]);
        i += letter ? 1 : 0;
    }
    text.truncate(out - text.constData());
    text.squeeze();
    return text;
}

char *CodePage::encodeTo(QStringView text, char *out) const
{
    const char *const start = out;
    bool keptBytes = false;
    for (const QChar c : text) {
        const quint16 code = m_codes[c.unicode()];
        if (code == 0 && !c.isNull())
            return nullptr;
        if (code > 0xFF)
            *out++ = char(code >> 8);
        else
            keptBytes |= !isDefined(uchar(code));
        *out++ = char(code & 0xFF);
    }
    // A kept byte may join what follows it to a pair.
    if (keptBytes && isMultiByte() && decode(QByteArrayView(start, out)) != text)
        return nullptr;
    return out;
}
