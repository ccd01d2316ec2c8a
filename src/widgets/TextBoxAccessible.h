#pragma once

#include <QAccessibleWidget>

class QLineEdit;

/// Shows a text box of one line to screen readers. The toolkit's own tells that its text has no attributes letter by
/// letter, each time of no letters: readers that speak what has the same attributes leave out the last letter.
class TextBoxAccessible : public QAccessibleWidget,
                          public QAccessibleTextInterface,
                          public QAccessibleEditableTextInterface
{
public:
    /// To be called once the application exists; holds for every such box but those of passwords and number boxes.
    static void install();

    explicit TextBoxAccessible(QLineEdit *box);

    void *interface_cast(QAccessible::InterfaceType type) override;
    QAccessible::State state() const override;
    QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text kind, const QString &text) override;

    void selection(int index, int *start, int *end) const override;
    int selectionCount() const override;
    void addSelection(int start, int end) override;
    void removeSelection(int index) override;
    void setSelection(int index, int start, int end) override;
    int cursorPosition() const override;
    void setCursorPosition(int position) override;
    QString text(int start, int end) const override;
    int characterCount() const override;
    QRect characterRect(int offset) const override;
    int offsetAtPoint(const QPoint &point) const override;
    void scrollToSubstring(int start, int end) override;
    QString attributes(int offset, int *start, int *end) const override;

    void deleteText(int start, int end) override;
    void insertText(int offset, const QString &text) override;
    void replaceText(int start, int end, const QString &text) override;

private:
    QLineEdit &box() const;
};
