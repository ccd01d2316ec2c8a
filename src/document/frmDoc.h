#pragma once

#include "document/rules/RunningEdit.h"
#include "document/rules/UndoRecord.h"
#include "document/rules/file/FileStamp.h"

#include <QTimer>
#include <QWidget>

class DocumentCloser;
class GridLetters;
class clsAppProperties;
class ctlGrid;
class modSBFunc;
struct ProgramFlags;

/// The window of one vocabulary: holds its grid, knows whether it has unsaved changes and where it is stored, and keeps
/// the undo record, the row heights and the status bar in step with what the user does in the grid.
class frmDoc : public QWidget
{
    Q_OBJECT

public:
    /// What every document window of the program shares.
    struct Shared
    {
        ProgramFlags &flags;
        UndoRecord &undo;
        modSBFunc &status;
        clsAppProperties &settings;
    };

    explicit frmDoc(const Shared &shared, QWidget *parent = nullptr);

    ctlGrid *Rutor() const { return m_grid; }

    /// Whether the vocabulary has changes that are not saved.
    bool Dirty() const { return isWindowModified(); }
    void setDirty(bool dirty) { setWindowModified(dirty); }

    /// Is asked when the window is about to close; without one it closes.
    void setCloser(DocumentCloser &closer) { m_closer = &closer; }

    /// Full path of the vocabulary file; empty for a document that was never saved.
    QString DocName() const { return m_docName; }
    void setDocName(const QString &path) { m_docName = path; }
    /// Where its file is; empty when it has none.
    QString folder() const;

    /// The file as it was when it was read or saved last.
    FileStamp fileStamp;

    /// "Untitled 1", or the file's title.
    QString Caption() const { return m_caption; }
    void setCaption(const QString &caption);

    /// The document's slot in the document list.
    int Tag() const { return m_tag; }
    void setTag(int slot) { m_tag = slot; }

    /// Where the window stood before the print preview hid it, in twips.
    int WindowLeft = 0;
    int WindowTop = 0;

    /// Shows the letters that the keyboard may lack below the grid, or not.
    void showLetters(bool shown);

    /// Gives the grid its columns, fonts and 100 empty rows, for an inner area of that many pixels. Drawing is held
    /// back until showDocument.
    void setUpGrid(const QSize &innerSize);
    /// Shows the window, whole, with the focus in its grid.
    void showDocument();
    /// The window that stands in the document area: the frame around this one, or this one where there is none.
    QWidget *frame() const;

    /// Stores the text of a cell that is being edited in the cell and makes room for it. The edit box stays.
    void commitRunningEdit();
    /// Ends editing; what was typed is kept.
    void endEdit();
    /// To be called when a cell has got a new text: makes its row taller if the text needs it, and appends a row when
    /// the cell stands in the last one.
    void makeRoomFor(int row, int col);
    /// The first half of it, for whole lists.
    void growRow(int row, int col);

    /// Shows the words larger or smaller by so many steps, or at a percentage of their size, and says so in the status
    /// bar for a moment. New documents begin at the size chosen last.
    void zoomBy(int steps);
    void zoomTo(int percent);

    QString language(int column) const;
    /// The selected rectangle of cells.
    GridSelection selection() const;
    void select(const GridSelection &selection);

    /// Writes the cell reference or the quiz mode to the status bar.
    void refreshCellReference();
    void refreshQuizMode();
    /// What the status bar adds to the quiz mode while this is the active document; empty: nothing.
    void setQuizModeNote(const QString &note);

    /// To be called when this becomes the active document: brings the status texts up to date and ends the undo record,
    /// which belonged to another one.
    void activated();

Q_SIGNALS:
    /// A cell began or ceased to be edited.
    void editingChanged(bool editing);
    /// The grid's menu is asked for at a point of the screen, in the grid or in its edit box.
    void menuRequested(const QPoint &globalPosition);
    /// A key asks for what the Clear command does.
    void clearRequested();

protected:
    void closeEvent(QCloseEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;

private:
    void connectGrid();
    void onBeforeEdit();
    void onKeyDown(int keyCode, int shift);
    void onKeyWhileBrowsing(int keyCode);
    void onKeyPress(int keyAscii);
    void onRowColChange();
    void onMouseMove();
    void onMouseUp(int button, float x, float y);
    void finishEdit(RunningEdit::End how, int row, int col);
    void walk(bool backwards);
    void showEditStatus();
    void showZoom();
    void forgetZoom();

    Shared m_shared;
    DocumentCloser *m_closer = nullptr;
    ctlGrid *m_grid;
    RunningEdit m_edit;
    QString m_docName;
    QString m_caption;
    QString m_quizModeNote;
    GridLetters *m_letters = nullptr; ///< null: not shown
    int m_tag = 0;
    bool m_shiftAlone = false;
    QTimer m_zoomNote; ///< runs while the status bar tells the zoom
};
