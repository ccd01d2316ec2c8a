#include "MainWindowFixture.h"

#include "document/GridContent.h"
#include "document/rules/Vocabulary.h"
#include "quiz/frmOva.h"
#include "widgets/LetterRow.h"

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
    /// How many words a quiz asks; 0 when none starts.
    int asked(const char *command)
    {
        int count = 0;
        inDialog(command,
                 [&count](QDialog &dialog) { count = dynamic_cast<frmOva &>(dialog).session()->questionCount(); });
        return count;
    }
    QString note()
    {
        QCoreApplication::processEvents();
        return status(2).section(u'(', 1).section(u')', 0, 0);
    }
};

TEST_F(WordsToAskTest, TheMenuOffersAllWordsAtFirstAndWithoutAMemoryNoneThatItWouldKnow)
{
    EXPECT_EQ(entries("mnuQuizWords").join(u' '), "All Words Selected Rows (Words Due) Words Missed (Hardest Words)");
    for (const char *chosen : {"mnuWordsAll", "mnuWordsSelected", "mnuWordsMissed"}) {
        window->DoMenuClick(chosen);
        Q_EMIT menu("mnuQuiz")->aboutToShow();
        for (const QAction *entry : menu("mnuQuizWords")->actions())
            EXPECT_EQ(entry->isChecked(), entry->objectName() == chosen) << chosen;
    }
    document->Rutor()->setEditMode(true);
    Q_EMIT menu("mnuQuiz")->aboutToShow();
    EXPECT_FALSE(menu("mnuQuizWords")->menuAction()->isEnabled());
}

TEST_F(WordsToAskTest, SelectedRowsAreCountedAndAsked)
{
    const QString mode = status(2);
    EXPECT_EQ(asked("mnuQuizStudy"), 30);
    window->DoMenuClick("mnuWordsSelected");
    document->select({3, 1, 12, 2});
    EXPECT_EQ(note(), "selected: 10");
    EXPECT_TRUE(status(2).startsWith(mode));
    EXPECT_EQ(asked("mnuQuizMultiple"), 10);
    window->DoMenuClick("mnuMode5");
    EXPECT_EQ(note(), "selected: 10");
    settings.setQuizOptions({.mostWords = 4});
    EXPECT_EQ(asked("mnuQuizQA"), 8);
    frmDoc *other = newDocument();
    EXPECT_EQ(note(), "selected: 0");
    window->documentArea()->activate(*document);
    EXPECT_EQ(note(), "selected: 10");
    other->frame()->close();
    window->DoMenuClick("mnuWordsAll");
    EXPECT_EQ(note(), "");
    EXPECT_EQ(asked("mnuQuizQA"), 8);
}

TEST_F(WordsToAskTest, WhereNoChosenWordIsLeftAllAreOffered)
{
    document->Rutor()->setTextMatrix(5, 1, "");
    for (const auto &[choice, text] : {std::pair("mnuWordsSelected", 14320), {"mnuWordsMissed", 14322}}) {
        document->select({5, 1, 5, 2});
        window->DoMenuClick(choice);
        for (const bool all : {false, true}) {
            alert.shown.clear();
            alert.answers = {all ? AlertBox::AnswerYes : AlertBox::AnswerNo};
            EXPECT_EQ(asked("mnuQuizStudy"), all ? 29 : 0);
            EXPECT_EQ(alert.onlyPrompt(), resText(text));
            EXPECT_EQ(note().isEmpty(), all);
        }
    }
    document->Rutor()->setWords({"", "1", "2"}, {"", "1", "2"}, {});
    window->DoMenuClick("mnuWordsMissed");
    alert.shown.clear();
    EXPECT_EQ(asked("mnuQuizMultiple"), 0);
    EXPECT_TRUE(alert.shown.empty()) << "all of them are too few too";
    EXPECT_EQ(status(0), resText(12013));
}

struct LeftQuizTest : WordsToAskTest
{
    /// Types answers into a quiz; "!" is the right one.
    static void answer(QDialog &dialog, const QStringList &answers)
    {
        const QuizSession &session = *dynamic_cast<frmOva &>(dialog).session();
        auto *box = dialog.findChild<QLineEdit *>("txtSvar");
        for (const QString &each : answers) {
            box->setText(each == "!" ? session.question().correctAnswer() : each);
            QTest::keyClick(box, Qt::Key_Return);
        }
    }
    bool canContinue() { return window->commands().action("mnuQuizContinue")->isEnabled(); }
};

TEST_F(LeftQuizTest, AQuizThatWasLeftGoesOnAsItWas)
{
    EXPECT_FALSE(canContinue());
    inDialog("mnuQuizQA", [](QDialog &) {});
    EXPECT_FALSE(canContinue()) << "nothing was answered";
    inDialog("mnuQuizQA", [](QDialog &dialog) {
        answer(dialog, {"!", "wrong", "!"});
        dialog.findChild<QLineEdit *>("txtSvar")->setText("half");
    });
    EXPECT_TRUE(canContinue());
    inDialog("mnuQuizStudy", [](QDialog &) {});
    frmDoc *other = newDocument();
    EXPECT_FALSE(canContinue());
    other->frame()->close();
    document->Rutor()->setWords({"", "new"}, {"", "new"}, {});
    document->setCaption("renamed");
    EXPECT_TRUE(inDialog("mnuQuizContinue", [](QDialog &dialog) {
        const QuizSession &session = *dynamic_cast<frmOva &>(dialog).session();
        EXPECT_EQ(session.currentQuestion(), 4);
        EXPECT_EQ(session.question().askedWord(), "4");
        EXPECT_EQ(std::pair(session.correctCount(), session.errorCount()), std::pair(2, 1));
        EXPECT_EQ(dialog.findChild<QLineEdit *>("txtSvar")->text(), "half");
        EXPECT_TRUE(dialog.windowTitle().endsWith("renamed"));
        answer(dialog, QStringList(27, "!"));
        EXPECT_TRUE(session.done());
    }));
    EXPECT_FALSE(canContinue()) << "it has come to its end";
}

