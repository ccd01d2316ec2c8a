#include "document/rules/RunningEdit.h"
#include "document/rules/UndoRecord.h"
#include "resources/StringTable.h"
#include "services/rules/ProgramFlags.h"

/// What is done to cell 3, 2 and how that ends with which text decide whether the document changed and what is undone.
TEST(RunningEdit, ItsEndTellsWhatWasEntered)
{
    const QString cases = readFile(SOURCE_FOLDER "/tests/document/rules/data/running_edit.txt");
    const QStringList ends{"Committed", "Escaped", "Closed"};
    for (const QString &line : cases.split('\n', Qt::SkipEmptyParts)) {
        UndoRecord undo;
        const ProgramFlags flags{line.contains(": search"), false};
        RunningEdit edit(undo, flags, &undo);
        QString found;
        for (const QString &step : line.section(": ", 1).section(" -> ", 0, 0).split(", ")) {
            const QString text = step.section(' ', 1);
            if (step.startsWith("begin"))
                edit.begin(3, 2, text);
            else if (step.startsWith("type"))
                edit.type(text);
            else if (step.startsWith("store"))
                edit.store(text);
            else if (step == "replace")
                undo.setKind(UndoKind::Replace, &undo);
            else if (const qsizetype how = ends.indexOf(step.section(' ', 0, 0)); how >= 0)
                found = edit.end(RunningEdit::End(how), 3, 2, text) ? "changed, " : "";
        }
        const bool any = undo.kind() != UndoKind::None;
        found += any ? resText(int(undo.kind())).section(' ', 1) : "None";
        found += QString(" <%1> %2,%3").arg(undo.entryText).arg(undo.selection.Row).arg(undo.selection.Col);
        EXPECT_EQ(found.toStdString(), line.section(" -> ", 1).toStdString()) << line.toStdString();
        EXPECT_TRUE(edit.state() == RunningEdit::State::Browsing && undo.belongsTo(&undo) == any);
    }
}
