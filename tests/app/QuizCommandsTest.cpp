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
