#include "tools/frmCheck.h"

#include "document/EditCommands.h"
#include "support/OpenDocument.h"

using Words = OpenDocument::Words;

struct Checking : ::testing::Test, OpenDocument
{
    Checking()
        : OpenDocument(Words{{"a", "1"}, {"b ", "2"}, {"a", "1"}, {"c  c", " 3"}, {"(d", "4"}})
    {
        dialog.show();
    }
    void click(const char *button) { QTest::mouseClick(dialog.findChild<QPushButton *>(button), Qt::LeftButton); }
    QString line() { return list.currentIndex().data().toString(); }
    GridSelection selection() { return document.selection(); }

    EditCommands commands{undo, *QGuiApplication::clipboard()};
    frmCheck dialog{document, {commands, undo}, &window};
    QListView &list = *dialog.findChild<QListView *>();
};

TEST_F(Checking, GoesThroughTheFindingsAndSelectsTheirCells)
{
    const std::pair<const char *, GridSelection> lines[] = {
        {"Row 2: blanks at the edge, or several together: 'b␣'", {2, 1, 2, 1}},
        {"Row 3: the same pair stands in row 1: a - 1", {3, 1, 3, 1}},
        {"Row 4: blanks at the edge, or several together: 'c␣␣c'", {4, 1, 4, 1}},
        {"Row 4: blanks at the edge, or several together: '␣3'", {4, 2, 4, 2}},
        {"Row 5: a bracket that does not open or close: '(d'", {5, 1, 5, 1}},
    };
    for (int round = 0; round < 2; ++round) {
        for (const auto &[text, cell] : lines) {
            EXPECT_EQ(line(), text);
            EXPECT_EQ(selection(), cell);
            QTest::keyClick(&dialog, Qt::Key_Return);
        }
    }
    document.setDirty(false);
    QTest::keyClick(&dialog, Qt::Key_Escape);
    EXPECT_FALSE(document.Dirty());
    EXPECT_FALSE(dialog.isVisible());
}

TEST_F(Checking, MendsWhatIsSafeInOneUndoStepEach)
{
    const Words before = words();
    click("btnTrim");
    EXPECT_EQ(words()[1], (Words::value_type{"b", "2"}));
    commands.Undo(document);
    EXPECT_EQ(words(), before);
    QTest::keyClick(&list, Qt::Key_Home); // undone outside the dialog
    click("btnTrimAll");
    EXPECT_EQ(words(), (Words{{"a", "1"}, {"b", "2"}, {"a", "1"}, {"c c", "3"}, {"(d", "4"}, {"", ""}}));
    commands.Undo(document);
    EXPECT_EQ(words(), before);
    document.setDirty(false);
    dialog.workOn(document);
    click("btnNext");
    click("btnRemove");
    EXPECT_EQ(words(), (Words{{"a", "1"}, {"b ", "2"}, {"c  c", " 3"}, {"(d", "4"}, {"", ""}}));
    EXPECT_TRUE(document.Dirty());
    commands.Undo(document);
    EXPECT_EQ(words(), before);
    dialog.leaveDocument();
    EXPECT_EQ(list.model()->rowCount(), 0);
    click("btnNext");
}
