#pragma once

#include <QWidget>

class QToolButton;

/// A row of buttons that type the letters which a keyboard may lack, with Shift their capitals. Ctrl+1 to Ctrl+9 type
/// the first nine while the window is active; Tab leads to the row and the arrow keys along it. Without letters it is
/// hidden.
class LetterRow : public QWidget
{
    Q_OBJECT

public:
    static constexpr int MostLetters = 24;

    explicit LetterRow(QWidget *parent = nullptr);

    /// Small letters, in the order in which they are shown.
    void setLetters(const QStringList &letters);

    /// The widget from which Tab leads to the row; without one it is that made before the row.
    void setTabOrderAfter(QWidget *before) { m_before = before; }

Q_SIGNALS:
    void typed(const QString &letter);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QToolButton *addButton(int place);
    void addKeys(int place);
    void orderTabs();
    void type(int place, bool capital);
    bool moveFocus(QObject *from, int step);
    void showCapitals(bool capitals);
    QString letter(int place, bool capital) const;

    QWidget *m_before = nullptr;
    QStringList m_letters;
    QList<QToolButton *> m_buttons;
    bool m_capitals = false;
};
