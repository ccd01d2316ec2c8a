#pragma once

#include <QLineEdit>

class QRegularExpressionValidator;

/// An edit box for a whole number without a sign: takes digits only. Whatever is typed or pasted and would leave
/// anything else in it is refused with a beep, and text, caret and selection stay as they were. A number that the
/// program shows may have a fraction, which the user can shorten or replace.
class NumberBox : public QLineEdit
{
    Q_OBJECT

public:
    explicit NumberBox(QWidget *parent = nullptr);

    /// The number shown; nothing when the box is empty or the number does not fit an int.
    std::optional<int> Value() const;
    void setValue(double value);

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    QRegularExpressionValidator *m_validator;
};
