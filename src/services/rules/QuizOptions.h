#pragma once

/// In what a typed answer may differ from the expected one and still count as right. With all of it off only the exact
/// text is right.
struct AnswerTolerance
{
    bool letterCase = false;           ///< capital and small letters are the same
    bool accents = false;              ///< e for é, е for ё, ss for ß, ae for ä
    bool blanksAndPunctuation = false; ///< blanks at the edges, double blanks and punctuation do not count
    bool brackets = false;             ///< what stands in brackets may be left out
    bool oneOfSeveral = false;         ///< one of the answers between comma, semicolon or slash is enough

    bool operator==(const AnswerTolerance &) const = default;
};

/// How quizzes are asked and judged beyond the five modes, as the user chose it.
struct QuizOptions
{
    static constexpr int MostWords = 32767; ///< that a quiz can ask

    int mostWords = 0; ///< at most so many words are asked, drawn at random; 0: all
    AnswerTolerance tolerance = {};
    bool readQuestion = false; ///< aloud
    bool readAnswer = false;   ///< aloud
    bool rememberAnswers = true;

    bool operator==(const QuizOptions &) const = default;
};
