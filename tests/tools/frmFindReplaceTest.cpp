#include "tools/frmFindReplace.h"

#include "document/ctlGridEdit.h"
#include "resources/StringTable.h"
#include "services/FormTexts.h"
#include "support/OpenDocument.h"
#include "support/ScriptedAlertBox.h"
#include "tools/FindOn.h"

struct FindReplace : ::testing::Test, OpenDocument
{
    FindReplace()
        : OpenDocument(Words{{"cat", "Katze"}, {"the cat sat", "die Katze saß"}, {"cats", "a"}})
    {
    }

    void open(bool replace, const QString &what = {}, const QString &with = {})
    {
        (replace ? flags.ReplaceMode : flags.FindMode) = true;
        dialog = std::make_unique<frmFindReplace>(document, frmFindReplace::Needs{flags, undo, alert, last}, &window);
        dialog->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(dialog.get()));
        for (const auto &[box, text] : {std::pair("txtFind", what), {"txtReplace", with}})
            text.isEmpty() ? void() : type(box, text);
    }
    template <typename T> T *control(const char *name) { return dialog->findChild<T *>(name); }
    void click(const char *name) { QTest::mouseClick(control<QAbstractButton>(name), Qt::LeftButton); }
    void type(const char *box, const QString &text) { control<QLineEdit>(box)->setText(text); }
    /// What the cell editor shows, as "row,col:[selected text]start".
    QString match() const
    {
        const QString place = QString("%1,%2:[%3]%4").arg(grid.Row()).arg(grid.Col()).arg(grid.SelText());
        return grid.EditMode() && grid.RowIsVisible(grid.Row())
                   ? place.arg(grid.hwndText()->cursorPosition() - grid.SelText().size())
                   : "nothing";
    }

    ScriptedAlertBox alert;
    Search last;
    std::unique_ptr<frmFindReplace> dialog;
};

TEST_F(FindReplace, OpensWithTheCurrentCellsTextAndWidens)
{
    window.resize(600, 500);
    open(false);
    EXPECT_EQ(shown(*dialog).toStdString(),
              "Find | &Find | ><cat> | Scope | [x] Whole &Document | [ ] &1 Language 1 | "
              "[ ] &2 Language 2 | [ ] &Match Case | [ ] &Whole Words | Find &Next | &Replace... | &Close | ?");
    EXPECT_EQ(control<QLineEdit>("txtFind")->selectedText(), "cat");
    EXPECT_EQ(FormTexts::helpContextId(dialog.get()), 1160);
    EXPECT_EQ(dialog->whatsThis() + control<QPushButton>("btnReplace")->whatsThis(), resText(20043) + resText(20049));
    const QSize framed = dialog->size() + QSize(0, dialog->style()->pixelMetric(QStyle::PM_TitleBarHeight) + 27);
    EXPECT_EQ(QRect(dialog->pos(), framed).bottomRight(), window.frameGeometry().bottomRight());
    const int height = dialog->height();
    click("btnReplace");
    type("txtFind", "");
    EXPECT_EQ(shown(*dialog).toStdString(),
              "Replace | &Find | <> | R&eplace With | ><> | Scope | [x] Whole &Document | "
              "[ ] &1 Language 1 | [ ] &2 Language 2 | [ ] &Match Case | [ ] &Whole Words | "
              "(Find &Next) | (&Replace) | (Replace &All) | &Close | ?");
    EXPECT_GE(dialog->height() - height, 46); // 700 twips
    EXPECT_EQ(FormTexts::helpContextId(dialog.get()), 1170);
    EXPECT_EQ(dialog->whatsThis() + control<QPushButton>("btnReplace")->whatsThis(), resText(20051) + resText(20053));
    EXPECT_TRUE(flags.ReplaceMode && !flags.FindMode);
    EXPECT_EQ(match(), "nothing");
    select(4, 1, 4, 1);
    open(false);
    EXPECT_FALSE(control<QPushButton>("btnFind")->isEnabled()) << "there is nothing to find yet";
}

