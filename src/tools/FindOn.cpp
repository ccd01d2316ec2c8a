#include "tools/FindOn.h"

#include "document/frmDoc.h"
#include "resources/StringTable.h"
#include "services/AlertBox.h"
#include "services/Hourglass.h"
#include "tools/GridCells.h"
#include "tools/rules/Search.h"

void FindOn::run(frmDoc &document, const Search &lastSearch, bool backwards, AlertBox &alert, QWidget *owner)
{
    document.endEdit();
    const GridCells cells(*document.Rutor());
    Search search = lastSearch;
    const auto find = [&] { return backwards ? search.FindPrevious(cells) : search.FindNext(cells); };
    search.LeaveCell(document.selection().Row, document.selection().Col, backwards);
    std::optional<Search::Match> match;
    bool around = false;
    {
        const Hourglass hourglass;
        match = find();
        around = !match;
        if (around) {
            search.ResetSearch();
            match = find();
        }
        if (match)
            document.select({match->row, match->col, match->row, match->col});
    }
    if (around)
        alert.show(owner, {resText(match ? 7014 : 7013), resText(507), Alert::Ok, 0, true});
}
