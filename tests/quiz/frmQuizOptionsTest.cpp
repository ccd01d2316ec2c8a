#include "quiz/frmQuizOptions.h"

#include "support/StoredSettings.h"

TEST(frmQuizOptionsTest, EveryControlChangesItsOptionOnOKOnly)
{
    StoredSettings stored;
    clsAppProperties &settings = stored.settings;
    const auto change = [&](const char *name, Qt::Key end) {
        frmQuizOptions dialog(settings, true);
        dialog.show();
        if (auto *number = dialog.findChild<QSpinBox *>(name))
            QTest::keyClicks(number, "10"); // in place of what is selected
        else
            QTest::keyClick(dialog.findChild<QCheckBox *>(name), Qt::Key_Space);
        QTest::keyClick(&dialog, end);
        EXPECT_FALSE(dialog.isVisible());
    };
    const std::pair<const char *, QuizOptions> cases[] = {
        {"txtMost", {.mostWords = 10}},
        {"chkCase", {.tolerance = {.letterCase = true}}},
        {"chkAccents", {.tolerance = {.accents = true}}},
        {"chkBlanks", {.tolerance = {.blanksAndPunctuation = true}}},
        {"chkBrackets", {.tolerance = {.brackets = true}}},
        {"chkOneOfSeveral", {.tolerance = {.oneOfSeveral = true}}},
        {"chkReadQuestion", {.readQuestion = true}},
        {"chkReadAnswer", {.readAnswer = true}},
        {"chkRemember", {.rememberAnswers = false}},
    };
    for (const auto &[name, changed] : cases) {
        settings.setQuizOptions({});
        change(name, Qt::Key_Escape);
        EXPECT_EQ(settings.quizOptions(), QuizOptions()) << name;
        change(name, Qt::Key_Return);
        EXPECT_EQ(settings.quizOptions(), changed) << name;
    }
    frmQuizOptions silent(settings, false);
    silent.show();
    EXPECT_FALSE(silent.findChild<QWidget *>("chkReadQuestion")->isVisible());
}
