#pragma once

#include "widgets/grid/FlexGridState.h"

#include <QAbstractItemModel>
#include <QPointer>
#include <QVariantMap>
#include <QWidget>

#include <functional>
#include <vector>

class FlexGridView;
class QInputMethodEvent;

/// A grid of text cells with fixed rows and columns at its head, a current cell and a selected rectangle. It is a
/// wrapper that its view fills, so that an editor can be laid over the view as a sibling. Lengths are twips, colours
/// 0x00BBGGRR or system colours (top bit set), rows and columns count from 0 with the fixed ones first. Indices out of
/// range read as empty or default and change nothing when written.
class FlexGrid : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(int Appearance READ Appearance WRITE setAppearance)
    Q_PROPERTY(bool AllowBigSelection READ AllowBigSelection WRITE setAllowBigSelection)
    Q_PROPERTY(int AllowUserResizing READ AllowUserResizing WRITE setAllowUserResizing)
    Q_PROPERTY(int BackColor READ BackColor WRITE setBackColor)
    Q_PROPERTY(int BackColorBkg READ BackColorBkg WRITE setBackColorBkg)
    Q_PROPERTY(int BackColorFixed READ BackColorFixed WRITE setBackColorFixed)
    Q_PROPERTY(int BackColorSel READ BackColorSel WRITE setBackColorSel)
    Q_PROPERTY(int Cols READ Cols WRITE setCols)
    Q_PROPERTY(bool Enabled READ Enabled WRITE setEnabled)
    Q_PROPERTY(int ForeColor READ ForeColor WRITE setForeColor)
    Q_PROPERTY(int ForeColorFixed READ ForeColorFixed WRITE setForeColorFixed)
    Q_PROPERTY(int ForeColorSel READ ForeColorSel WRITE setForeColorSel)
    Q_PROPERTY(int GridColor READ GridColor WRITE setGridColor)
    Q_PROPERTY(int GridColorFixed READ GridColorFixed WRITE setGridColorFixed)
    Q_PROPERTY(int GridLines READ GridLines WRITE setGridLines)
    Q_PROPERTY(int GridLinesFixed READ GridLinesFixed WRITE setGridLinesFixed)
    Q_PROPERTY(int GridLineWidth READ GridLineWidth WRITE setGridLineWidth)
    Q_PROPERTY(int HighLight READ HighLight WRITE setHighLight)
    Q_PROPERTY(int Rows READ Rows WRITE setRows)
    Q_PROPERTY(int ScrollBars READ ScrollBars WRITE setScrollBars)
    Q_PROPERTY(bool ScrollTrack READ ScrollTrack WRITE setScrollTrack)
    Q_PROPERTY(int SelectionMode READ SelectionMode WRITE setSelectionMode)
    Q_PROPERTY(QFont Font READ Font WRITE setGridFont)
    Q_PROPERTY(QString FormatString READ FormatString WRITE setFormatString)
    Q_PROPERTY(int BorderStyle READ BorderStyle WRITE setBorderStyle)
    Q_PROPERTY(int FillStyle READ FillStyle WRITE setFillStyle)
    Q_PROPERTY(int FixedCols READ FixedCols WRITE setFixedCols)
    Q_PROPERTY(int FixedRows READ FixedRows WRITE setFixedRows)
    Q_PROPERTY(int FocusRect READ FocusRect WRITE setFocusRect)
    Q_PROPERTY(QPixmap MouseIcon READ MouseIcon WRITE setMouseIcon)
    Q_PROPERTY(int MousePointer READ MousePointer WRITE setMousePointer)
    Q_PROPERTY(int PictureType READ PictureType WRITE setPictureType)
    Q_PROPERTY(bool Redraw READ Redraw WRITE setRedraw)
    Q_PROPERTY(bool RightToLeft READ RightToLeft WRITE setRightToLeft)
    Q_PROPERTY(int TextStyle READ TextStyle WRITE setTextStyle)
    Q_PROPERTY(int TextStyleFixed READ TextStyleFixed WRITE setTextStyleFixed)
    Q_PROPERTY(bool WordWrap READ WordWrap WRITE setWordWrap)

