#include "tools/frmCheck.h"

#include "document/ctlGridEdit.h"
#include "support/OpenDocument.h"

struct Checking : ::testing::Test, OpenDocument
{
    Checking()
        : OpenDocument(Words{{"a", "1"}, {"b ", "2"}, {"a", "1"}, {"c  c", " 3"}, {"сd", "4"}, {"", "5"}, {"b", "6"}})
    {
        dialog.show();
    }

    frmCheck dialog{document, {commands, undo}, &window};
    QListView &list = *dialog.findChild<QListView *>();
    QAbstractItemModelTester tester{list.model(), QAbstractItemModelTester::FailureReportingMode::Fatal};
};

TEST_F(Checking, GoesThroughTheFindingsAndSelectsTheirCells)
{
    window.resize(600, 500);
    // the current line, what the dialog shows, the selected cell, and whether the dialog stands beside it
    const auto state = [this] {
        const GridSelection at = document.selection();
        const bool beside =
            dialog.frameGeometry().bottomRight() + QPoint(0, 27) == window.frameGeometry().bottomRight();
        QString text = list.currentIndex().data().toString() + " | " + shown(dialog);
        text += QString(" | %1-%2").arg(at.Row).arg(at.Col) + (beside ? " beside" : "");
        return text.replace(", ", ",");
    };
    playFile(SOURCE_FOLDER "/tests/tools/data/findings.txt", state,
             {{"cover", [this] { dialog.move(window.pos()); }},
              {"aside", [this] { dialog.move(window.mapToGlobal(QPoint(400, 200))); }},
              {"Return", [this] { QTest::keyClick(&dialog, Qt::Key_Return); }}});
    window.setFocus();
    QTest::keyClick(&dialog, Qt::Key_Escape);
    EXPECT_TRUE(!dialog.isVisible() && window.focusWidget() == grid.focusProxy());
    OpenDocument other(Words{{"", "x"}});
    other.select(2, 1, 2, 1);
    dialog.workOn(other.document);
    EXPECT_EQ(list.currentIndex().data(), "Row 1: 'x' has no counterpart");
    EXPECT_EQ(other.document.selection(), (GridSelection{2, 1, 2, 1})) << "it is not shown";
}

TEST_F(Checking, MendsWhatIsSafeInTheLatestStateInOneUndoStepEach)
{
    const auto comes = [](QWidget &next) { return next.activateWindow(), QTest::qWaitForWindowActive(&next); };
    const Actions actions = {
        {"undo", [this] { commands.Undo(document), document.setDirty(false); }},
        {"work", [this] { dialog.workOn(document); }},
        {"leave", [this] { dialog.leaveDocument(); }},
        {"mend", [this] { grid.setTextMatrix(2, 1, "b"); }},
        {"spoil", [this] { grid.setTextMatrix(6, 2, "5 "); }},
        {"edit", [this] { grid.Select(1, 1, 1, 1), grid.GridEdit(0), grid.hwndText()->setText(" "); }},
        {"return", [&] { EXPECT_TRUE(comes(window) && comes(dialog)); }},
    };
    // the current line of how many, - where there is no next one, and the words
    const auto state = [this] {
        QString text = QString("%1/%2").arg(list.currentIndex().row()).arg(list.model()->rowCount());
        text += dialog.findChild<QPushButton *>("btnNext")->isEnabled() ? "" : "-";
        for (const auto &row : words())
            text += ' ' + row[0] + row[1];
        return text + (document.Dirty() ? "*" : "");
    };
    playFile(SOURCE_FOLDER "/tests/tools/data/check.txt", state, actions, &dialog);
}
