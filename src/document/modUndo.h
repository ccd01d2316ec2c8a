#pragma once

#include "document/rules/UndoRecord.h"

class ctlGrid;
class frmDoc;

/// The snapshot of a whole vocabulary that reverses a sort or the replacements of one find/replace dialog.
namespace modUndo {

UndoRecord::Snapshot takeSnapshot(const ctlGrid &grid);

/// Writes every word of the record's snapshot back and restores the selection. Rows that the snapshot does not know are
/// emptied, rows that are missing appended; heights stay, save where a word that came back would be cut.
void UndoSnapshotRestore(frmDoc &document, const UndoRecord &record);

} // namespace modUndo