TEST_F(FindReplace, ShowsMatchAfterMatchAndReportsTheEnd)
{
    open(false);
    grid.setRows(300);
    grid.setTextMatrix(250, 2, "far");
    // the match, whether the first row is out of sight, and what the user was told
    const auto state = [this] {
        const GridSelection at = document.selection();
        const QString place = dialog->isVisible() ? match() : QString("%1,%2:").arg(at.bottom()).arg(at.right());
        return (place + (grid.TopRow() > 1 ? " scrolled " : " ") + alert.told()).trimmed();
    };
    const auto run = [this](bool backwards) { FindOn::run(document, last, backwards, alert, &window); };
    playFile(SOURCE_FOLDER "/tests/tools/data/find.txt", state,
             {{"KATZE", [this] { type("txtFind", "KATZE"); }},
              {"far", [this] { type("txtFind", "far"); }},
              {"cat", [this] { type("txtFind", "cat"); }},
              {"dog", [this] { last.FindWhat = "dog"; }},
              {"cover", [this] { dialog->move(window.pos()); }},
              {"on", [&] { run(false); }},
              {"back", [&] { run(true); }}},
             dialog.get());
    EXPECT_NE(dialog->pos(), window.pos()) << "the match was below it";
    EXPECT_TRUE(!flags.searching() && !grid.EditMode() && undo.kind() == UndoKind::None && !document.Dirty());
}

TEST_F(FindReplace, ReplacesTheSelectedMatchOnly)
{
    open(false, "CAT", "dog"), dialog->showAgain(true);
    playFile(
        SOURCE_FOLDER "/tests/tools/data/replace.txt", [this] { return match() + ' ' + grid.TextMatrix(1, 1); },
        {{"part", [this] { grid.SelectEditText(0, 2); }},
         {"other", [this] { select(2, 1, 2, 1), grid.setEditMode(true), grid.SelectEditText(4, 3); }},
         {"long", [this] { type("txtReplace", QString(200, u'x')); }}},
        dialog.get());
    EXPECT_EQ(words(),
              (Words{{"dog", "Katze"}, {"the dog sat", "die Katze saß"}, {QString(200, u'x') + 's', "a"}, {}}));
    QTest::keyClick(dialog.get(), Qt::Key_Escape);
    EXPECT_GT(grid.RowHeight(3), 285); // also of the last match
    EXPECT_TRUE(!dialog->isVisible() && document.Dirty() && undo.kind() == UndoKind::Replace);
}

TEST_F(FindReplace, ReplaceAllIsOneUndoStepOfItsDocument)
{
    const Words before = words();
    const QString longWord(200, u'x');
    for (const bool anotherFollows : {false, true}) {
        open(true, "cat");
        click("btnFind"); // the match shown first counts as well
        type("txtReplace", longWord);
        click("btnReplaceAll");
        EXPECT_EQ(alert.onlyPrompt(), "The specified region has been searched. 3 replacements were made.");
        EXPECT_EQ(
            words(),
            (Words{{longWord, "Katze"}, {"the " + longWord + " sat", "die Katze saß"}, {longWord + 's', "a"}, {}}));
        EXPECT_GT(grid.RowHeight(1), 285);
        EXPECT_EQ(match(), "3,1:[]200"); // the last match
        document.setDirty(false);        // as saving does
        if (anotherFollows) {
            QTest::keyClicks(grid.hwndText(), "u");
            type("txtFind", "Katze");
            click("btnFind");
            dialog->leaveDocument();
            click("btnFind");
            click("btnReplaceAll");
            EXPECT_TRUE(!grid.EditMode() && alert.shown.size() == 1);
            OpenDocument other(Words{{"Katze", ""}});
            other.grid.setTextMatrix(0, 1, "English");
            dialog->workOn(other.document);
            click("btnFind");
            EXPECT_EQ(other.grid.SelText() + control<QRadioButton>("optScope1")->text(), "Katze&1 English");
            dialog->close();
            EXPECT_FALSE(other.grid.EditMode() || other.document.Dirty());
        }
        dialog->close();
        dialog->leaveDocument(); // which has been done
        EXPECT_TRUE(!flags.searching() && document.Dirty());
        EXPECT_EQ(undo.kind(), anotherFollows ? UndoKind::None : UndoKind::Replace);
        commands.Undo(document);
        EXPECT_EQ(words() == before, !anotherFollows);
        alert.shown.clear();
    }
}

TEST_F(FindReplace, WhatIsTypedIntoTheMatchCanBeUndone)
{
    // a text, what is typed in place of its first match, and the next one
    for (const auto &[text, typed, next] : {std::tuple("aXa", "ua", "1,1:[a]1"), {"aX", "u", "1,1:[]1"}}) {
        setWords({{text, ""}});
        undo.clear();
        open(false, "a");
        click("btnFind");
        QTest::keyClicks(grid.hwndText(), typed);
        click("btnFind");
        EXPECT_EQ(match(), next);
        dialog->close();
        EXPECT_EQ(grid.TextMatrix(1, 1), QString(text).replace(0, 1, typed));
        EXPECT_TRUE(undo.kind() == UndoKind::Entry && document.Dirty());
        commands.Undo(document);
        EXPECT_EQ(grid.TextMatrix(1, 1), text);
    }
}
