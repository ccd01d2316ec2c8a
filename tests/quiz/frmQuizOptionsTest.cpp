#include "quiz/frmQuizOptions.h"

#include "support/StoredSettings.h"

TEST(frmQuizOptionsTest, EveryControlChangesItsOptionOnOKOnly)
{
    StoredSettings stored;
    QuizOptions expected;
    AnswerTolerance &forgiven = expected.tolerance;
    const std::pair<const char *, bool *> boxes[] = {{"txtMost", nullptr},
                                                     {"chkCase", &forgiven.letterCase},
                                                     {"chkAccents", &forgiven.accents},
                                                     {"chkBlanks", &forgiven.blanksAndPunctuation},
                                                     {"chkBrackets", &forgiven.brackets},
                                                     {"chkOneOfSeveral", &forgiven.oneOfSeveral},
                                                     {"chkReadQuestion", &expected.readQuestion},
                                                     {"chkReadAnswer", &expected.readAnswer},
                                                     {"chkRemember", &expected.rememberAnswers}};
    for (const auto &[name, option] : boxes) {
        for (const Qt::Key end : {Qt::Key_Escape, Qt::Key_Return}) {
            frmQuizOptions dialog(stored.settings, true);
            dialog.show();
            // in place of the number that is selected
            QTest::keyClicks(dialog.findChild<QWidget *>(name), option ? " " : "10");
            if (end == Qt::Key_Return)
                option ? void(*option = !*option) : void(expected.mostWords = 10);
            QTest::keyClick(&dialog, end);
            EXPECT_TRUE(!dialog.isVisible() && stored.settings.quizOptions() == expected) << name;
        }
    }
    frmQuizOptions silent(stored.settings, false);
    silent.show();
    EXPECT_FALSE(silent.findChild<QWidget *>("chkReadQuestion")->isVisible());
    EXPECT_EQ(u"10", silent.findChild<QSpinBox *>("txtMost")->text());
}
