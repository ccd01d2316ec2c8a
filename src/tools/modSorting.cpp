#include "tools/modSorting.h"

#include "document/ctlGrid.h"
#include "document/frmDoc.h"
#include "document/modUndo.h"
#include "services/Hourglass.h"
#include "services/rules/SortOrder.h"
#include "tools/frmSort.h"
#include "tools/rules/SortFlag.h"

namespace {

SortOrder::Request requestFor(int SortFlags, const frmDoc &document, const QLocale &locale)
{
    const int column = SortFlags & SortFlag::Language2 ? 2 : 1;
    const bool descending = SortFlags & SortFlag::Descending;
    if (SortFlags & SortFlag::Vocabulary)
        return {1, document.Rutor()->Rows() - 1, {column}, descending, locale};
    const GridSelection selection = document.selection();
    return {selection.top(), selection.bottom(), {column, 3 - column}, descending, locale};
}

} // namespace

namespace modSorting {

void SortVocabulary(frmDoc &document, UndoRecord &undo, const QLocale &locale, QWidget *owner)
{
    frmSort dialog(document, owner);
    dialog.exec();
    if (const int flags = dialog.SortFlags())
        sortBy(flags, document, undo, locale);
}

void sortBy(int SortFlags, frmDoc &document, UndoRecord &undo, const QLocale &locale)
{
    const Hourglass hourglass;
    ctlGrid &grid = *document.Rutor();
    undo.selection = document.selection();
    undo.snapshot = modUndo::takeSnapshot(grid);
    const SortOrder::Request request = requestFor(SortFlags, document, locale);
    const std::vector<int> order =
        SortOrder::sortedRows([&](int row, int col) { return grid.word(row, col); }, request);
    if (!std::is_sorted(order.begin(), order.end())) {
        grid.setRedraw(false);
        grid.reorderRows(request.top, order);
        document.select(undo.selection);
        grid.setRedraw(true);
        document.setDirty(true);
    }
    grid.setFocus();
    undo.setKind(UndoKind::Sort, &document);
}

} // namespace modSorting
