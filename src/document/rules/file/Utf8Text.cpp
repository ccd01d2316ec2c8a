#include "document/rules/file/Utf8Text.h"

namespace {

constexpr QByteArrayView ByteOrderMark("\xEF\xBB\xBF");
constexpr uchar SurrogateLead = 0xED;

/// Three bytes at the position that stand for one surrogate, which starts with 0xED and a byte from 0xA0 on.
bool isSurrogateAt(QByteArrayView bytes, qsizetype at)
{
    return at + 2 < bytes.size() && uchar(bytes[at]) == SurrogateLead && uchar(bytes[at + 1]) >= 0xA0 &&
           uchar(bytes[at + 1]) < 0xC0 && (uchar(bytes[at + 2]) & 0xC0) == 0x80;
}

qsizetype nextSurrogate(QByteArrayView bytes, qsizetype from)
{
    for (qsizetype i = from; i < bytes.size(); ++i) {
        if (isSurrogateAt(bytes, i))
            return i;
    }
    return bytes.size();
}

} // namespace

namespace Utf8Text {

char *encodeTo(QStringView text, char *out)
{
    for (qsizetype i = 0; i < text.size(); ++i) {
        char32_t c = text[i].unicode();
        if (c < 0x80) {
            *out++ = char(c);
            continue;
        }
        if (c < 0x800) {
            *out++ = char(0xC0 | c >> 6);
        } else {
            if (QChar::isHighSurrogate(c) && i + 1 < text.size() && text[i + 1].isLowSurrogate()) {
                c = QChar::surrogateToUcs4(char16_t(c), text[++i].unicode());
                *out++ = char(0xF0 | c >> 18);
                *out++ = char(0x80 | (c >> 12 & 0x3F));
            } else {
                *out++ = char(0xE0 | c >> 12);
            }
            *out++ = char(0x80 | (c >> 6 & 0x3F));
        }
        *out++ = char(0x80 | (c & 0x3F));
    }
    return out;
}

QString decodeProper(QByteArrayView bytes)
{
    // Qt drops a mark at the start.
    if (bytes.startsWith(ByteOrderMark))
        return QChar(QChar::ByteOrderMark) + QString::fromUtf8(bytes);
    return QString::fromUtf8(bytes);
}

std::optional<QString> decode(QByteArrayView bytes)
{
    QString text;
    for (qsizetype start = 0; start < bytes.size();) {
        const qsizetype end = nextSurrogate(bytes, start);
        const QByteArrayView proper = bytes.sliced(start, end - start);
        if (!proper.isValidUtf8())
            return std::nullopt;
        text += decodeProper(proper);
        if (end < bytes.size())
            text += QChar(char16_t(0xD000 | (uchar(bytes[end + 1]) & 0x3F) << 6 | (uchar(bytes[end + 2]) & 0x3F)));
        start = end + 3;
    }
    return text;
}

} // namespace Utf8Text
