#pragma once

struct PrintSource;
class ctlGrid;
class QString;

/// Takes what is to be printed from a document's grid.
namespace GridSource {

PrintSource read(const ctlGrid &grid, const QString &caption);

} // namespace GridSource
