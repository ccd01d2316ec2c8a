#pragma once

#include <functional>

/// Which rows of a vocabulary a quiz asks, of those that hold a word.
struct AskedRows
{
    std::function<bool(int row)> asks = {}; ///< null: every row is asked
    int most = 0;                           ///< at most so many words, drawn at random; 0: all
};
