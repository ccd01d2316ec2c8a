#pragma once

class QLocale;
class QWidget;
class UndoRecord;
class frmDoc;

/// Sorts a vocabulary the way the user asks for and leaves an undo step.
namespace modSorting {

/// Asks in the sort dialog and sorts; Cancel changes nothing. The locale tells the collation of the words.
void SortVocabulary(frmDoc &document, UndoRecord &undo, const QLocale &locale, QWidget *owner);

/// Sorts by a set of SortFlag, not 0. Rows move as a whole, heights included. The document counts as changed when a row
/// has moved.
void sortBy(int SortFlags, frmDoc &document, UndoRecord &undo, const QLocale &locale);

} // namespace modSorting
