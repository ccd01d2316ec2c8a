#include "MainWindowFixture.h"

#include "quiz/frmOva.h"

struct WordsToAskTest : MainWindowFixture
{
    frmDoc *document = nullptr;

    void SetUp() override
    {
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
