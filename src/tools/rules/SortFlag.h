#pragma once

/// What the user chose in the sort dialog; 0 when the dialog was cancelled, else one of each pair.
namespace SortFlag {
enum : int { Language1 = 1, Language2 = 2, Ascending = 4, Descending = 8, Selection = 16, Vocabulary = 32 };
}
