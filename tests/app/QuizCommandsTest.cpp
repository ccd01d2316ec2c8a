#include "MainWindowFixture.h"

#include "quiz/frmOva.h"
#include "resources/Pictures.h"

using QuizCommandsTest = MainWindowFixture;

TEST_F(QuizCommandsTest, TheButtonRepeatsTheLastKindOfQuizOnceThereAreWords)
{
    frmDoc *document = newDocument();
    EXPECT_FALSE(inDialog("mnuQuizQA", [](QDialog &) {}));
    EXPECT_EQ(resText(12013), status(0));
    for (int row = 1; row <= 3; ++row)
        document->Rutor()->setTextMatrix(row, 1, QString::number(row));
    const std::pair<const char *, int> commands[] = {
        {"mnuQuizStudy", 0}, {"mnuQuizMultiple", 1}, {"mnuQuizQA", 2}, {"Quiz", 2}};
    for (const auto &[key, kind] : commands) {
        EXPECT_TRUE(inDialog(key, [kind = kind](QDialog &dialog) {
            EXPECT_EQ(kind, dynamic_cast<frmOva &>(dialog).QuizType());
        })) << key;
        EXPECT_EQ(PicturePractice + kind, window->buttonPicture("Quiz"));
    }
}

TEST_F(QuizCommandsTest, TheDialogsTellTheStatusBar)
{
    newDocument();
    // Away from the menu bar, which restores "Ready" when the pointer leaves it for a dialog.
    QTest::mouseMove(window.get(), window->rect().center());
    EXPECT_TRUE(inDialog("mnuVocabularyLanguage", [this](QDialog &) { EXPECT_EQ(resText(504), status(0)); }));
    EXPECT_EQ(resText(506), status(0));
    EXPECT_TRUE(inDialog("mnuHelpAbout", [this](QDialog &about) {
        EXPECT_EQ(resText(504), status(0));
        QApplication::setActiveWindow(&about);
        about.findChild<QToolButton *>("imgLink1")->setFocus();
        EXPECT_EQ(resText(2002), status(0));
        about.findChild<QPushButton *>("btnOK")->setFocus();
        EXPECT_EQ(resText(506), status(0));
    }));
}
