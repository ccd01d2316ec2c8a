#include "quiz/QuizLook.h"

namespace {

constexpr QuizLook Practice{.title = 12003,
                            .helpTopic = 1220,
                            .check = 11000,
                            .checkHelp = 20098,
                            .hint = 11001,
                            .hintHelp = 20099,
                            .automatic = 11003,
                            .automaticHelp = 20096,
                            .error = 11002,
                            .errorHelp = 20097};

constexpr QuizLook MultipleChoice{.title = 12004,
                                  .helpTopic = 1230,
                                  .check = 920,
                                  .checkHelp = 20087,
                                  .hint = 0,
                                  .hintHelp = 0,
                                  .automatic = 11004,
                                  .automaticHelp = 20093,
                                  .error = 0,
                                  .errorHelp = 0};

constexpr QuizLook QuestionAndAnswer{.title = 12005,
                                     .helpTopic = 1240,
                                     .check = 920,
                                     .checkHelp = 20098,
                                     .hint = 923,
                                     .hintHelp = 20088,
                                     .automatic = 0,
                                     .automaticHelp = 0,
                                     .error = 924,
                                     .errorHelp = 20086};

} // namespace

const QuizLook &QuizLook::of(QuizKind kind)
{
    switch (kind) {
    case QuizKind::Practice:
        return Practice;
    case QuizKind::MultipleChoice:
        return MultipleChoice;
    case QuizKind::QuestionAndAnswer:
        break;
    }
    return QuestionAndAnswer;
}
