#pragma once

#include "document/rules/LetterWidths.h"
#include "widgets/grid/FlexGrid.h"

class ctlGridEdit;
struct ProgramFlags;

/// The grid in which a vocabulary lives and is edited: a flex grid with an edit box that is laid over the current cell
/// while that is being edited. It is browsing or editing; its container learns of the changes by BeforeEdit and
/// AfterEdit. The edit box lives in the control, the vocabulary in the flex grid.
class ctlGrid : public FlexGrid
{
    Q_OBJECT

public:
    /// flags tell whether the find/replace dialog is open; they must outlive the grid.
    explicit ctlGrid(const ProgramFlags *flags, QWidget *parent = nullptr);

    /// The stored design of the grid in a document window: three columns, 101 rows, its fixed cells, colours, mouse
    /// pointer and font. For loadProperties.
    static QVariantMap documentDesign();

    /// Starts editing the current cell. A character above the blank (a code point; a negative number is a UTF-16 unit)
    /// replaces the cell's text; any other one opens the text that is there.
    void GridEdit(int KeyAscii);
    /// Whether the edit box is visible.
    bool EditMode() const;
    /// true edits the current cell's text; false ends editing and keeps what was typed: AfterEdit is raised only when
    /// that differs from the cell.
    void setEditMode(bool edit);
    /// Edits the current cell's text with the caret behind its last letter.
    void editAtEnd();
    /// Ends editing as Enter in the edit box does: the focus goes back to the grid and the text is committed.
    void giveFocusBack();
    /// The edit box's text while editing, else empty.
    QString EditText() const;
    /// Selects part of the edit box's text, start counted from 0; nothing happens while browsing.
    void SelectEditText(int start, int length);
    /// The selected part of the edit box's text; setting replaces it. Empty and without effect while browsing.
    QString SelText() const;
    void setSelText(const QString &text);
    /// Takes what an input method is composing into the edit box's text.
    void finishComposing();
    /// Lays the edit box over the current cell again.
    void RefreshTextPos();
    /// Clears the grid and gives it font, size in rows and columns, fixed rows and columns and header format.
    void AutoSetup(const QString &fontName, double fontSize, int rows, int cols, int fixedRows, int fixedCols,
                   const QString &formatString);
    /// Also sets the edit box's font and the height of rows whose own was never set.
    void setGridFont(const QFont &font) override;
    /// Also sets that of the edit box.
    void setZoom(int percent) override;
    /// Makes rows that are too low for their words higher and the column of row numbers wide enough for the last one;
    /// nothing becomes smaller.
    void makeRoom();
    void makeRoomForRowNumbers();
    /// Makes the rows in which a word is cut high enough for it, and no other; quick also where there are many.
    void growCutRows();
    /// The edit box: the target of the edit commands while a cell is being edited.
    ctlGridEdit *hwndText() const { return m_text1; }
    /// The letters of the grid's font, in pixels.
    LetterWidths &letterWidths() { return m_letterWidths; }

Q_SIGNALS:
    void LeaveCell(); ///< for containers that know it; never raised, the edit is committed instead
    void BeforeEdit(int &Row, int &Col, bool &Cancel);
    /// Text is what the cell holds now; a changed Text is stored.
    void AfterEdit(int &Row, int &Col, QString &Text);

protected:
    void leavingCell() override;
    void gridFocused() override;
    void characterTyped(int character) override;
    void inputMethodUsed(QInputMethodEvent *event) override;
    void cellDoubleClicked() override;
    void laidOut() override;

private:
    void connectEditBox();
    bool beginEdit(const QString &text);
    bool openEditBox();
    void commit();
    void closeEditBox();
    void editKeyPressed(int keyCode, int shift, bool &taken);
    void commitAndMove(int step);
    void dressEditBox();
    bool surelyShows(int row);

    const ProgramFlags *m_flags;
    ctlGridEdit *m_text1;
    LetterWidths m_letterWidths;
};
