#pragma once

#include "document/rules/Vocabulary.h"

#include <benchmark/benchmark.h>

/// Word lists to measure with: always the same ones, with words of 2 to 17 letters like those of a real list.
namespace SampleVocabulary {

enum class Letters {
    Western, ///< every fourth word has an accented letter
    Cyrillic ///< language 2 is in a script that the western code page lacks
};

/// pairs: rows below the header.
Vocabulary make(qsizetype pairs, Letters letters = Letters::Western);

/// Runs a case at the sizes that all cases are measured at: 1,000, 32,767, 100,000 and 1,000,000 pairs.
void atAllSizes(benchmark::internal::Benchmark *bench);

} // namespace SampleVocabulary
