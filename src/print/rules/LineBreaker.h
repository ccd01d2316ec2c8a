#pragma once

#include "document/rules/LetterWidths.h"

#include <QStringList>

class TextMeasure;

/// Breaks texts into the lines of a column.
class LineBreaker
{
public:
    /// The measure must outlive the object.
    explicit LineBreaker(const TextMeasure &measure);

    /// The lines of a text in a column of that width (twips). A line breaks before a word, which ends at a blank, that
    /// does not fit. A word wider than the column gets a line of its own and runs over, so that the first line is empty
    /// when the text begins with one; only Chinese and Japanese, written without blanks, break within such a word.
    QStringList lines(const QString &text, int width) const;

    /// Whether the text is certain to fit on one line, so that long lists can be counted quickly; false leaves it open.
    bool surelyFits(const QString &text, int width) const { return m_letterWidths.surelyFits(text, width); }

private:
    const TextMeasure &m_measure;
    int m_blankWidth;
    mutable LetterWidths m_letterWidths;
};
