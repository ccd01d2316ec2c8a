#include "quiz/rules/LetterRules.h"

#include <unicode/brkiter.h>
#include <unicode/coll.h>
#include <unicode/translit.h>

#include <algorithm>
#include <array>

namespace {

constexpr size_t MostForms = 4096;

icu::UnicodeString toIcu(const QString &text)
{
    return {false, reinterpret_cast<const char16_t *>(text.utf16()), int32_t(text.size())};
}

QString fromIcu(const icu::UnicodeString &text)
{
    return QString(reinterpret_cast<const QChar *>(text.getBuffer()), text.length());
}

/// The marks on kana make another sound, not an accent.
bool isKanaMark(QChar mark)
{
    return mark == QChar(0x3099) || mark == QChar(0x309a);
}

bool isMark(QChar unit)
{
    return (unit.category() == QChar::Mark_NonSpacing || unit.category() == QChar::Mark_Enclosing) && !isKanaMark(unit);
}

/// The accent keys of a keyboard, which people take for an apostrophe.
bool standsForApostrophe(QChar unit)
{
    return unit == u'`' || unit == QChar(0xb4);
}

/// Blanks stay as wide as they are: they are no letters.
QString ofNormalWidth(const QString &letter)
{
    const bool other = std::any_of(letter.begin(), letter.end(), [](QChar unit) {
        return !unit.isSpace() && (unit.decompositionTag() == QChar::Wide || unit.decompositionTag() == QChar::Narrow);
    });
    return other ? letter.normalized(QString::NormalizationForm_KC) : letter;
}

QString folded(const QString &letter, uint32_t options)
{
    QString small;
    for (const char32_t unit : ofNormalWidth(letter).toUcs4())
        small += QString::fromUcs4(std::array{char32_t(u_foldCase(UChar32(unit), options))}.data(), 1);
    return small.normalized(QString::NormalizationForm_C);
}

bool isAsciiLetters(const QString &text)
{
    return std::all_of(text.begin(), text.end(), [](QChar unit) { return unit.unicode() < 128 && unit.isLetter(); });
}

/// Such a letter joins no other one, but for the two of a line's end.
bool standsAlone(const QString &text, qsizetype place)
{
    return place == text.size() || (text[place].unicode() < LetterRules::LettersAlone && text[place] != u'\n');
}

} // namespace

struct LetterRules::Tables
{
    void addAccents();

    std::unique_ptr<icu::BreakIterator> graphemes;
    std::unique_ptr<icu::Collator> collator; ///< tells letters apart, but not their accents
    std::vector<std::unique_ptr<icu::Transliterator>> spellings;
};

void LetterRules::Tables::addAccents()
{
    if (collator)
        return;
    UErrorCode error = U_ZERO_ERROR;
    collator.reset(icu::Collator::createInstance(icu::Locale::getRoot(), error));
    if (!collator)
        return;
    collator->setStrength(icu::Collator::PRIMARY);
    for (const char *name : {"Latin-ASCII", "de-ASCII"}) {
        error = U_ZERO_ERROR;
        spellings.emplace_back(icu::Transliterator::createInstance(name, UTRANS_FORWARD, error));
    }
}

LetterRules::LetterRules()
    : m_tables(std::make_unique<Tables>())
{
    UErrorCode error = U_ZERO_ERROR;
    m_tables->graphemes.reset(icu::BreakIterator::createCharacterInstance(icu::Locale::getRoot(), error));
}

LetterRules::~LetterRules() = default;

void LetterRules::prepare()
{
    m_tables->addAccents();
}

void LetterRules::tidy()
{
    if (m_forms.size() <= MostForms)
        return;
    m_forms.clear();
    m_alone = {};
}

QString LetterRules::composed(const QString &text)
{
    return text.normalized(QString::NormalizationForm_C);
}

