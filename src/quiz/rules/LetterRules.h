#pragma once

#include "services/rules/QuizOptions.h"

#include <QHash>
#include <QString>

#include <array>
#include <memory>
#include <unordered_map>
#include <vector>

/// A letter as a reader sees it, a grapheme in normalization form C, with the forms in which it may be written.
struct LetterForms
{
    QString text;
    QString base;    ///< without the accents
    QString accents; ///< those that can be missing without making it another letter
    QString folded;  ///< small and of normal width
    QString foldedBase;
    QString turkish; ///< small as in Turkish, where I belongs to ı and İ to i
    QString turkishBase;
    /// How it is spelled where it cannot be typed: ss for ß, ae for ä.
    std::vector<std::vector<const LetterForms *>> spellings;
    /// Letters of which one stands for the other have a bit in common.
    quint64 kin = 0;
    bool blank = false;
    bool punctuation = false;

    bool counts() const { return !blank && !punctuation; }
};

/// A letter at its place in a text, in UTF-16 units.
struct Letter
{
    const LetterForms *forms;
    qsizetype start;
    qsizetype length;
};

using Letters = std::vector<Letter>;

/// Takes texts apart into letters and knows the forms of each. It owns the tables of the Unicode library that this
/// takes, and keeps the forms of the letters it has met.
class LetterRules
{
public:
    /// The letters of Unicode before this one, where the combining marks begin, stand alone.
    static constexpr char16_t LettersAlone = 0x300;

    LetterRules();
    ~LetterRules();

    /// Makes the tables for accents now, which takes some milliseconds, rather than when a letter first asks for them.
    void prepare();
    /// Letters handed out before must no longer be used: those met so far are forgotten when they have become many.
    void tidy();

    /// The text in normalization form C, with every letter and its accents in one where there is such a character: how
    /// an accented letter was typed makes no difference.
    static QString composed(const QString &text);
    /// The letters of a text in normalization form C.
    Letters letters(const QString &text);

    /// Whether a letter given stands for the one expected.
    static bool same(const LetterForms &given, const LetterForms &expected, const AnswerTolerance &tolerance);

private:
    struct Tables;

    const LetterForms &forms(const QString &letter);
    const LetterForms &formsAlone(QChar letter);
    void takeAccentsOff(LetterForms &letter);
    void addSpellings(LetterForms &letter);

    std::unique_ptr<Tables> m_tables;
    std::unordered_map<QString, LetterForms> m_forms;
    std::array<const LetterForms *, LettersAlone> m_alone{}; ///< those met so far
};
