#pragma once

#include "widgets/grid/FlexGridBand.h"
#include "widgets/grid/FlexGridState.h"

#include <QAbstractScrollArea>
#include <QBasicTimer>
#include <QPointer>

#include <vector>

/// What the user sees and touches of a flex grid: it lays out and draws the cells, scrolls them and turns mouse and
/// keys into wishes, which its owner grants. It changes nothing but the scroll position. Rows scroll row by row,
/// columns pixel by pixel. Rectangles and points are pixels of the viewport.
class FlexGridView : public QAbstractScrollArea
{
    Q_OBJECT

public:
    FlexGridView(const FlexGridState &state, QWidget *parent);

    const FlexGridState &state() const { return m_state; }
    /// Asks the owner for a selection, as mouse and keys do.
    void wantSelection(const GridSelection &selection) { Q_EMIT selectionWanted(selection); }

    /// Sizes or numbers of rows and columns changed: brings the scroll bars up to date and draws.
    void layOutAgain();
    /// While held back nothing is laid out or drawn.
    void setHeldBack(bool heldBack);

    int topRow() const { return m_topRow; }
    void setTopRow(int row);
    /// The first scrollable column of which something is shown.
    int leftCol() const;
    void setLeftCol(int col);
    void scrollToCell(int row, int col);

    /// A row or column that is larger than the view counts as visible when it stands first.
    bool rowIsVisible(int row) const;
    bool colIsVisible(int col) const;

    int rowPixels(int row) const;
    int normalRowPixels(int row) const; ///< without the zoom, as what follows
    int normalColPixels(int col) const;
    /// Row numbers are always shown whole: their column is no narrower than the largest of them.
    int colPixels(int col) const;
    qint64 rowTop(int row) const;
    qint64 colLeft(int col) const;
    QRect cellRect(int row, int col) const;
    /// Where the cells that scroll are shown.
    QRect cellArea() const;
    /// Row or column under a position, -1 beyond the last one.
    int rowAt(int y) const;
    int colAt(int x) const;
    /// The size at which every row and column is shown without scrolling.
    QSize wholeSize() const;
    /// The height and width in pixels of the normal size that the texts of a row or a column need.
    int fittingRowPixels(int row) const;
    int fittingColPixels(int col) const;

    /// What an input method composes and what is typed goes on in a box that is laid over the grid. It takes the focus
    /// when typing rests: to move it earlier would break the composition off and lose letters that are on their way.
    /// nullptr when the box closes.
    void composeIn(QWidget *box);

    int mouseRow() const { return m_mouseRow; }
    int mouseCol() const { return m_mouseCol; }
    void applyPointer();

Q_SIGNALS:
    void selectionWanted(const GridSelection &selection);
    void rowHeightWanted(int row, int twips);
    void colWidthWanted(int col, int twips);
    void scrolled();
    void laidOut();
    void focusArrived();
    void clicked();
    void cellDoubleClicked();
    void keyPressed(int keyCode, int shift);
    void keyReleased(int keyCode, int shift);
    void characterTyped(int character);
    void inputMethodUsed(QInputMethodEvent *event);
    /// Positions are pixels of the view, Shift bits as in FlexGridKeys.
    void mousePressed(int button, int shift, const QPointF &position);
    void mouseMoved(int button, int shift, const QPointF &position);
    void mouseReleased(int button, int shift, const QPointF &position);

protected:
    bool event(QEvent *event) override;
    bool viewportEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    bool focusNextPrevChild(bool next) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void inputMethodEvent(QInputMethodEvent *event) override;
    QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void timerEvent(QTimerEvent *event) override;

private:
    enum class Drag { None, Cells, Rows, Cols, RowBorder, ColBorder };

    using Bands = std::vector<FlexGridBand>;

    /// Sets the ranges of both scroll bars; whether that scrolled the cells.
    bool updateScrollBars();
    void measureNumbers();
    bool showsNumbers(int col) const;
    void layOutIfNeeded();
    /// The viewport's size when only the scroll bars that are needed are shown.
    QSize roomBesideBars() const;
    int largestTopRow(int height) const;
    int rowsOnPage() const;
    int fixedHeight() const;
    int fixedWidth() const;
    qint64 scrollableWidth() const;
    /// The x of something laid out from the left when the grid runs from right to left, and back.
    int mirrored(int x, int width) const;
    Bands fixedRowBands() const;
    Bands shownRowBands() const;
    Bands fixedColBands() const;
    Bands shownColBands() const;

    void passFocusToComposer();
    bool navigate(const QKeyEvent &event);
    /// The next shown row or column in a direction (1 or -1); the same one when there is none.
    int rowBeside(int row, int step) const;
    int colBeside(int col, int step) const;
    int colAtEnd(int direction) const;
    void movePage(int direction, int row, int col, bool extend);
    void move(int row, int col, bool extend);
    GridSelection widened(GridSelection selection) const;

    /// The row or column whose border can be dragged from a position, -1 if none.
    int borderColAt(const QPoint &position) const;
    int borderRowAt(const QPoint &position) const;
    void startDrag(const QPoint &position, bool extend);
    void startHeaderDrag(int row, int col, bool extend);
    void dragTo(const QPoint &position);
    void dragSelectionTo(const QPoint &position);
    void dragBorderTo(const QPoint &position);
    QCursor ownPointer() const;
    /// The text of the cell at a position if the cell shows a part of it only, else empty.
    QString cutTextAt(const QPoint &position) const;

    const FlexGridState &m_state;
    int m_topRow = 1;
    bool m_heldBack = false;
    bool m_layoutPending = false;
    int m_numberPixels = 0; ///< what the largest row number needs, for this many digits in this font
    int m_numberDigits = 0;
    QFont m_numberFont;
    int m_mouseRow = -1;
    int m_mouseCol = -1;
    Drag m_drag = Drag::None;
    int m_dragged = -1; ///< the row or column whose border is dragged
    QPoint m_dragPosition;
    QBasicTimer m_autoScroll;
    QPointer<QWidget> m_composer;
    QBasicTimer m_composerRest; ///< runs while nothing is being composed
};
