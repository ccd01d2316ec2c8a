#include "document/ctlGridEdit.h"

#include "services/desktop/Composition.h"
#include "services/rules/CellText.h"
#include "services/rules/ClipText.h"
#include "widgets/grid/FlexGridCellText.h"
#include "widgets/grid/FlexGridKeys.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QPainter>
#include <QValidator>

#include <cmath>
#include <limits>

namespace {

constexpr int OwnMargin = 2; ///< pixels that the toolkit keeps free beside a box's text
constexpr qsizetype FarthestCaret = 1000;

/// Another program would take a move for a reason to delete what it gave.
void takeAsCopy(QDropEvent &event, const QObject *box)
{
    if (event.isAccepted() && event.source() != box)
        event.setDropAction(Qt::CopyAction);
}

/// Turns tabs and line breaks into blanks on every way a text can enter: paste, drop, input method.
class OneLine : public QValidator
{
public:
    using QValidator::QValidator;

    State validate(QString &input, int &) const override
    {
        input = CellText::cleaned(input);
        return Acceptable;
    }
};

} // namespace

ctlGridEdit::ctlGridEdit(QWidget *parent)
    : QLineEdit(parent)
{
    setFrame(false);
    setZoom(1);
    setMaxLength(std::numeric_limits<int>::max()); // a longer cell would be cut when it is edited
    setValidator(new OneLine(this));
    connect(this, &QLineEdit::textEdited, this, [this] { m_undone = false; });
}

void ctlGridEdit::begin(const QString &text)
{
    QInputMethodEvent nothing;
    inputMethodEvent(&nothing); // what was being composed when Escape closed the box
    setText(text);
    const bool betweenHalves = text.size() > FarthestCaret && text.at(FarthestCaret).isLowSurrogate();
    setCursorPosition(int(std::min(text.size(), FarthestCaret + (betweenHalves ? 1 : 0))));
    m_undone = false;
}

void ctlGridEdit::setZoom(double factor)
{
    setTextMargins(int(std::lround(FlexGridCellText::Margin * factor)) - OwnMargin, 0, 0, 1);
}

void ctlGridEdit::cutText()
{
    cut();
    separateUndo();
}

void ctlGridEdit::pasteText()
{
    const QString text = QGuiApplication::clipboard()->text();
    if (text.isEmpty())
        return;
    const std::vector<ClipText::Row> rows = ClipText::parse(text);
    const bool oneCell = rows.size() == 1 && rows.front().size() == 1;
    separateUndo();
    insert(CellText::cleaned(oneCell ? rows.front().front() : text));
    separateUndo();
}

/// What is typed before and after is an undo of its own: the toolkit separates at each step of the caret.
void ctlGridEdit::separateUndo()
{
    const int caret = cursorPosition();
    const int start = selectionStart();
    const int length = int(selectedText().size());
    setCursorPosition(caret > 0 ? caret - 1 : caret + 1);
    setCursorPosition(caret);
    if (start == caret && length > 0)
        setSelection(start + length, -length);
    else if (start >= 0)
        setSelection(start, length);
}

void ctlGridEdit::undoText()
{
    const bool redoes = m_undone && isRedoAvailable();
    if (redoes)
        redo();
    else
        undo();
    m_undone = !redoes;
}

bool ctlGridEdit::canUndoText() const
{
    return isUndoAvailable() || (m_undone && isRedoAvailable());
}

bool ctlGridEdit::event(QEvent *event)
{
    // the menu's shortcuts for these come first, as in the grid
    if (event->type() == QEvent::ShortcutOverride) {
        const auto *key = static_cast<QKeyEvent *>(event);
        for (const QKeySequence::StandardKey command :
             {QKeySequence::Undo, QKeySequence::Cut, QKeySequence::Copy, QKeySequence::Paste}) {
            if (key->matches(command)) {
                event->ignore();
                return false;
            }
        }
    }
    return QLineEdit::event(event);
}

