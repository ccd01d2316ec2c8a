#include "document/rules/QuizModeText.h"

#include "resources/StringTable.h"

QString quizModeText(int quizMode, const QString &language1, const QString &language2)
{
    const QString inOrder = QStringLiteral(" ") + resText(300);
    const QString randomly = QStringLiteral(" ") + resText(301);
    switch (quizMode) {
    case 1:
        return language1 + QStringLiteral(" -> ") + language2 + inOrder;
    case 2:
        return language2 + QStringLiteral(" -> ") + language1 + inOrder;
    case 3:
        return language1 + QStringLiteral(" -> ") + language2 + randomly;
    case 4:
        return language2 + QStringLiteral(" -> ") + language1 + randomly;
    case 5:
        return language1 + QStringLiteral(" <-> ") + language2 + randomly;
    default:
        return {};
    }
}
