#pragma once

#include <QString>

#include <vector>

/// Rows as the user is told of them, neighbours taken together: "row 7", "rows 3, 5-8". Of a long list the end is only
/// counted. numbers: ascending, not empty.
QString rowNumbersText(const std::vector<qsizetype> &numbers);
