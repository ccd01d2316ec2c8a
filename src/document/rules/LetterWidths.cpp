#include "document/rules/LetterWidths.h"

namespace {

/// Latin, Greek, Cyrillic, Japanese and Chinese letters, which stand beside each other, without signs that stack.
bool standsAlone(char16_t letter)
{
    if (letter < 0x250)
        return true;
    const bool cyrillicSign = letter >= 0x483 && letter <= 0x489;
    const bool kanaSign = (letter >= 0x302A && letter < 0x3030) || letter == 0x3099 || letter == 0x309A;
    return (letter >= 0x370 && letter < 0x530 && !cyrillicSign) || (letter >= 0x3000 && letter < 0x3100 && !kanaSign) ||
           (letter >= 0x4E00 && letter < 0xA000);
}

} // namespace

LetterWidths::LetterWidths(Measure measure)
    : m_measure(std::move(measure))
{
}

bool LetterWidths::surelyFits(const QString &text, double width)
{
    if (m_allowance == 0)
        m_allowance = m_measure(QStringLiteral(" ")) / 4;
    double sum = 0;
    for (const QChar letter : text) {
        if (!standsAlone(letter.unicode()))
            return false;
        sum += bound(letter);
    }
    return sum <= width;
}

double LetterWidths::bound(QChar letter)
{
    if (letter.unicode() >= m_bounds.size())
        m_bounds.resize(letter.unicode() + size_t(1));
    double &known = m_bounds[letter.unicode()];
    if (known == 0)
        known = m_measure(QString(letter)) + m_allowance;
    return known;
}
