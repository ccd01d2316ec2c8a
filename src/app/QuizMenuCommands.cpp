#include "app/AppCommands.h"
#include "app/AppContext.h"
#include "app/CommandTable.h"
#include "app/frmApp.h"
#include "document/DocumentList.h"
#include "quiz/GridWords.h"
#include "quiz/frmOva.h"
#include "resources/Pictures.h"
#include "services/rules/QuizModes.h"
#include "services/settings/clsAppProperties.h"
#include "services/status/modSBFunc.h"

namespace {

using enum AppState;

constexpr StateSet Document(StateDocument);
constexpr StateSet DocumentOrEditing(StateDocument, StateEditing);
constexpr int NoQuiz = 12013;

void setQuizMode(const AppContext &context, int mode)
{
    context.status.ShowStatus(modSBFunc::Ready);
    context.settings.setQuizMode(mode);
    context.window.setButtonPicture(QStringLiteral("Model"), PictureMode1 + mode - 1);
    if (frmDoc *document = context.documents.active())
        document->refreshQuizMode();
}

/// The quiz window shows itself only when enough words were found.
void startQuiz(const AppContext &context, QuizKind kind)
{
    context.window.setButtonPicture(QStringLiteral("Quiz"), PicturePractice + int(kind));
    const frmDoc *document = context.documents.active();
    if (!document)
        return;
    frmOva quiz(context.settings, context.random, context.errorSound, &context.window);
    quiz.setQuizType(qint16(kind));
    quiz.Form_Load(GridWords(*document->Rutor()), *document->frame(), document->Caption());
    if (quiz.Tag() == u"1")
        quiz.exec();
    else
        context.status.ShowStatus(NoQuiz);
}

/// The "Model" button steps through the modes in a ring.
QString nextModeKey(int mode)
{
    return QStringLiteral("mnuMode%1").arg(mode >= QuizModes::Count ? 1 : mode + 1);
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
    for (int mode = 1; mode <= QuizModes::Count; ++mode) {
        table.add({QStringLiteral("mnuMode%1").arg(mode), 439 + mode, "", 40 + mode, PictureMode1 + mode - 1,
                   DocumentOrEditing, [&context, mode] { setQuizMode(context, mode); },
                   [&context, mode] { return context.settings.QuizMode() == mode; }});
    }
    table.add({"Model", 1015, "", 221, PictureMode1, Document,
               [&context, &table] { table.run(nextModeKey(context.settings.QuizMode())); }});
    table.add({"mnuQuizStudy", 446, "", 47, PicturePractice, Document,
               [&context] { startQuiz(context, QuizKind::Practice); }});
    table.add({"mnuQuizMultiple", 447, "", 48, PictureMultipleChoice, Document,
               [&context] { startQuiz(context, QuizKind::MultipleChoice); }});
    table.add({"mnuQuizQA", 448, "", 49, PictureQuestionAnswer, Document,
               [&context] { startQuiz(context, QuizKind::QuestionAndAnswer); }});
    table.add({"Quiz", 1016, "", 222, PicturePractice, Document,
               [&context, &table] { table.run(quizKey(context.window.buttonPicture(QStringLiteral("Quiz")))); }});
}
