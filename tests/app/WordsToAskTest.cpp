#include "MainWindowFixture.h"

#include "quiz/frmOva.h"
#include "resources/Pictures.h"

/// A quiz while it is open.
struct OpenQuiz
{
    frmOva &window;
    const QuizSession &session = *window.session();
    QLineEdit *box = window.findChild<QLineEdit *>("txtSvar");

    /// Types answers; "!" is the right one.
    void answer(const QStringList &answers) const
    {
        for (const QString &each : answers) {
            box->setText(each == "!" ? session.question().correctAnswer() : each);
            QTest::keyClick(box, Qt::Key_Return);
        }
    }
};

struct WordsToAskTest : MainWindowFixture
{
    frmDoc *document = nullptr;

    void SetUp() override
    {
        given = nullptr;
        MainWindowFixture::SetUp();
        document = newDocument();
        std::vector<QString> words{"English"};
        for (int row = 1; row <= 30; ++row)
            words.push_back(QString::number(row));
        document->Rutor()->setWords(std::vector(words), std::move(words), {});
        document->refreshQuizMode();
    }
    /// Opens a quiz and leaves it after the visit. How many words it asks; 0 when none starts.
    int asked(
        const char *command, const std::function<void(const OpenQuiz &)> &visit = [](const OpenQuiz &) {})
    {
        int count = 0;
        inDialog(command, [&](QDialog &dialog) {
            const OpenQuiz quiz{dynamic_cast<frmOva &>(dialog)};
            QApplication::setActiveWindow(&dialog);
            count = quiz.session.questionCount();
            visit(quiz);
        });
        return count;
    }
    QString note()
    {
        QCoreApplication::processEvents();
        return status(2).section(u'(', 1).section(u')', 0, 0);
    }
};

TEST_F(WordsToAskTest, EachChoiceAsksItsWordsAndTheButtonRepeatsTheLastKind)
{
    EXPECT_EQ(entries("mnuQuizWords").join(u' '), "All Words Selected Rows (Words Due) Words Missed (Hardest Words)");
    int count = 0, kind = 0;
    Actions actions{{"ten",
                     [this] {
                         document->select({3, 1, 12, 2});
                     }},
                    {"four", [this] { settings.setQuizOptions({.mostWords = 4}); }},
                    {"none",
                     [this] {
                         document->Rutor()->setTextMatrix(5, 1, ""), document->select({5, 1, 5, 2});
                     }},
                    {"yes", [this] { alert.answers = {AlertBox::AnswerYes}; }}};
    for (const char *key :
         {"mnuQuizStudy", "mnuQuizMultiple", "mnuQuizQA", "Quiz", "mnuWordsSelected", "mnuWordsMissed", "mnuMode5"})
        actions[key] = [&, key] { count = asked(key, [&](const OpenQuiz &quiz) { kind = quiz.window.QuizType(); }); };
    // how many words are asked, the kind of the last quiz, the picture of the button, the note, and what is asked
    const auto state = [&] {
        const QString told = alert.told().replace(u'\n', u' '),
                      button = QString::number(window->buttonPicture("Quiz") - PicturePractice);
        const QStringList parts{QString::number(std::exchange(count, 0)), QString::number(kind), button, note(), told};
        return parts.join(' ').trimmed().replace(", ", ",");
    };
    playFile(SOURCE_FOLDER "/tests/app/data/words.txt", state, actions);
    for (const int column : {1, 2})
        document->Rutor()->setTextMatrix(3, column, "é");
    asked("mnuQuizQA", [](const OpenQuiz &quiz) {
        QTest::keyClick(quiz.window.focusWidget(), Qt::Key_1, Qt::ControlModifier);
        EXPECT_EQ(quiz.box->text(), "é") << "a letter of the answers, in place of the prompt";
    });
}

TEST_F(WordsToAskTest, AQuizThatWasLeftGoesOnAsItWas)
{
    const auto canContinue = [this] { return window->commands().action("mnuQuizContinue")->isEnabled(); };
    asked("mnuQuizQA");
    EXPECT_FALSE(canContinue()) << "nothing was answered";
    asked("mnuQuizQA", [](const OpenQuiz &quiz) {
        quiz.answer({"!", "wrong", "!"});
        quiz.box->setText("half");
    });
    EXPECT_TRUE(canContinue());
    asked("mnuQuizStudy");
    frmDoc *other = newDocument();
    EXPECT_FALSE(canContinue());
    other->frame()->close();
    document->Rutor()->setWords({"", "new"}, {"", "new"}, {});
    document->setCaption("renamed");
    EXPECT_EQ(30, asked("mnuQuizContinue", [](const OpenQuiz &quiz) {
                  const QuizSession &at = quiz.session;
                  EXPECT_TRUE(at.currentQuestion() == 4 && at.correctCount() == 2 && at.errorCount() == 1);
                  EXPECT_EQ(quiz.session.question().askedWord() + quiz.box->text(), "4half");
                  EXPECT_TRUE(quiz.window.windowTitle().endsWith("renamed"));
                  quiz.answer(QStringList(27, "!"));
                  EXPECT_TRUE(quiz.session.done());
              }));
    EXPECT_EQ(window->buttonPicture("Quiz"), PictureQuestionAnswer);
    EXPECT_FALSE(canContinue()) << "it has come to its end";
}

TEST_F(WordsToAskTest, MissedWordsAreListedCopiedAskedAgainAndKept)
{
    document->Rutor()->setTextMatrix(2, 2, "zwei");
    document->Rutor()->setTextMatrix(0, 2, "German");
    settings.setQuizMode(5);
    QStringList expected;
    for (const bool keep : {false, true}) {
        document->select({1, 1, 3, 2});
        window->DoMenuClick("mnuWordsSelected");
        asked("mnuQuizQA", [&](const OpenQuiz &quiz) {
            expected.clear();
            while (!quiz.session.done()) {
                const QString word = quiz.session.question().askedWord();
                const bool missed = word == "2" || word == "zwei";
                if (missed)
                    expected += word + "\tx\t" + quiz.session.question().correctAnswer();
                quiz.answer({missed ? "x" : "!"});
            }
            quiz.window.findChild<QTableWidget *>("lstMissed")->setFocus();
            QTest::keyClick(quiz.window.focusWidget(), Qt::Key_C, Qt::ControlModifier);
            if (keep)
                QTest::mouseClick(quiz.window.findChild<QWidget *>("btnKeepMissed"), Qt::LeftButton);
        });
        EXPECT_EQ(QGuiApplication::clipboard()->text(), expected.join(u'\n'));
        window->DoMenuClick("mnuWordsMissed");
        EXPECT_EQ(note(), keep ? "missed: 0" : "missed: 1");
    }
    frmDoc *kept = documents().active();
    ASSERT_NE(kept, document);
    EXPECT_EQ(words(), "English|German, 2|zwei, |");
    EXPECT_TRUE(kept->Dirty() && kept->DocName().isEmpty() && kept->Caption().startsWith(resText(500)));
    window->documentArea()->activate(*document);
    EXPECT_EQ(note(), "missed: 1");
    EXPECT_EQ(asked("mnuQuizStudy"), 2);
}
