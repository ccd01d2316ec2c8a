#pragma once

#include <QLineEdit>

/// The edit box that a vocabulary grid lays over the cell being edited. It tells the grid of each key before it acts on
/// it itself, keeps tabs and line breaks out, and knows one level of undo, which a second undo takes back.
class ctlGridEdit : public QLineEdit
{
    Q_OBJECT

public:
    explicit ctlGridEdit(QWidget *parent);

    /// Begins with a text and the caret at its end, in a long text at position 1000; there is nothing to undo yet.
    void begin(const QString &text);
    /// Keeps the letters where the cell has them when it is shown so many times as large.
    void setZoom(double factor);
    /// Takes what an input method is composing into the text, as the user sees it.
    void finishComposing();
    void cutText();
    void pasteText();
    /// Undoes the last typing, or redoes it when the last thing done was to undo it.
    void undoText();
    bool canUndoText() const;

Q_SIGNALS:
    /// A key went down. taken is set by whoever acts on it in the box's place.
    void keyPressed(int keyCode, int shift, bool &taken);
    void keyReleased(int keyCode, int shift);
    /// A character is about to be typed; 0 swallows it, another value replaces it.
    void characterTyped(int &character);
    void clicked();
    /// A menu is asked for at a point of the screen.
    void menuRequested(const QPoint &globalPosition);

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void inputMethodEvent(QInputMethodEvent *event) override;
    QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    bool focusNextPrevChild(bool next) override;

private:
    void separateUndo();
    QString filtered(const QString &typed);

    bool m_undone = false;
    QString m_composed; ///< what an input method shows and has not given yet
};
