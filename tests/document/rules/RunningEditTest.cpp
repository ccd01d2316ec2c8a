#include "document/rules/RunningEdit.h"
#include "document/rules/UndoRecord.h"
#include "services/rules/ProgramFlags.h"

using End = RunningEdit::End;

/// The end of the edit of cell 3, 2, which holds "house", decides what Undo brings back and whether the document
/// changed.
TEST(RunningEdit, ItsEndTellsWhatWasEntered)
{
    struct Case
    {
        const char *name;
        bool searching;
        std::function<void(RunningEdit &)> steps;
        End end;
        const char *text;
        bool changed;
        UndoKind kind;
        const char *entryText;
    };
    UndoRecord undo;
    const auto open = [](RunningEdit &edit) { edit.begin(3, 2, "house"); };
    const auto type = [](RunningEdit &edit) { edit.begin(3, 2, "house"), edit.type("house"); };
    const auto store = [](RunningEdit &edit) { edit.begin(3, 2, "house"), edit.type("house"), edit.store("barn"); };
    const auto replace = [&](RunningEdit &edit) { open(edit), undo.setKind(UndoKind::Replace, this); };
    const Case cases[] = {
        {"typed", false, type, End::Committed, "barn", true, UndoKind::Entry, "house"},
        {"only opened", false, open, End::Committed, "house", true, UndoKind::Entry, "house"},
        {"given up", false, type, End::Escaped, "house", true, UndoKind::Entry, "house"},
        {"saved since", false, store, End::Committed, "barn", false, UndoKind::Entry, "house"},
        {"saved since and given up", false, store, End::Escaped, "barn", false, UndoKind::Entry, "house"},
        {"saved since and changed", false, store, End::Committed, "barns", true, UndoKind::Entry, "house"},
        {"saved since and typed on", false, [&](RunningEdit &edit) { store(edit), edit.type("barn"); }, End::Committed,
         "barns", true, UndoKind::Entry, "barn"},
        {"the next edit", false, [&](RunningEdit &edit) { store(edit), open(edit); }, End::Committed, "barn", true,
         UndoKind::Entry, "house"},
        {"closed as it was", false, open, End::Closed, "house", false, UndoKind::Typing, "house"},
        {"a match shown", true, open, End::Committed, "house", false, UndoKind::None, ""},
        {"a match given up", true, open, End::Escaped, "house", false, UndoKind::None, ""},
        {"a match replaced", true, open, End::Committed, "barn", true, UndoKind::Entry, "house"},
        {"what a replacement has recorded", true, replace, End::Committed, "barn", true, UndoKind::Replace, ""},
        {"closed after a replacement", true, replace, End::Closed, "barn", false, UndoKind::Replace, ""},
        {"a match typed over, stored and shown again", true,
         [&](RunningEdit &edit) { store(edit), edit.begin(3, 2, "barn"); }, End::Closed, "barn", true, UndoKind::Entry,
         "house"},
    };
    for (const Case &edited : cases) {
        SCOPED_TRACE(edited.name);
        undo.clear();
        undo.entryText.clear();
        const ProgramFlags flags{edited.searching, false};
        RunningEdit edit(undo, flags, this);
        edited.steps(edit);
        EXPECT_EQ(edit.end(edited.end, 3, 2, edited.text), edited.changed);
        EXPECT_EQ(edit.state(), RunningEdit::State::Browsing);
        EXPECT_EQ(undo.kind(), edited.kind);
        EXPECT_EQ(undo.entryText, edited.entryText);
        EXPECT_EQ(undo.belongsTo(this), edited.kind != UndoKind::None);
        if (edited.kind == UndoKind::Entry) {
            EXPECT_EQ(undo.selection.Row * 10 + undo.selection.Col, 32);
        }
    }
}

TEST(RunningEdit, GoesFromStateToState)
{
    UndoRecord undo;
    ProgramFlags flags;
    RunningEdit edit(undo, flags, this);
    edit.begin(1, 1, "house");
    EXPECT_EQ(edit.state(), RunningEdit::State::Editing);
    EXPECT_TRUE(edit.isToStore("house", "house"));
    edit.store("barn");
    EXPECT_EQ(edit.state(), RunningEdit::State::Stored);
    flags.FindMode = true;
    EXPECT_TRUE(edit.isToStore("barns", "barn"));
    EXPECT_FALSE(edit.isToStore("barn", "barn"));
}
