#include "services/rules/LetterCount.h"

#include <QCollator>

#include <algorithm>
#include <vector>

namespace {

bool isAscii(const QString &text)
{
    return std::all_of(text.begin(), text.end(), [](QChar ch) { return ch.unicode() < 0x80; });
}

/// A letter whose small form is written with more characters stays as it is.
QString smallForm(const QString &letter)
{
    const QString small = letter.toLower();
    return small.size() == letter.size() ? small : letter;
}

} // namespace

void LetterCount::add(const QString &text)
{
    if (isAscii(text))
        return;
    QString letter;
    for (const char32_t character : text.normalized(QString::NormalizationForm_C).toUcs4()) {
        const QString shown = QString::fromUcs4(&character, 1);
        if (QChar::isMark(character)) {
            letter += letter.isEmpty() ? QString() : shown;
            continue;
        }
        addLetter(letter);
        letter = QChar::isLetter(character) ? shown : QString();
    }
    addLetter(letter);
}

void LetterCount::addLetter(const QString &letter)
{
    if (!isAscii(letter))
        ++m_counts[smallForm(letter)];
}

QStringList LetterCount::mostFrequent(int most, const QLocale &locale) const
{
    // the C locale has no collation: letters of every script then follow the order most languages share
    const QCollator collator(locale.language() == QLocale::C ? QLocale(QLocale::English) : locale);
    const auto before = [&collator](const QString &a, const QString &b) {
        const int order = collator.compare(a, b);
        return order ? order < 0 : a < b;
    };
    QStringList letters = m_counts.keys();
    std::sort(letters.begin(), letters.end(), [&](const QString &a, const QString &b) {
        return m_counts[a] == m_counts[b] ? before(a, b) : m_counts[a] > m_counts[b];
    });
    letters = letters.mid(0, most);
    std::sort(letters.begin(), letters.end(), before);
    return letters;
}
