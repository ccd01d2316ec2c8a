#include "quiz/frmLang.h"

#include "support/OpenDocument.h"

struct frmLangTest : ::testing::Test, OpenDocument
{
    /// Opens the dialog and gives it keys and, after "=", texts, until it closes; "menu" is a context menu that comes
    /// and goes, "wait" lets the program catch up.
    void type(const QString &acts)
    {
        frmLang dialog(document);
        dialog.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
        for (const QString &act : acts.split(u'|')) {
            QWidget *popup = QApplication::activePopupWidget();
            QWidget *target = popup ? popup : dialog.focusWidget();
            if (act == "menu") {
                QMenu menu(target);
                menu.popup({});
                menu.close();
            }
            if (act == "menu" || act == "wait")
                QCoreApplication::processEvents();
            else if (act[0] == u'=')
                QTest::keyClicks(target, act.mid(1));
            else
                QTest::keyClick(target, QKeySequence(act)[0].key(), QKeySequence(act)[0].keyboardModifiers());
        }
        EXPECT_FALSE(dialog.isVisible() || QApplication::activePopupWidget()) << acts.toStdString();
    }
    QString names() const { return document.language(1) + u'|' + document.language(2); }
};

TEST_F(frmLangTest, NamesAreWrittenAsTypedAndAnEmptyBoxKeepsItsName)
{
    type("=x|Esc");
    EXPECT_FALSE(document.Dirty());
    type("Return");
    EXPECT_TRUE(document.Dirty());
    EXPECT_EQ(u"Language 1|Language 2", names());
    // The box that gets the focus is selected as a whole, so typing replaces its name, also at once.
    type("= Old English|menu|= |Alt+2|Del|Alt+1|=Old|wait|= English |Return");
    EXPECT_EQ(u"Old English |Language 2", names());
    EXPECT_EQ(u"Old English  -> Language 2 In Order", status.text(2));
}

TEST_F(frmLangTest, TheListOfNamesIsForTheTakingAndLeavesWhatIsTyped)
{
    const std::pair<const char *, const char *> cases[] = {
        {"=germ|Down|Down|Return|Return", "German"},
        {"=ge|Down|=rm|Down|Return|Return", "German"}, // the list follows what is typed
        {"=fren|Down|Esc|Return", "fren"},
        {"=Meaning|Down|Down|Return|Return", "Afrikaans"}, // all names, since none begins so
    };
    for (const auto &[acts, name] : cases) {
        type(acts);
        EXPECT_EQ(QString(name), document.language(1)) << acts;
    }
}
