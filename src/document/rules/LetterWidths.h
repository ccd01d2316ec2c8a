#pragma once

#include <QString>

#include <functional>
#include <vector>

/// Tells for most words whether they fit, from the widths of their letters alone. Measuring a word takes ten times as
/// long, which counts when thousands are looked at.
class LetterWidths
{
public:
    /// Gives the width of a text, in any unit.
    using Measure = std::function<double(const QString &text)>;

    explicit LetterWidths(Measure measure);

    /// Whether a text certainly takes no more than this width. False leaves it open: the text comes too close, or has
    /// letters of a script in which they can join and stack.
    bool surelyFits(const QString &text, double width);

private:
    double bound(QChar letter);

    Measure m_measure;
    double m_allowance = 0;       ///< kerning moves letters apart by far less than this
    std::vector<double> m_bounds; ///< by letter, up to the last one that was met; 0: not measured yet
};
