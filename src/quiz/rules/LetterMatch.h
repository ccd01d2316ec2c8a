#pragma once

#include "quiz/rules/LetterRules.h"

/// Whether a text given stands for the one expected, letter by letter: no brackets, no alternatives.
namespace LetterMatch {

bool matches(const Letters &given, const Letters &expected, const AnswerTolerance &tolerance);

/// Whether the letters given from a place on, each with its forms, are this spelling.
template <class Items>
bool spelledAt(const Items &given, size_t place, const std::vector<const LetterForms *> &spelling,
               const AnswerTolerance &tolerance)
{
    if (given.size() - place < spelling.size())
        return false;
    for (size_t i = 0; i < spelling.size(); ++i) {
        if (!LetterRules::same(*given[place + i].forms, *spelling[i], tolerance))
            return false;
    }
    return true;
}

} // namespace LetterMatch