TEST_F(LeftQuizTest, MissedWordsAreListedCopiedAskedAgainAndKept)
{
    document->Rutor()->setTextMatrix(2, 2, "zwei");
    document->Rutor()->setTextMatrix(0, 2, "German");
    document->Rutor()->setGridFont(QFont("Arial", 20));
    settings.setQuizMode(5);
    QStringList expected;
    for (const bool keep : {false, true}) {
        document->select({1, 1, 3, 2});
        window->DoMenuClick("mnuWordsSelected");
        inDialog("mnuQuizQA", [&](QDialog &dialog) {
            const QuizSession &session = *dynamic_cast<frmOva &>(dialog).session();
            expected.clear();
            while (!session.done()) {
                const bool second = session.question().askedWord() == "2" || session.question().askedWord() == "zwei";
                if (second)
                    expected += session.question().askedWord() + "\tx\t" + session.question().correctAnswer();
                answer(dialog, {second ? "x" : "!"});
            }
            QApplication::setActiveWindow(&dialog);
            dialog.findChild<QTableWidget *>("lstMissed")->setFocus();
            QTest::keyClick(dialog.focusWidget(), Qt::Key_C, Qt::ControlModifier);
            if (keep)
                QTest::mouseClick(dialog.findChild<QWidget *>("btnKeepMissed"), Qt::LeftButton);
        });
        EXPECT_EQ(expected.size(), 2) << "both ways";
        EXPECT_EQ(QGuiApplication::clipboard()->text(), expected.join(u'\n'));
        window->DoMenuClick("mnuWordsMissed");
        EXPECT_EQ(note(), keep ? "missed: 0" : "missed: 1");
    }
    frmDoc *kept = documents().active();
    ASSERT_NE(kept, document);
    const Vocabulary words = GridContent::read(*kept->Rutor());
    EXPECT_EQ(words.first, (std::vector<QString>{"English", "2", ""}));
    EXPECT_EQ(words.second, (std::vector<QString>{"German", "zwei", ""}));
    EXPECT_EQ(kept->Rutor()->Font().pointSize(), 20);
    EXPECT_TRUE(kept->Dirty() && kept->DocName().isEmpty() && kept->Caption().startsWith(resText(500)));
    window->documentArea()->activate(*document);
    EXPECT_EQ(note(), "missed: 1");
    EXPECT_EQ(asked("mnuQuizStudy"), 2);
}

using LettersTest = LeftQuizTest;

TEST_F(LettersTest, LettersOfTheAnswersColumnStandBelowTheAnswerAndOnWishBelowTheGrid)
{
    document->Rutor()->setTextMatrix(1, 1, "ñ");
    document->Rutor()->setTextMatrix(2, 2, "é");
    const auto shown = [](const QWidget &place) {
        QString letters;
        for (const LetterRow *row : place.findChildren<LetterRow *>()) {
            for (const QToolButton *button : row->findChildren<QToolButton *>())
                letters += row->isVisible() ? button->text() : QString();
        }
        return letters;
    };
    settings.setQuizMode(2);
    inDialog("mnuQuizQA", [&](QDialog &dialog) {
        EXPECT_EQ(shown(dialog), "ñ");
        QApplication::setActiveWindow(&dialog);
        QTest::keyClick(dialog.focusWidget(), Qt::Key_1, Qt::ControlModifier);
        EXPECT_EQ(dialog.findChild<QLineEdit *>("txtSvar")->text(), "ñ") << "in place of the prompt";
    });
    EXPECT_EQ(shown(*document), "");
    window->DoMenuClick("mnuVocabularyLetters");
    EXPECT_TRUE(settings.ShowLetters());
    QCoreApplication::processEvents();
    document->select({3, 1, 3, 1});
    EXPECT_EQ(shown(*document), "ñ");
    document->select({3, 2, 3, 2});
    EXPECT_EQ(shown(*document), "é");
    for (int i = 0; i < 2; ++i)
        QTest::mouseClick(document->findChild<LetterRow *>()->findChild<QToolButton *>(), Qt::LeftButton);
    EXPECT_EQ(document->Rutor()->EditText(), "éé");
    document->endEdit();
    EXPECT_EQ(document->Rutor()->TextMatrix(3, 2), "éé");
    EXPECT_TRUE(document->Dirty());
    EXPECT_EQ(undo.kind(), UndoKind::Entry);
    window->DoMenuClick("mnuVocabularyLetters");
    EXPECT_EQ(shown(*document), "");
}
