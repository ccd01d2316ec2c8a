#include "exchange/rules/text/TextEncoding.h"

#include <QStringDecoder>

#include <unicode/ucsdet.h>

#include <array>
#include <utility>

namespace {

constexpr qsizetype SampleSize = qsizetype(64) * 1024;
constexpr int LeastConfidence = 15; ///< of 100; below it the detector guesses

/// What the detector says, and the larger character set by which texts of that kind are really written.
constexpr std::pair<const char *, const char *> Larger[] = {
    {"ISO-8859-1", "windows-1252"}, {"ISO-8859-6", "windows-1256"}, {"ISO-8859-7", "windows-1253"},
    {"ISO-8859-8", "windows-1255"}, {"ISO-8859-9", "windows-1254"}, {"ISO-8859-8-I", "windows-1255"},
    {"windows-949", "EUC-KR"},
};

QByteArray byMark(QByteArrayView bytes)
{
    static constexpr std::pair<const char *, const char *> Marks[] = {
        {"\xEF\xBB\xBF", "UTF-8"}, {"\xFF\xFE", "UTF-16LE"}, {"\xFE\xFF", "UTF-16BE"}};
    for (const auto &[mark, name] : Marks) {
        if (bytes.startsWith(QByteArrayView(mark)))
            return name;
    }
    return {};
}

/// Line ends, blanks and western letters have a zero in one half of their two bytes, and nothing else has.
QByteArray byZeros(QByteArrayView bytes)
{
    std::array<qsizetype, 2> zeros{};
    const qsizetype size = std::min(bytes.size(), SampleSize);
    for (qsizetype i = 0; i < size; ++i)
        zeros[size_t(i % 2)] += bytes[i] == 0;
    const qsizetype many = size / 20;
    if (bytes.size() % 2 != 0 || zeros[0] + zeros[1] == 0)
        return {};
    if (zeros[1] > many && zeros[0] * 20 < zeros[1])
        return "UTF-16LE";
    return zeros[0] > many && zeros[1] * 20 < zeros[0] ? "UTF-16BE" : QByteArray();
}

bool isUtf8(QByteArrayView bytes)
{
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString text = decoder(bytes);
    return !decoder.hasError();
}

/// The words with letters beyond ASCII: the others tell nothing, and in a list of two languages they are half.
QByteArray tellingWords(QByteArrayView bytes)
{
    QByteArray words;
    qsizetype start = 0;
    bool telling = false;
    for (qsizetype i = 0; i < bytes.size(); ++i) {
        telling |= uchar(bytes[i]) >= 0x80;
        if (uchar(bytes[i]) > ' ')
            continue;
        if (telling)
            words += bytes.sliced(start, i + 1 - start);
        telling = false;
        start = i + 1;
    }
    return words;
}

/// The character set to offer where the detector says one; empty for those in which no lists are written.
QByteArray offered(const QByteArray &name)
{
    const auto larger =
        std::find_if(std::begin(Larger), std::end(Larger), [&name](const auto &entry) { return name == entry.first; });
    const QByteArray found = larger == std::end(Larger) ? name : QByteArray(larger->second);
    const std::vector<QByteArray> &known = TextEncoding::known();
    const bool eightBits = !found.startsWith("UTF");
    return eightBits && std::find(known.begin(), known.end(), found) != known.end() ? found : QByteArray();
}

QByteArray byFrequency(QByteArrayView bytes, const QByteArray &fallback)
{
    const QByteArray words = tellingWords(bytes.first(std::min(bytes.size(), SampleSize)));
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<UCharsetDetector, decltype(&ucsdet_close)> detector(ucsdet_open(&status), ucsdet_close);
    ucsdet_setText(detector.get(), words.constData(), int32_t(words.size()), &status);
    int32_t count = 0;
    const UCharsetMatch **matches = ucsdet_detectAll(detector.get(), &count, &status);
    for (int32_t i = 0; U_SUCCESS(status) && i < count; ++i) {
        const QByteArray found = offered(ucsdet_getName(matches[i], &status));
        if (!found.isEmpty())
            return ucsdet_getConfidence(matches[i], &status) < LeastConfidence ? fallback : found;
    }
    return fallback;
}

} // namespace

namespace TextEncoding {

const std::vector<QByteArray> &known()
{
    static const std::vector<QByteArray> all{
        "UTF-8",        "windows-1252", "UTF-16LE",     "UTF-16BE",     "windows-1250", "ISO-8859-2",
        "windows-1251", "KOI8-R",       "ISO-8859-5",   "windows-1253", "windows-1254", "windows-1255",
        "windows-1256", "windows-1257", "windows-1258", "windows-874",  "Shift_JIS",    "EUC-JP",
        "GB18030",      "Big5",         "EUC-KR",       "macintosh",    "IBM850"};
    return all;
}

QByteArray detect(QByteArrayView bytes, const QByteArray &fallback)
{
    for (const QByteArray &found : {byMark(bytes), byZeros(bytes)}) {
        if (!found.isEmpty())
            return found;
    }
    return isUtf8(bytes) ? QByteArrayLiteral("UTF-8") : byFrequency(bytes, fallback);
}

QString decode(QByteArrayView bytes, const QByteArray &encoding)
{
    QStringDecoder decoder(encoding.constData());
    if (!decoder.isValid())
        return QString::fromLatin1(bytes);
    const QString text = decoder(bytes);
    return text.startsWith(QChar::ByteOrderMark) ? text.mid(1) : text;
}

} // namespace TextEncoding
