#pragma once

#include "tools/rules/Cells.h"

#include <vector>

/// Something in a vocabulary that looks wrong, and the cell that it is about.
struct Finding
{
    enum Kind { SamePair, OtherAnswer, NoCounterpart, Blanks, Scripts, Brackets };

    Kind kind;
    int row;
    int col;
    int other = 0;     ///< SamePair, OtherAnswer: the row above where the pair or the word stands, too
    QString part = {}; ///< Scripts: the word, and its letters that differ from the others, with a blank between
    bool operator==(const Finding &) const = default;
};

namespace VocabularyCheck {

/// What looks wrong, row by row. The cost grows with the length of the texts only. Words are compared without the
/// blanks that trimmed() takes away.
std::vector<Finding> findings(const CellSource &cells);

/// A text without blanks at its edges and with one blank where several stand together.
QString trimmed(const QString &text);

} // namespace VocabularyCheck
