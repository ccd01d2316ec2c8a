#include "document/rules/RunningEdit.h"
#include "document/rules/UndoRecord.h"
#include "services/rules/ProgramFlags.h"

using enum RunningEdit::End;
using enum UndoKind;

/// The end of the edit of cell 3, 2, which holds "house", decides what Undo brings back and whether the document
/// changed.
TEST(RunningEdit, ItsEndTellsWhatWasEntered)
{
    UndoRecord undo;
    const auto open = [](RunningEdit &edit) { edit.begin(3, 2, "house"); };
    const auto type = [&](RunningEdit &edit) { open(edit), edit.type("house"); };
    const auto save = [&](RunningEdit &edit) { type(edit), edit.store("barn"); };
    const auto saveAndType = [&](RunningEdit &edit) { save(edit), edit.type("barn"); };
    const auto next = [&](RunningEdit &edit) { save(edit), open(edit); };
    const auto replace = [&](RunningEdit &edit) { open(edit), undo.setKind(Replace, this); };
    const auto showAgain = [&](RunningEdit &edit) { save(edit), edit.begin(3, 2, "barn"); };
    using Steps = std::function<void(RunningEdit &)>;
    // whether a search is open, what is done, and how it ends with which text; whether that is a change; what is undone
    const std::tuple<const char *, bool, Steps, RunningEdit::End, const char *, bool, UndoKind, const char *> cases[] =
        {
            {"typed", false, type, Committed, "barn", true, Entry, "house"},
            {"only opened", false, open, Committed, "house", true, Entry, "house"},
            {"given up", false, type, Escaped, "house", true, Entry, "house"},
            {"saved since", false, save, Committed, "barn", false, Entry, "house"},
            {"saved since and given up", false, save, Escaped, "barn", false, Entry, "house"},
            {"saved since and changed", false, save, Committed, "barns", true, Entry, "house"},
            {"saved since and typed on", false, saveAndType, Committed, "barns", true, Entry, "barn"},
            {"the next edit", false, next, Committed, "barn", true, Entry, "house"},
            {"closed as it was", false, open, Closed, "house", false, Typing, "house"},
            {"a match shown", true, open, Committed, "house", false, None, ""},
            {"a match given up", true, open, Escaped, "house", false, None, ""},
            {"a match replaced", true, open, Committed, "barn", true, Entry, "house"},
            {"what a replacement has recorded", true, replace, Committed, "barn", true, Replace, ""},
            {"closed after a replacement", true, replace, Closed, "barn", false, Replace, ""},
            {"a match typed over, stored and shown again", true, showAgain, Closed, "barn", true, Entry, "house"},
        };
    for (const auto &[name, searching, steps, end, text, changed, kind, entryText] : cases) {
        SCOPED_TRACE(name);
        undo.clear();
        undo.entryText.clear();
        undo.selection = {};
        const ProgramFlags flags{searching, false};
        RunningEdit edit(undo, flags, this);
        steps(edit);
        EXPECT_EQ(edit.end(end, 3, 2, text), changed);
        EXPECT_EQ(edit.state(), RunningEdit::State::Browsing);
        EXPECT_EQ(undo.kind(), kind);
        EXPECT_EQ(undo.entryText, entryText);
        EXPECT_EQ(undo.belongsTo(this), kind != None);
        EXPECT_TRUE((kind != Entry && kind != Typing) || (undo.selection.Row == 3 && undo.selection.Col == 2));
    }
}