void ctlGridEdit::keyPressEvent(QKeyEvent *event)
{
    bool taken = false;
    Q_EMIT keyPressed(FlexGridKeys::virtualKey(*event), FlexGridKeys::shiftBits(event->modifiers()), taken);
    if (FlexGridKeys::typesCharacter(*event)) {
        const QString typed = filtered(event->text());
        if (typed != event->text()) {
            insert(typed);
            return;
        }
    }
    const bool isTab = event->key() == Qt::Key_Tab || event->key() == Qt::Key_Backtab;
    if (taken || isTab)
        return; // an ignored tab would move the focus
    if (event->matches(QKeySequence::Undo))
        undoText();
    else if (event->matches(QKeySequence::Paste))
        pasteText();
    else
        QLineEdit::keyPressEvent(event);
}

QString ctlGridEdit::filtered(const QString &typed)
{
    QString kept;
    for (const char32_t letter : typed.toUcs4()) {
        int character = int(letter);
        Q_EMIT characterTyped(character);
        const auto left = char32_t(character);
        if (character > 0)
            kept += QString::fromUcs4(&left, 1);
    }
    return kept;
}

void ctlGridEdit::keyReleaseEvent(QKeyEvent *event)
{
    QLineEdit::keyReleaseEvent(event);
    Q_EMIT keyReleased(FlexGridKeys::virtualKey(*event), FlexGridKeys::shiftBits(event->modifiers()));
}

void ctlGridEdit::inputMethodEvent(QInputMethodEvent *event)
{
    const QString committed = event->commitString();
    if (!committed.isEmpty())
        event->setCommitString(filtered(committed), event->replacementStart(), event->replacementLength());
    m_composed = event->preeditString();
    QLineEdit::inputMethodEvent(event);
}

QVariant ctlGridEdit::inputMethodQuery(Qt::InputMethodQuery query) const
{
    const bool isOff = query == Qt::ImEnabled && QApplication::activePopupWidget(); // the letters are the menu's
    return isOff ? false : QLineEdit::inputMethodQuery(query);
}

void ctlGridEdit::finishComposing()
{
    if (m_composed.isEmpty())
        return;
    const QString before = text();
    QInputMethodEvent composed;
    composed.setCommitString(m_composed);
    Composition::finish();
    if (text() == before)
        QCoreApplication::sendEvent(this, &composed);
}

void ctlGridEdit::mouseReleaseEvent(QMouseEvent *event)
{
    QLineEdit::mouseReleaseEvent(event);
    if (event->button() == Qt::LeftButton)
        Q_EMIT clicked();
}

/// The program's own menu: its entries are the commands, which work on the box while it is open.
void ctlGridEdit::contextMenuEvent(QContextMenuEvent *event)
{
    Q_EMIT menuRequested(event->globalPos());
}

void ctlGridEdit::focusOutEvent(QFocusEvent *event)
{
    // the selection stays, so that a search can replace it from its own window
    const int start = selectionStart();
    const int length = selectionLength();
    QLineEdit::focusOutEvent(event);
    if (start >= 0)
        setSelection(start, length);
    updateMicroFocus();
}

void ctlGridEdit::focusInEvent(QFocusEvent *event)
{
    QLineEdit::focusInEvent(event);
    updateMicroFocus();
}

void ctlGridEdit::dragEnterEvent(QDragEnterEvent *event)
{
    if (event->mimeData()->hasUrls()) {
        event->ignore(); // files are the main window's
        return;
    }
    QLineEdit::dragEnterEvent(event);
    takeAsCopy(*event, this);
}

void ctlGridEdit::dragMoveEvent(QDragMoveEvent *event)
{
    QLineEdit::dragMoveEvent(event);
    takeAsCopy(*event, this);
}

void ctlGridEdit::dropEvent(QDropEvent *event)
{
    QLineEdit::dropEvent(event);
    takeAsCopy(*event, this);
}

void ctlGridEdit::paintEvent(QPaintEvent *event)
{
    QLineEdit::paintEvent(event);
    QPainter painter(this);
    painter.setPen(palette().highlight().color());
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    painter.drawRect(rect().adjusted(1, 1, -2, -2));
}

bool ctlGridEdit::focusNextPrevChild(bool)
{
    return false;
}
