#pragma once

#include <QByteArray>
#include <QString>

#include <array>
#include <vector>

class QLocale;

/// An 8-bit character set of the kind vocabulary files are written in: one byte a letter, or one and two bytes for the
/// East Asian ones. Holds plain tables, so that it can be asked for millions of words.
///
/// Reading loses no byte: one that the character set leaves undefined becomes the code point of its own number below
/// 0xA0 and U+F800 plus its number above (a dangling first byte of a pair likewise), and such code points are written
/// as that byte again.
class CodePage
{
public:
    /// name: windows-1250 to windows-1258, -874, -932, -936, -949, -950. A name that the platform's converters do not
    /// know gives Latin-1.
    explicit CodePage(const QByteArray &name = QByteArrayLiteral("windows-1252"));

    /// The character set that belongs to the language of a locale; windows-1252 where none of its own exists.
    static QByteArray nameFor(const QLocale &locale);

    QByteArray name() const { return m_name; }
    bool isMultiByte() const { return !m_pairs.empty(); }

    QString decode(QByteArrayView bytes) const;

    /// Writes a text at out, which must have room for two bytes a letter. The end of what was written; null when a
    /// letter has no place in the character set, or when the bytes would not read as the same text.
    char *encodeTo(QStringView text, char *out) const;

private:
    void readSingleBytes();
    void readPairs();
    void assignCodes();
    void preferConverterCodes(const std::vector<char16_t> &ambiguous);
    bool isDefined(uchar byte) const { return m_defined[byte]; }
    char16_t pair(uchar lead, uchar trail) const { return m_pairs[(lead - 0x80) * 256 + trail]; }
    QString decodePairs(QByteArrayView bytes) const;

    QByteArray m_name;
    std::array<char16_t, 256> m_single = {};
    std::array<bool, 256> m_defined = {};
    std::vector<char16_t> m_pairs; ///< by first byte less 0x80 and second byte, 0: no such letter; empty: single bytes
    std::vector<quint16> m_codes;  ///< by code point: its one or two bytes as a number, 0: none (but for NUL)
};
