#pragma once

#include <QString>

#include <vector>

/// How an answer in a vocabulary is built: several answers in one, and parts in brackets.
namespace AnswerParts {

/// A part of a text, in UTF-16 units.
struct Part
{
    qsizetype start;
    qsizetype length;

    qsizetype end() const { return start + length; }
};

/// The outermost pairs of brackets, brackets included. What does not close is no bracket.
std::vector<Part> brackets(const QString &text);

/// The answers that stand between commas, semicolons and slashes, without the blanks at their edges. A separator in
/// brackets or between two digits does not separate. A text of one answer, or of more than most, is one part.
std::vector<Part> answers(const QString &text, size_t most);

/// The texts that can be meant by one with brackets: each of them as it is, without its brackets, and left out.
std::vector<QString> readings(const QString &text);

} // namespace AnswerParts
