#include "document/rules/LetterWidths.h"

LetterWidths::LetterWidths(Measure measure)
    : m_measure(std::move(measure))
{
}

bool LetterWidths::surelyFits(const QString &text, double width)
{
    if (m_bounds.empty()) {
        m_bounds.resize(LatinEnd);
        m_allowance = m_measure(QStringLiteral(" ")) / 4;
    }
    double sum = 0;
    for (const QChar letter : text) {
        if (letter.unicode() >= LatinEnd)
            return false;
        sum += bound(letter);
    }
    return sum <= width;
}

double LetterWidths::bound(QChar letter)
{
    double &known = m_bounds[letter.unicode()];
    if (known == 0)
        known = m_measure(QString(letter)) + m_allowance;
    return known;
}
