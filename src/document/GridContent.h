#pragma once

struct Vocabulary;
struct VocabularyFont;
class ctlGrid;

/// Carries a word list between its plain form and a document's grid.
namespace GridContent {

/// Everything that is stored of a grid: font, colour, column widths, and every row with its height.
Vocabulary read(const ctlGrid &grid);

VocabularyFont font(const ctlGrid &grid);

/// Gives a grid font and text colour.
void applyFont(ctlGrid &grid, const VocabularyFont &font);

/// Fills a grid from a word list: one row for each of its rows and an empty last one. What an older file does not hold
/// stays as it is in the grid.
void fill(ctlGrid &grid, Vocabulary &&vocabulary);

/// The same with the rows just as they are: the last empty one is among them.
void fillAll(ctlGrid &grid, Vocabulary &&vocabulary);

} // namespace GridContent
