#include "document/rules/TextWidth.h"

#include <QFontMetricsF>

namespace {

constexpr int FirstLetter = 0x20;
constexpr int LetterCount = 0x250; ///< Latin with all its accents; other scripts join and stack letters
constexpr double KerningAllowance = 1.1;

} // namespace

double TextWidth::of(const QString &text) const
{
    return QFontMetricsF(m_font).horizontalAdvance(text);
}

double TextWidth::lineHeight() const
{
    return QFontMetricsF(m_font).height();
}

bool TextWidth::surelyFits(const QString &text, double pixels)
{
    if (m_letters.empty())
        measureLetters();
    double sum = 0;
    for (const QChar letter : text) {
        const float width = letter.unicode() < LetterCount ? m_letters[letter.unicode()] : 0;
        if (width <= 0)
            return false;
        sum += double(width);
    }
    return sum * KerningAllowance <= pixels;
}

void TextWidth::measureLetters()
{
    m_letters.resize(LetterCount);
    const QFontMetricsF metrics(m_font);
    for (int code = FirstLetter; code < LetterCount; ++code)
        m_letters[size_t(code)] = float(metrics.horizontalAdvance(QChar(code)));
}
