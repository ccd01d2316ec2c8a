#include "MainWindowFixture.h"

#include "document/ctlGrid.h"
#include "quiz/frmLang.h"
#include "quiz/frmOva.h"
#include "quiz/frmSplash.h"
#include "resources/Pictures.h"
#include "resources/StringTable.h"
#include "services/modSBFunc.h"

namespace {

struct QuizCommandsTest : MainWindowFixture
{
    /// Runs a command and, as soon as it has opened a dialog of that class, looks at the dialog and closes it.
    template <class Dialog> bool opens(const char *key, const std::function<void(Dialog &)> &look)
    {
        bool opened = false;
        QTimer::singleShot(0, window.get(), [&] {
            auto *dialog = qobject_cast<Dialog *>(QApplication::activeModalWidget());
            opened = dialog != nullptr;
            if (dialog)
                look(*dialog);
            if (QWidget *open = QApplication::activeModalWidget())
                open->close();
        });
        window->DoMenuClick(QLatin1String(key));
        QCoreApplication::processEvents();
        return opened;
    }
    QString status(int panel) { return window->context().status.text(panel); }
};

} // namespace

TEST_F(QuizCommandsTest, AQuizAsksTheActiveDocumentAndHandsItBack)
{
    frmDoc *document = newDocument();
    for (int row = 1; row <= 3; ++row)
        document->Rutor()->setTextMatrix(row, 1, QString::number(row));
    const std::pair<const char *, int> commands[] = {
        {"mnuQuizStudy", 0}, {"mnuQuizMultiple", 1}, {"mnuQuizQA", 2}, {"Quiz", 2}};
    for (const auto &[key, kind] : commands) {
        SCOPED_TRACE(key);
        EXPECT_TRUE(opens<frmOva>(key, [&](frmOva &quiz) {
            EXPECT_EQ(kind, quiz.QuizType());
            EXPECT_EQ(3, quiz.session()->questionCount());
            EXPECT_TRUE(document->frame()->isMinimized());
        }));
        EXPECT_FALSE(document->frame()->isMinimized());
        EXPECT_EQ(document, documents().active());
        EXPECT_EQ(PicturePractice + kind, window->buttonPicture(QStringLiteral("Quiz")));
    }
}

TEST_F(QuizCommandsTest, WithoutWordsNoQuizOpens)
{
    newDocument();
    EXPECT_FALSE(opens<frmOva>("mnuQuizQA", [](frmOva &) {}));
    EXPECT_EQ(resText(12013), status(0));
}

TEST_F(QuizCommandsTest, TheDialogsTellTheStatusBar)
{
    newDocument();
    // Away from the menu bar, which restores "Ready" when the pointer leaves it for a dialog.
    QTest::mouseMove(window.get(), window->rect().center());
    EXPECT_TRUE(opens<frmLang>("mnuVocabularyLanguage", [this](frmLang &) { EXPECT_EQ(resText(504), status(0)); }));
    EXPECT_EQ(resText(506), status(0));
    EXPECT_TRUE(opens<frmSplash>("mnuHelpAbout", [this](frmSplash &about) {
        EXPECT_EQ(resText(504), status(0));
        Q_EMIT about.linkHovered(resText(2001));
        EXPECT_EQ(resText(2001), status(0));
        Q_EMIT about.statusRequested(506);
        EXPECT_EQ(resText(506), status(0));
    }));
}
