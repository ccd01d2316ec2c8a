#pragma once

#include <QLineEdit>

/// An edit box for a whole number without a sign: takes digits only. Whatever is typed or pasted and would leave
/// anything else in it is refused with a beep, and text, caret and selection stay as they were.
class NumberBox : public QLineEdit
{
    Q_OBJECT

public:
    explicit NumberBox(QWidget *parent = nullptr);

    /// The number shown; nothing when the box is empty or the number does not fit an int.
    std::optional<int> Value() const;
    void setValue(int value) { setText(QString::number(value)); }
};
