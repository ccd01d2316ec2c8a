#include "quiz/AnswerBox.h"

namespace {

constexpr int LineWidth = 2;
constexpr int SideMargin = 6;
constexpr int EdgeMargin = 5;

} // namespace

AnswerBox::AnswerBox(QWidget *parent)
    : QLineEdit(parent)
{
    setFrame(false);
    setTextMargins(SideMargin, EdgeMargin, SideMargin, EdgeMargin + LineWidth);
    connect(this, &QLineEdit::selectionChanged, this, &AnswerBox::selectPrompt);
    connect(this, &QLineEdit::cursorPositionChanged, this, &AnswerBox::selectPrompt);
}

void AnswerBox::selectPrompt()
{
    if (promptStands() && !m_releasing && selectedText() != text())
        selectAll();
}

/// What the mouse has selected could be pasted elsewhere; the prompt must not take the place of what the user selected
/// to paste it here.
void AnswerBox::mouseReleaseEvent(QMouseEvent *event)
{
    m_releasing = promptStands() && event->button() == Qt::LeftButton;
    if (m_releasing)
        deselect();
    QLineEdit::mouseReleaseEvent(event);
    m_releasing = false;
    selectPrompt();
}

/// While nothing is typed the keys for Undo and Redo are the window's: there is nothing in the box to undo.
bool AnswerBox::event(QEvent *event)
{
    if (event->type() == QEvent::ShortcutOverride && text().isEmpty()) {
        const auto *key = static_cast<QKeyEvent *>(event);
        if ((key->matches(QKeySequence::Undo) && !isUndoAvailable()) ||
            (key->matches(QKeySequence::Redo) && !isRedoAvailable())) {
            event->ignore();
            return true;
        }
    }
    return QLineEdit::event(event);
}

void AnswerBox::paintEvent(QPaintEvent *event)
{
    QLineEdit::paintEvent(event);
    QPainter painter(this);
    const QRect line(0, height() - LineWidth, width(), LineWidth);
    painter.fillRect(line, palette().color(hasFocus() ? QPalette::Highlight : QPalette::Mid));
}
