#include "document/modUndo.h"

#include "document/ctlGrid.h"
#include "document/frmDoc.h"

namespace modUndo {

UndoRecord::Snapshot takeSnapshot(const ctlGrid &grid)
{
    const int rows = grid.Rows();
    UndoRecord::Snapshot snapshot;
    snapshot.reserve(size_t(rows));
    for (int row = 1; row < rows; ++row)
        snapshot.push_back({grid.TextMatrix(row, 1), grid.TextMatrix(row, 2)});
    return snapshot;
}

void UndoSnapshotRestore(frmDoc &document, const UndoRecord &record)
{
    ctlGrid &grid = *document.Rutor();
    const UndoRecord::Snapshot &snapshot = record.snapshot;
    grid.setRedraw(false);
    grid.setRows(std::max(grid.Rows(), int(snapshot.size()) + 1));
    document.select(record.selection);
    for (int row = 1; row < grid.Rows(); ++row) {
        const bool known = size_t(row) <= snapshot.size();
        const UndoRecord::Pair pair = known ? snapshot[size_t(row) - 1] : UndoRecord::Pair();
        grid.setTextMatrix(row, 1, pair.first);
        grid.setTextMatrix(row, 2, pair.second);
    }
    grid.growCutRows();
    grid.setRedraw(true);
    grid.setFocus();
}

} // namespace modUndo