public:
    enum SortKind {
        SortNone,
        SortGenericAscending, ///< numbers before texts, empty cells last
        SortGenericDescending,
        SortNumericAscending,
        SortNumericDescending,
        SortStringNoCaseAscending,
        SortStringNoCaseDescending,
        SortStringAscending,
        SortStringDescending,
        SortCustom ///< the order that Compare tells
    };

    explicit FlexGrid(QWidget *parent = nullptr);
    ~FlexGrid() override;

    // --- Cells
    int Rows() const { return m_state.cells.rows(); }
    void setRows(int rows); ///< at least FixedRows
    int Cols() const { return m_state.cells.cols(); }
    void setCols(int cols); ///< at least FixedCols
    int FixedRows() const { return m_state.fixedRows; }
    void setFixedRows(int rows);
    int FixedCols() const { return m_state.fixedCols; }
    void setFixedCols(int cols);
    QString TextMatrix(int row, int col) const { return m_state.cells.text(row, col); }
    /// Tabs and line breaks become one blank each, here and wherever else a text enters a cell.
    void setTextMatrix(int row, int col, const QString &text);
    /// Cells counted row by row from the top left.
    QString TextArray(int index) const;
    void setTextArray(int index, const QString &text);
    /// The current cell's text.
    QString Text() const;
    void setText(const QString &text);
    /// Inserts a row before the row index, or at the end; its cells are separated by tabs and begin with column 0.
    void AddItem(const QString &item, int index = -1);
    /// Returns false when the row is fixed, is the last one that is not, or does not exist.
    bool RemoveItem(int index);
    /// Many rows at once: empty ones before the row index, or all from index on away. Both refuse what the operations
    /// on one row refuse.
    bool insertRows(int index, int count);
    bool removeRows(int index, int count);
    void Clear(); ///< empties every cell and takes all formats away
    /// Sorts whole rows: those from Row to RowSel, or all when the two are equal. Keys are the columns from Col to
    /// ColSel from left to right. Equal rows keep their order.
    void setSort(int kind);
    /// Gives rows a new order: row first + i becomes what row order[i] was, with all it has. order holds each of the
    /// rows from first on once.
    void reorderRows(int first, const std::vector<int> &order);
    /// Moves a row or a column with all it has.
    void setRowPosition(int row, int position);
    void setColPosition(int col, int position);
    /// The header of a column and of a row as one text: columns separated by "|", each with "<", "^" or ">" for its
    /// alignment and as wide as its text; after ";" the texts of column 0.
    QString FormatString() const { return m_formatString; }
    void setFormatString(const QString &format);
    /// The model whose headers and texts fill the grid, also when they change later; null ends that.
    QAbstractItemModel *DataSource() const { return m_dataSource; }
    void setDataSource(QAbstractItemModel *model);
    /// Rows that are not fixed show their number in column 0; texts written there are dropped.
    void setRowNumbers(bool numbers);

    /// For whole lists: replaces all rows by the given texts of columns 1 and 2 and heights (twips), row 0 first. No
    /// cell is announced singly. The longest list tells the number of rows.
    void setWords(std::vector<QString> &&first, std::vector<QString> &&second, std::vector<int> &&heights);
    /// The text kept for a cell, without a copy; the reference lives until the grid changes. Row numbers are computed
    /// and not found here.
    const QString &word(int row, int col) const { return m_state.cells.word(row, col); }

    /// Goes up whenever a text may have changed or a row got another place.
    quint64 revision() const { return m_state.cells.revision(); }

    // --- Current cell and selection
    int Row() const { return m_state.selection.Row; }
    int Col() const { return m_state.selection.Col; }
    int RowSel() const { return m_state.selection.RowSel; }
    int ColSel() const { return m_state.selection.ColSel; }
    const GridSelection &selection() const { return m_state.selection; }
    /// Setting the row or the column of the current cell collapses the selection to it.
    void setRow(int row);
    void setCol(int col);
    void setRowSel(int row);
    void setColSel(int col);
    /// Current cell and opposite corner in one step.
    void Select(int row, int col, int rowSel, int colSel);
    /// The selected cells as text: a tab between cells, a carriage return between rows, nothing at the end.
    QString Clip() const;
    /// Fills the selection, and nothing beyond it, from such a text; cells for which there is no field keep theirs.
    void setClip(const QString &text);

    // --- Sizes and places
    int RowHeight(int row) const { return m_state.cells.rowHeight(row); }
    void setRowHeight(int row, int height); ///< row -1: every row; height -1: the default
    /// The height of rows whose own was never set.
    void setDefaultRowHeight(int height);
    /// The least height at which nothing in the row is cut, in twips; row numbers do not count.
    int fittingRowHeight(int row) const;
    int RowHeightMin() const { return m_state.cells.rowHeightMin(); }
    void setRowHeightMin(int height);
    int ColWidth(int col) const;
    void setColWidth(int col, int width); ///< col -1: every column; width -1: the default
    /// From the top or left edge of the grid.
    int RowPos(int row) const;
    int ColPos(int col) const;
    int TopRow() const;
    void setTopRow(int row); ///< no further than the last page of rows
    int LeftCol() const;
    void setLeftCol(int col);
    /// Whether the whole row is shown; one higher than the grid counts when it stands first.
    bool RowIsVisible(int row) const;
    bool ColIsVisible(int col) const;
    /// The cell under the mouse, -1 beyond the last one.
    int MouseRow() const;
    int MouseCol() const;
    /// Scrolls as little as needed to show a cell.
    void showCell(int row, int col);
    /// Makes the control as large as all rows and columns need with lines and border.
    void Autosize();
    /// How large everything is shown, FlexGridZoom::Smallest to Largest percent. Sizes and fonts that are set or told
    /// stay those of the normal size; places and the size of the current cell are those that are seen. The current
    /// cell stays in view.
    int Zoom() const { return m_state.zoom.percent(); }
    virtual void setZoom(int percent);
    QFont shownFont() const { return m_state.zoom.scaled(Font()); }

    // --- Columns and rows
    int ColAlignment(int col) const;
    void setColAlignment(int col, int alignment); ///< 0 to 8: left, centre, right by top, centre, bottom; 9 by content
    int FixedAlignment(int col) const;
    void setFixedAlignment(int col, int alignment);
    int ColData(int col) const;
    void setColData(int col, int data);
    bool MergeCol(int col) const;
    void setMergeCol(int col, bool merge);
    bool MergeRow(int row) const { return m_state.cells.formats.mergeRow(row); }
    void setMergeRow(int row, bool merge);

    // --- The current cell; setting applies to the whole selection when FillStyle is 1
    int CellAlignment() const;
    void setCellAlignment(int alignment);
    int CellBackColor() const;
    void setCellBackColor(int colour); ///< 0: as the grid
    int CellForeColor() const;
    void setCellForeColor(int colour);
    QPixmap CellPicture() const;
    void setCellPicture(const QPixmap &picture);
    int CellPictureAlignment() const;
    void setCellPictureAlignment(int alignment);
    int CellTextStyle() const;
    void setCellTextStyle(int style);
    int CellLeft() const; ///< twips within the control
    int CellTop() const;
    int CellWidth() const;
    int CellHeight() const;

    // --- Look and behaviour
    int Appearance() const { return m_state.look.Appearance; } ///< 0 flat, 1 with depth
    void setAppearance(int appearance);
    bool AllowBigSelection() const { return m_state.look.AllowBigSelection; }
    void setAllowBigSelection(bool allow); ///< fixed cells select whole rows and columns
    int AllowUserResizing() const { return m_state.look.AllowUserResizing; }
    void setAllowUserResizing(int resizing); ///< 1 columns, 2 rows, 3 both
    int BackColor() const { return m_state.look.BackColor; }
    void setBackColor(int colour);
    int BackColorBkg() const { return m_state.look.BackColorBkg; }
    void setBackColorBkg(int colour);
    int BackColorFixed() const { return m_state.look.BackColorFixed; }
    void setBackColorFixed(int colour);
    int BackColorSel() const { return m_state.look.BackColorSel; }
    void setBackColorSel(int colour);
    int BorderStyle() const { return m_state.look.BorderStyle; }
    void setBorderStyle(int style); ///< 0 none, 1 a line
    bool Enabled() const { return !testAttribute(Qt::WA_ForceDisabled); }
    void setEnabled(bool enabled);
    int FillStyle() const { return m_state.look.FillStyle; }
    void setFillStyle(int style);
    int FocusRect() const { return m_state.look.FocusRect; }
    void setFocusRect(int rect); ///< 0 none, 1 light, 2 heavy
    QFont Font() const { return m_state.look.Font; }
    virtual void setGridFont(const QFont &font);
    int ForeColor() const { return m_state.look.ForeColor; }
    void setForeColor(int colour);
    int ForeColorFixed() const { return m_state.look.ForeColorFixed; }
    void setForeColorFixed(int colour);
    int ForeColorSel() const { return m_state.look.ForeColorSel; }
    void setForeColorSel(int colour);
    int GridColor() const { return m_state.look.GridColor; }
    void setGridColor(int colour);
    int GridColorFixed() const { return m_state.look.GridColorFixed; }
    void setGridColorFixed(int colour);
    int GridLines() const { return m_state.look.GridLines; }
    void setGridLines(int lines); ///< 0 none, 1 flat, 2 inset, 3 raised
    int GridLinesFixed() const { return m_state.look.GridLinesFixed; }
    void setGridLinesFixed(int lines);
    int GridLineWidth() const { return m_state.look.GridLineWidth; }
    void setGridLineWidth(int pixels); ///< 1 to 10
    int HighLight() const { return m_state.look.HighLight; }
    void setHighLight(int mode); ///< 0 never, 1 always, 2 with the focus
    int MergeCells() const { return m_state.look.MergeCells; }
    void setMergeCells(int mode); ///< 0 never, 1 free, 2 rows restricted, 3 columns restricted, 4 both
    QPixmap MouseIcon() const { return m_state.look.MouseIcon; }
    void setMouseIcon(const QPixmap &icon);
    int MousePointer() const { return m_state.look.MousePointer; }
    void setMousePointer(int pointer); ///< 99: MouseIcon
    int PictureType() const { return m_state.look.PictureType; }
    void setPictureType(int type); ///< 0 colour, 1 black and white
    bool Redraw() const { return m_redraw; }
    void setRedraw(bool redraw); ///< false holds drawing back until it is true again
    void Refresh();
    bool RightToLeft() const { return m_state.rightToLeft; }
    void setRightToLeft(bool rightToLeft); ///< the first column at the right; at first as the program's windows
    int ScrollBars() const { return m_state.look.ScrollBars; }
    void setScrollBars(int bars); ///< 0 none, 1 horizontal, 2 vertical, 3 both
    bool ScrollTrack() const { return m_state.look.ScrollTrack; }
    void setScrollTrack(bool track);
    int SelectionMode() const { return m_state.look.SelectionMode; }
    void setSelectionMode(int mode); ///< 0 free, 1 by row, 2 by column
    int TextStyle() const { return m_state.look.TextStyle; }
    void setTextStyle(int style); ///< 0 flat, 1 raised, 2 inset, 3 and 4 the same in light
    int TextStyleFixed() const { return m_state.look.TextStyleFixed; }
    void setTextStyleFixed(int style);
    bool WordWrap() const { return m_state.look.WordWrap; }
    void setWordWrap(bool wrap);

    // --- Persistence
    /// Every persisted property by its name.
    QVariantMap saveProperties() const;
    /// Sets every persisted property; those that are missing take their default.
    void loadProperties(const QVariantMap &properties);

    FlexGridView *hwndGrid() const { return m_view; }
    QWidget *hwnd() { return this; }

