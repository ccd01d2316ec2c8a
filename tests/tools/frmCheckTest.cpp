#include "tools/frmCheck.h"

#include "document/ctlGridEdit.h"
#include "support/OpenDocument.h"

struct Checking : ::testing::Test, OpenDocument
{
    Checking()
        : OpenDocument(Words{{"a", "1"}, {"b ", "2"}, {"a", "1"}, {"c  c", " 3"}, {"сd", "4"}, {"", "5"}})
    {
        dialog.show();
    }

    frmCheck dialog{document, {commands, undo}, &window};
    QListView &list = *dialog.findChild<QListView *>();
    QAbstractItemModelTester tester{list.model(), QAbstractItemModelTester::FailureReportingMode::Fatal};
};

TEST_F(Checking, GoesThroughTheFindingsAndSelectsTheirCells)
{
    const std::tuple<const char *, const char *, GridSelection> lines[] = {
        {"Row 2: blanks at the edge, or several together: 'b␣'", "&Trim | Trim &All | (&Remove Row)", {2, 1, 2, 1}},
        {"Row 3: the same pair stands in row 1: a - 1", "(&Trim) | Trim &All | &Remove Row", {3, 1, 3, 1}},
        {"Row 4: blanks at the edge, or several together: 'c␣␣c'", "&Trim | Trim &All | (&Remove Row)", {4, 1, 4, 1}},
        {"Row 4: blanks at the edge, or several together: '␣3'", "&Trim | Trim &All | (&Remove Row)", {4, 2, 4, 2}},
        {"Row 5: letters of two scripts in the word 'сd': с", "(&Trim) | Trim &All | (&Remove Row)", {5, 1, 5, 1}},
        {"Row 6: '5' has no counterpart", "(&Trim) | Trim &All | (&Remove Row)", {6, 1, 6, 1}},
    };
    for (int round = 0; round < 2; ++round) {
        for (const auto &[text, buttons, cell] : lines) {
            EXPECT_EQ(list.currentIndex().data(), text);
            EXPECT_EQ(shown(dialog).toStdString(),
                      QString("Check | What &looks wrong: 6 | ? | &Next | %1 | &Close").arg(buttons).toStdString());
            EXPECT_EQ(document.selection(), cell);
            const QPoint place = window.mapToGlobal(round ? QPoint(400, 200) : QPoint());
            dialog.move(place);
            QTest::keyClick(&dialog, Qt::Key_Return);
            EXPECT_EQ(dialog.pos() == place, round == 1) << "it moves where it would hide the cell";
        }
    }
    window.setFocus();
    QTest::keyClick(&dialog, Qt::Key_Escape);
    EXPECT_TRUE(!dialog.isVisible() && window.focusWidget() == grid.focusProxy());
    select(1, 1, 1, 1);
    dialog.workOn(document);
    EXPECT_EQ(document.selection(), (GridSelection{1, 1, 1, 1})) << "it is not shown";
}

TEST_F(Checking, MendsWhatIsSafeInTheLatestStateInOneUndoStepEach)
{
    const Actions actions = {
        {"undo", [this] { commands.Undo(document), document.setDirty(false); }},
        {"work", [this] { dialog.workOn(document); }},
        {"leave", [this] { dialog.leaveDocument(); }},
        {"mend", [this] { grid.setTextMatrix(2, 1, "b"); }},
        {"spoil", [this] { grid.setTextMatrix(6, 2, "5 "); }},
        {"edit", [this] { grid.Select(1, 1, 1, 1), grid.GridEdit(0), grid.hwndText()->setText(" "); }},
        {"return",
         [this] {
             for (QWidget *next : {&window, static_cast<QWidget *>(&dialog)}) {
                 next->activateWindow();
                 EXPECT_TRUE(QTest::qWaitForWindowActive(next));
             }
         }},
    };
    // the current line of how many, - where there is no next one, and the words
    QString steps =
        "btnTrim -> 0/5 a1 b2 a1 c  c 3 сd4 5 *, undo -> 0/5 WORDS , work -> 0/6 WORDS , "
        "btnTrimAll -> 0/3 a1 b2 a1 c c3 сd4 5 *, undo -> 0/3 WORDS , work -> 0/6 WORDS , btnNext -> 1/6 WORDS , "
        "btnRemove -> 1/5 a1 b 2 c  c 3 сd4 5 *, undo -> 1/5 WORDS , work -> 0/6 WORDS , "
        "mend -> 0/6 a1 b2 a1 c  c 3 сd4 5 , btnTrim -> -1/5 a1 b2 a1 c  c 3 сd4 5 , "
        "spoil -> -1/5 a1 b2 a1 c  c 3 сd4 5  , btnTrimAll -> 0/3 a1 b2 a1 c c3 сd4 5 *, "
        "edit -> 0/3 a1 b2 a1 c c3 сd4 5 *, return -> -1/4  1 b2 a1 c c3 сd4 5 *, leave -> -1/0-  1 b2 a1 c c3 сd4 5 "
        "*, "
        "btnNext -> -1/0-  1 b2 a1 c c3 сd4 5 *, work -> 0/4  1 b2 a1 c c3 сd4 5 *";
    const auto state = [this] {
        QString text = QString("%1/%2").arg(list.currentIndex().row()).arg(list.model()->rowCount());
        text += dialog.findChild<QPushButton *>("btnNext")->isEnabled() ? "" : "-";
        for (const auto &row : words())
            text += ' ' + row[0] + row[1];
        return text + (document.Dirty() ? "*" : "");
    };
    play(steps.replace("WORDS", "a1 b 2 a1 c  c 3 сd4 5"), state, actions, &dialog);
}