Letters LetterRules::letters(const QString &text)
{
    Letters all;
    if (!m_tables->graphemes)
        return all;
    const icu::UnicodeString shared = toIcu(text);
    m_tables->graphemes->setText(shared);
    for (qsizetype start = 0; start < text.size();) {
        const bool alone = standsAlone(text, start) && standsAlone(text, start + 1);
        const qsizetype end = alone ? start + 1 : m_tables->graphemes->following(int32_t(start));
        all.push_back({alone ? &formsAlone(text[start]) : &forms(text.mid(start, end - start)), start, end - start});
        start = end;
    }
    return all;
}

const LetterForms &LetterRules::formsAlone(QChar letter)
{
    const LetterForms *&known = m_alone[letter.unicode()];
    if (!known)
        known = &forms(QString(letter));
    return *known;
}

const LetterForms &LetterRules::forms(const QString &letter)
{
    const auto [place, isNew] = m_forms.try_emplace(letter);
    LetterForms &forms = place->second;
    if (!isNew)
        return forms;
    forms.text = letter;
    forms.base = letter;
    forms.blank = letter[0].isSpace();
    forms.punctuation = letter.size() == 1 && (letter[0].isPunct() || standsForApostrophe(letter[0]));
    if (letter.size() > 1 || letter[0].unicode() > 127)
        takeAccentsOff(forms);
    forms.folded = folded(letter, U_FOLD_CASE_DEFAULT);
    forms.turkish = folded(letter, U_FOLD_CASE_EXCLUDE_SPECIAL_I);
    forms.foldedBase = folded(forms.base, U_FOLD_CASE_DEFAULT);
    forms.turkishBase = folded(forms.base, U_FOLD_CASE_EXCLUDE_SPECIAL_I);
    for (const QString &form : {forms.folded, forms.turkish, forms.base, forms.foldedBase, forms.turkishBase})
        forms.kin |= quint64(1) << (qHash(form) % 64);
    return forms;
}

void LetterRules::takeAccentsOff(LetterForms &letter)
{
    m_tables->addAccents();
    if (!m_tables->collator)
        return;
    const auto same = [this](const QString &one, const QString &other) {
        UErrorCode error = U_ZERO_ERROR;
        return m_tables->collator->compare(toIcu(one), toIcu(other), error) == UCOL_EQUAL;
    };
    QString base;
    QString accents;
    for (const QChar unit : letter.text.normalized(QString::NormalizationForm_D))
        (isMark(unit) && same(QString(unit), QString()) ? accents : base) += unit;
    if (!base.isEmpty() && !accents.isEmpty() && same(letter.text, base)) {
        letter.base = base.normalized(QString::NormalizationForm_C);
        letter.accents = accents;
    }
    addSpellings(letter);
}

void LetterRules::addSpellings(LetterForms &letter)
{
    if (ofNormalWidth(letter.text) != letter.text)
        return;
    QSet<QString> spellings;
    for (const auto &rule : m_tables->spellings) {
        icu::UnicodeString spelled = toIcu(letter.text);
        if (rule)
            rule->transliterate(spelled);
        const QString text = fromIcu(spelled);
        if (isAsciiLetters(text))
            spellings << text << text.left(1) + text.mid(1).toLower();
    }
    spellings.remove(letter.base); // which stands for the letter as it is
    for (const QString &spelling : spellings) {
        std::vector<const LetterForms *> &parts = letter.spellings.emplace_back();
        for (const QChar part : spelling)
            parts.push_back(&forms(QString(part)));
    }
}

bool LetterRules::same(const LetterForms &given, const LetterForms &expected, const AnswerTolerance &tolerance)
{
    if (&given == &expected)
        return true;
    if ((given.kin & expected.kin) == 0)
        return false;
    if (tolerance.letterCase && (given.folded == expected.folded || given.turkish == expected.turkish))
        return true;
    if (!tolerance.accents)
        return false;
    const bool fewerAccents = std::all_of(given.accents.begin(), given.accents.end(),
                                          [&expected](QChar accent) { return expected.accents.contains(accent); });
    return fewerAccents &&
           (given.base == expected.base || (tolerance.letterCase && (given.foldedBase == expected.foldedBase ||
                                                                     given.turkishBase == expected.turkishBase)));
}
