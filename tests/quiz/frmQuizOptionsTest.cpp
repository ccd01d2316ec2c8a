#include "quiz/frmQuizOptions.h"

#include "support/StoredSettings.h"

TEST(frmQuizOptionsTest, EveryControlChangesItsOptionOnOKOnly)
{
    StoredSettings stored;
    QuizOptions expected;
    const std::pair<const char *, std::function<void()>> cases[] = {
        {"txtMost", [&] { expected.mostWords = 10; }},
        {"chkCase", [&] { expected.tolerance.letterCase = true; }},
        {"chkAccents", [&] { expected.tolerance.accents = true; }},
        {"chkBlanks", [&] { expected.tolerance.blanksAndPunctuation = true; }},
        {"chkBrackets", [&] { expected.tolerance.brackets = true; }},
        {"chkOneOfSeveral", [&] { expected.tolerance.oneOfSeveral = true; }},
        {"chkReadQuestion", [&] { expected.readQuestion = true; }},
        {"chkReadAnswer", [&] { expected.readAnswer = true; }},
        {"chkRemember", [&] { expected.rememberAnswers = false; }},
    };
    for (const auto &[name, change] : cases) {
        for (const Qt::Key end : {Qt::Key_Escape, Qt::Key_Return}) {
            frmQuizOptions dialog(stored.settings, true);
            dialog.show();
            auto *control = dialog.findChild<QWidget *>(name);
            // in place of the number that is selected
            QTest::keyClicks(control, qobject_cast<QSpinBox *>(control) ? "10" : " ");
            if (end == Qt::Key_Return)
                change();
            QTest::keyClick(&dialog, end);
            EXPECT_FALSE(dialog.isVisible());
            EXPECT_EQ(stored.settings.quizOptions(), expected) << name;
        }
    }
    frmQuizOptions silent(stored.settings, false);
    silent.show();
    EXPECT_FALSE(silent.findChild<QWidget *>("chkReadQuestion")->isVisible());
    EXPECT_EQ(u"10", silent.findChild<QSpinBox *>("txtMost")->text());
}