Q_SIGNALS:
    void EnterCell();
    void RowColChange();
    void SelChange();
    void Click();
    void Compare(int Row1, int Row2, int &Cmp); ///< Cmp below 0: Row1 comes first
    void KeyDown(int KeyCode, int Shift);       ///< codes and bits as in FlexGridKeys
    void KeyPress(int &KeyAscii);               ///< a code point; 0 swallows it
    void KeyUp(int KeyCode, int Shift);
    void MouseDown(int Button, int Shift, float X, float Y); ///< twips within the control
    void MouseMove(int Button, int Shift, float X, float Y);
    void MouseUp(int Button, int Shift, float X, float Y);
    void Scroll();
    void ZoomWanted(int steps); ///< the user asks for it: above 0 larger, below 0 smaller
    /// A persisted property was written.
    void PropertyChanged(const QString &name);

protected:
    /// Before the current cell changes, and before rows and columns move under it.
    virtual void leavingCell() {}
    virtual void gridFocused() {}
    /// A character that the container has seen and let through.
    virtual void characterTyped(int) {}
    virtual void inputMethodUsed(QInputMethodEvent *) {}
    virtual void cellDoubleClicked() {}
    /// Cells are shown at other places than before.
    virtual void laidOut() {}

    void resizeEvent(QResizeEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void typeCharacter(int character);
    void propertyChanged(const char *name);
    const FlexGridState &state() const { return m_state; }
    FlexGridView &view() const { return *m_view; }

private:
    void connectView();
    std::vector<int> orderByText(int kind, int first, int last) const;
    std::vector<int> customOrder(int first, int last);
    void select(GridSelection wanted);
    /// Rows or columns came, went or moved: lays out, tells screen readers, keeps the selection inside.
    void restructured();
    GridSelection insideOf(GridSelection wanted) const;
    void draw();
    void layOutAgain();
    void fillFromDataSource();
    template <typename T> void changeLook(T &field, const T &value, const char *name);
    void applyFrame();
    FlexGridCellFormat currentFormat() const;
    void changeFormat(const std::function<void(FlexGridCellFormat &)> &change);
    void changeColumns(int col, const std::function<void(FlexGridCells::Column &)> &change);
    QRect currentRect() const;

    FlexGridState m_state;
    FlexGridView *m_view;
    QString m_formatString;
    QPointer<QAbstractItemModel> m_dataSource;
    bool m_redraw = true;
    bool m_rowNumbers = false;
    int m_wheelTurn = 0; ///< of the next step of the zoom, in eighths of a degree
};
