#include "widgets/TextBoxAccessible.h"

#include <QLineEdit>
#include <QValidator>

namespace {

QAccessibleInterface *create(const QString &className, QObject *object)
{
    auto *box = className == u"QLineEdit" ? static_cast<QLineEdit *>(object) : nullptr;
    const bool isPlain = box && box->echoMode() == QLineEdit::Normal && box->objectName() != u"qt_spinbox_lineedit";
    return isPlain ? new TextBoxAccessible(box) : nullptr;
}

} // namespace

void TextBoxAccessible::install()
{
    QAccessible::installFactory(create);
}

TextBoxAccessible::TextBoxAccessible(QLineEdit *box)
    : QAccessibleWidget(box, QAccessible::EditableText)
{
}

QLineEdit &TextBoxAccessible::box() const
{
    return *static_cast<QLineEdit *>(widget());
}

void *TextBoxAccessible::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::TextInterface)
        return static_cast<QAccessibleTextInterface *>(this);
    if (type == QAccessible::EditableTextInterface)
        return static_cast<QAccessibleEditableTextInterface *>(this);
    return QAccessibleWidget::interface_cast(type);
}

QAccessible::State TextBoxAccessible::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.editable = true;
    state.selectableText = true;
    state.readOnly = box().isReadOnly();
    return state;
}

QString TextBoxAccessible::text(QAccessible::Text kind) const
{
    if (kind == QAccessible::Value)
        return box().text();
    const QString own = QAccessibleWidget::text(kind);
    return kind == QAccessible::Description && own.isEmpty() ? box().placeholderText() : own;
}

void TextBoxAccessible::setText(QAccessible::Text kind, const QString &text)
{
    if (kind != QAccessible::Value) {
        QAccessibleWidget::setText(kind, text);
        return;
    }
    QString allowed = text;
    int caret = 0;
    if (!box().validator() || box().validator()->validate(allowed, caret) == QValidator::Acceptable)
        box().setText(allowed);
}

void TextBoxAccessible::selection(int index, int *start, int *end) const
{
    const bool isThere = index == 0 && box().hasSelectedText();
    *start = isThere ? box().selectionStart() : 0;
    *end = isThere ? box().selectionEnd() : 0;
}

int TextBoxAccessible::selectionCount() const
{
    return box().hasSelectedText() ? 1 : 0;
}

void TextBoxAccessible::addSelection(int start, int end)
{
    setSelection(0, start, end);
}

void TextBoxAccessible::removeSelection(int index)
{
    if (index == 0)
        box().deselect();
}

void TextBoxAccessible::setSelection(int index, int start, int end)
{
    if (index == 0)
        box().setSelection(start, end - start);
}

int TextBoxAccessible::cursorPosition() const
{
    return box().cursorPosition();
}

void TextBoxAccessible::setCursorPosition(int position)
{
    box().setCursorPosition(position);
}

QString TextBoxAccessible::text(int start, int end) const
{
    return start > end ? QString() : box().text().mid(start, end - start);
}

int TextBoxAccessible::characterCount() const
{
    return int(box().text().size());
}

/// Measured from the caret, whose place the box knows.
QRect TextBoxAccessible::characterRect(int offset) const
{
    if (offset < 0 || offset >= characterCount())
        return {};
    const auto fromCaret = [this](int position) {
        const QFontMetrics letters(box().font());
        return letters.horizontalAdvance(box().text().left(position)) -
               letters.horizontalAdvance(box().text().left(cursorPosition()));
    };
    const QRect caret = box().inputMethodQuery(Qt::ImCursorRectangle).toRect();
    const int width = fromCaret(offset + 1) - fromCaret(offset);
    const int x = box().text().isRightToLeft() ? -fromCaret(offset + 1) : fromCaret(offset);
    return {box().mapToGlobal(QPoint(caret.center().x() + x, caret.y())), QSize(width, caret.height())};
}

int TextBoxAccessible::offsetAtPoint(const QPoint &point) const
{
    return box().cursorPositionAt(box().mapFromGlobal(point));
}

void TextBoxAccessible::scrollToSubstring(int start, int end)
{
    box().setCursorPosition(end);
    box().setCursorPosition(start);
}

QString TextBoxAccessible::attributes(int, int *start, int *end) const
{
    *start = 0;
    *end = characterCount();
    return {};
}

void TextBoxAccessible::deleteText(int start, int end)
{
    replaceText(start, end, {});
}

void TextBoxAccessible::insertText(int offset, const QString &text)
{
    replaceText(offset, offset, text);
}

void TextBoxAccessible::replaceText(int start, int end, const QString &text)
{
    box().setText(box().text().replace(start, end - start, text));
}
