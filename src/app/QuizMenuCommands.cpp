#include "app/AppCommands.h"
#include "app/AppContext.h"
#include "app/CommandTable.h"
#include "app/frmApp.h"
#include "document/DocumentList.h"
#include "resources/Pictures.h"
#include "services/modSBFunc.h"
#include "services/rules/clsAppProperties.h"

namespace {

using enum AppState;

constexpr StateSet Document(StateDocument);
constexpr StateSet DocumentOrEditing(StateDocument, StateEditing);
constexpr int Ready = 506;
constexpr int LastMode = 5;

void setQuizMode(const AppContext &context, int mode)
{
    context.status.ShowStatus(Ready);
    context.settings.setQuizMode(mode);
    context.window.setButtonPicture(QStringLiteral("Model"), PictureMode1 + mode - 1);
    if (frmDoc *document = context.documents.active())
        document->refreshQuizMode();
}

/// The "Model" button steps through the modes in a ring.
QString nextModeKey(int mode)
{
    return QStringLiteral("mnuMode%1").arg(mode >= LastMode ? 1 : mode + 1);
}

/// The command of the quiz kind that the "Quiz" button's picture shows; empty for any other picture.
QString quizKey(int picture)
{
    switch (picture) {
    case PicturePractice:
        return QStringLiteral("mnuQuizStudy");
    case PictureMultipleChoice:
        return QStringLiteral("mnuQuizMultiple");
    case PictureQuestionAnswer:
        return QStringLiteral("mnuQuizQA");
    default:
        return {};
    }
}

} // namespace

void AppCommands::addQuizCommands(CommandTable &table, const AppContext &context)
{
    for (int mode = 1; mode <= LastMode; ++mode) {
        table.add({QStringLiteral("mnuMode%1").arg(mode), 439 + mode, "", 40 + mode, PictureMode1 + mode - 1,
                   DocumentOrEditing, [&context, mode] { setQuizMode(context, mode); }});
    }
    table.add({"Model", 1015, "", 221, PictureMode1, Document,
               [&context, &table] { table.run(nextModeKey(context.settings.QuizMode())); }});
    table.add({"mnuQuizStudy", 446, "", 47, PicturePractice, Document, {}});
    table.add({"mnuQuizMultiple", 447, "", 48, PictureMultipleChoice, Document, {}});
    table.add({"mnuQuizQA", 448, "", 49, PictureQuestionAnswer, Document, {}});
    table.add({"Quiz", 1016, "", 222, PicturePractice, Document,
               [&context, &table] { table.run(quizKey(context.window.buttonPicture(QStringLiteral("Quiz")))); }});
}
