#include "document/rules/QuizModeText.h"

#include "resources/StringTable.h"
#include "services/rules/QuizModes.h"

QString quizModeText(int quizMode, const QString &language1, const QString &language2)
{
    if (!QuizModes::exists(quizMode))
        return {};
    const QString order = QStringLiteral(" ") + resText(QuizModes::random(quizMode) ? 301 : 300);
    if (QuizModes::bothWays(quizMode))
        return language1 + QStringLiteral(" <-> ") + language2 + order;
    const QString arrow = QStringLiteral(" -> ");
    return (QuizModes::answersInSecond(quizMode) ? language1 + arrow + language2 : language2 + arrow + language1) +
           order;
}
