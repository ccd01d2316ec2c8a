#pragma once

#include "quiz/rules/QuizKinds.h"

/// What the quiz window shows for one kind of quiz: string ids of captions and what's-this texts, 0 for a control that
/// the kind does not have.
struct QuizLook
{
    int title;
    int helpTopic;
    int check;
    int checkHelp;
    int hint;
    int hintHelp;
    int automatic;
    int automaticHelp;
    int error;
    int errorHelp;

    static const QuizLook &of(QuizKind kind);
};
