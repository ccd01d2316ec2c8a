#include "app/AppCommands.h"
#include "app/AppContext.h"
#include "app/CommandTable.h"
#include "app/frmApp.h"
#include "platform/Speaker.h"
#include "quiz/QuizCommands.h"
#include "quiz/frmQuizOptions.h"
#include "resources/Pictures.h"
#include "services/rules/QuizModes.h"
#include "services/settings/clsAppProperties.h"
#include "services/status/modSBFunc.h"

namespace {

using enum AppState;

constexpr StateSet Document(StateDocument);
constexpr StateSet DocumentOrEditing(StateDocument, StateEditing);

/// The entries of Words to Ask. Their captions begin at WordsCaption, each followed by its help text.
constexpr std::pair<const char *, WordsToAsk> Words[] = {{"mnuWordsAll", WordsToAsk::All},
                                                         {"mnuWordsSelected", WordsToAsk::SelectedRows},
                                                         {"mnuWordsDue", WordsToAsk::Due},
                                                         {"mnuWordsMissed", WordsToAsk::Missed},
                                                         {"mnuWordsHardest", WordsToAsk::Hardest}};
constexpr int WordsCaption = 14302;

void setQuizMode(const AppContext &context, int mode)
{
    context.status.ShowStatus(modSBFunc::Ready);
    context.settings.setQuizMode(mode);
    context.window.setButtonPicture(QStringLiteral("Model"), PictureMode1 + mode - 1);
    context.quizzes.refreshMode();
}

void startQuiz(const AppContext &context, QuizKind kind)
{
    context.window.setButtonPicture(QStringLiteral("Quiz"), PicturePractice + int(kind));
    context.quizzes.start(kind);
}

void continueQuiz(const AppContext &context)
{
    if (const std::optional<QuizKind> kind = context.quizzes.leftKind())
        context.window.setButtonPicture(QStringLiteral("Quiz"), PicturePractice + int(*kind));
    context.quizzes.goOn();
}

void showOptions(const AppContext &context)
{
    context.status.ShowStatus(modSBFunc::DialogOpen);
    const bool canSpeak = context.speaker && context.speaker->isThere();
    frmQuizOptions(context.settings, canSpeak, &context.window).exec();
    context.status.ShowStatus(modSBFunc::Ready);
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

void addWordsToAsk(CommandTable &table, const AppContext &context)
{
    int captionId = WordsCaption;
    for (const auto &[key, choice] : Words) {
        table.add({QString::fromLatin1(key), captionId, "", captionId + 1, 0, Document,
                   [&context, choice = choice] { context.quizzes.setWordsToAsk(choice); },
                   [&context, choice = choice] { return context.quizzes.wordsToAsk() == choice; }});
        table.setAvailable(QString::fromLatin1(key), context.quizzes.canChoose(choice));
        captionId += 2;
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
    table.add({"mnuQuizContinue", 14314, "", 14315, 0, Document, [&context] { continueQuiz(context); }});
    const auto offerToContinue = [&context, &table] {
        table.setAvailable(QStringLiteral("mnuQuizContinue"), context.quizzes.leftKind().has_value());
    };
    offerToContinue();
    QObject::connect(&context.quizzes, &QuizCommands::leftKindChanged, &table, offerToContinue);
    addWordsToAsk(table, context);
    table.add({"mnuQuizOptions", 14312, "", 14313, 0, Document, [&context] { showOptions(context); }});
}
