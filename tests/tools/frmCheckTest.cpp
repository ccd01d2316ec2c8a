#include "tools/frmCheck.h"

#include "document/EditCommands.h"
#include "support/OpenDocument.h"
#include "support/Shown.h"
#include "widgets/grid/FlexGridView.h"

using Words = OpenDocument::Words;

struct Checking : ::testing::Test, OpenDocument
{
    Checking()
        : OpenDocument(Words{{"a", "1"}, {"b ", "2"}, {"a", "1"}, {"c  c", " 3"}, {"(d", "4"}, {"", "5"}})
    {
        dialog.show();
    }
    void click(const char *button) { QTest::mouseClick(dialog.findChild<QPushButton *>(button), Qt::LeftButton); }

    EditCommands commands{undo, *QGuiApplication::clipboard()};
    frmCheck dialog{document, {commands, undo}, &window};
    QListView &list = *dialog.findChild<QListView *>();
    const FlexGridView &view = *grid.hwndGrid();
    const Words before = words();
};

TEST_F(Checking, GoesThroughTheFindingsAndSelectsTheirCells)
{
    const std::tuple<const char *, const char *, GridSelection> lines[] = {
        {"Row 2: blanks at the edge, or several together: 'b␣'", "&Trim | Trim &All | (&Remove Row)", {2, 1, 2, 1}},
        {"Row 3: the same pair stands in row 1: a - 1", "(&Trim) | Trim &All | &Remove Row", {3, 1, 3, 1}},
        {"Row 4: blanks at the edge, or several together: 'c␣␣c'", "&Trim | Trim &All | (&Remove Row)", {4, 1, 4, 1}},
        {"Row 4: blanks at the edge, or several together: '␣3'", "&Trim | Trim &All | (&Remove Row)", {4, 2, 4, 2}},
        {"Row 5: a bracket that does not open or close: '(d'", "(&Trim) | Trim &All | (&Remove Row)", {5, 1, 5, 1}},
        {"Row 6: '5' has no counterpart", "(&Trim) | Trim &All | (&Remove Row)", {6, 1, 6, 1}},
    };
    for (int round = 0; round < 2; ++round) {
        for (const auto &[text, buttons, cell] : lines) {
            EXPECT_EQ(list.currentIndex().data(), text);
            EXPECT_EQ(shown(dialog).toStdString(),
                      QString("Check | What &looks wrong: 6 | ? | &Next | %1 | &Close").arg(buttons).toStdString());
            EXPECT_EQ(document.selection(), cell);
            dialog.move(view.viewport()->mapToGlobal(QPoint()));
            QTest::keyClick(&dialog, Qt::Key_Return);
            EXPECT_FALSE(dialog.frameGeometry().contains(view.viewport()->mapToGlobal(
                view.cellRect(document.selection().Row, document.selection().Col).center())))
                << text;
        }
    }
    document.setDirty(false);
    QTest::keyClick(&dialog, Qt::Key_Escape);
    EXPECT_FALSE(document.Dirty());
    EXPECT_FALSE(dialog.isVisible());
}

TEST_F(Checking, MendsWhatIsSafeInOneUndoStepEach)
{
    const std::tuple<const char *, int, Words> steps[] = {
        {"btnTrim", 0, {before[0], {"b", "2"}, before[2], before[3], before[4], before[5], {}}},
        {"btnTrimAll", 0, {before[0], {"b", "2"}, before[2], {"c c", "3"}, before[4], before[5], {}}},
        {"btnRemove", 1, {before[0], before[1], before[3], before[4], before[5], {}}}};
    for (const auto &[button, line, mended] : steps) {
        document.setDirty(false);
        dialog.workOn(document);
        if (line == 1)
            click("btnNext");
        click(button);
        EXPECT_EQ(words(), mended);
        EXPECT_EQ(list.currentIndex().row(), line);
        EXPECT_TRUE(document.Dirty());
        commands.Undo(document);
        EXPECT_EQ(words(), before);
    }
    dialog.workOn(document);
    grid.setTextMatrix(2, 1, "b"); // outside the dialog
    click("btnTrim");
    EXPECT_EQ(undo.kind(), UndoKind::None);
    EXPECT_EQ(list.model()->rowCount(), 5);
    grid.setTextMatrix(1, 1, " ");
    for (QWidget *active : {&window, static_cast<QWidget *>(&dialog)}) {
        active->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(active));
    }
    EXPECT_EQ(list.model()->rowCount(), 6) << "looked through again";
    dialog.leaveDocument();
    EXPECT_EQ(list.model()->rowCount(), 0);
    click("btnNext");
}
