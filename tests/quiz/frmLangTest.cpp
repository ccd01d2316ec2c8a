#include "quiz/frmLang.h"

#include "support/OpenDocument.h"

struct frmLangTest : ::testing::Test, OpenDocument
{
    /// Opens the dialog and gives it keys.
    void type(const std::function<void(frmLang &)> &keys)
    {
        frmLang dialog(document);
        dialog.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
        keys(dialog);
        EXPECT_FALSE(dialog.isVisible());
    }
    QString names() const { return document.language(1) + u'|' + document.language(2); }
};

TEST_F(frmLangTest, NamesAreWrittenAsTypedAndAnEmptyBoxKeepsItsName)
{
    type([](frmLang &dialog) {
        // The box that has the focus is selected as a whole, so typing replaces its name.
        QTest::keyClicks(dialog.focusWidget(), " Old English");
        QMenu menu(dialog.focusWidget());
        menu.popup({});
        menu.close();
        QCoreApplication::processEvents();
        QTest::keyClicks(dialog.focusWidget(), " ");
        QTest::keyClick(dialog.focusWidget(), Qt::Key_2, Qt::AltModifier);
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Delete);
        QTest::keyClick(dialog.focusWidget(), Qt::Key_1, Qt::AltModifier);
        QTest::keyClicks(dialog.focusWidget(), "Old"); // at once
        QCoreApplication::processEvents();
        QTest::keyClicks(dialog.focusWidget(), " English ");
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
    });
    EXPECT_EQ(u"Old English |Language 2", names());
    EXPECT_TRUE(document.Dirty());
    EXPECT_EQ(u"Old English  -> Language 2 In Order", status.text(2));
}

TEST_F(frmLangTest, TheListOfNamesIsForTheTakingAndLeavesWhatIsTyped)
{
    const struct
    {
        const char *typed;
        QList<Qt::Key> keys;
        const char *name;
    } cases[] = {{"germ", {Qt::Key_Down, Qt::Key_Return}, "German"},
                 {"fren", {Qt::Key_Escape}, "fren"},
                 {"Meaning", {Qt::Key_Escape}, "Meaning"}}; // all names, since none begins so
    for (const auto &[typed, keys, name] : cases) {
        type([typed = typed, keys = keys](frmLang &dialog) {
            QWidget *box = dialog.focusWidget();
            QTest::keyClicks(box, typed);
            QTest::keyClick(box, Qt::Key_Down);
            ASSERT_TRUE(QApplication::activePopupWidget());
            for (const Qt::Key key : keys)
                QTest::keyClick(QApplication::activePopupWidget(), key);
            EXPECT_FALSE(QApplication::activePopupWidget());
            QTest::keyClick(box, Qt::Key_Return);
        });
        EXPECT_EQ(QString(name), document.language(1));
    }
}

TEST_F(frmLangTest, EscapeWritesNothingAndOkMarksTheDocumentChanged)
{
    type([](frmLang &dialog) {
        QTest::keyClicks(dialog.focusWidget(), "x");
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Escape);
    });
    EXPECT_FALSE(document.Dirty());
    type([](frmLang &dialog) { QTest::keyClick(dialog.focusWidget(), Qt::Key_Return); });
    EXPECT_TRUE(document.Dirty());
    EXPECT_EQ(u"Language 1|Language 2", names());
}
