#include "widgets/NumberBox.h"

#include <QRegularExpressionValidator>

NumberBox::NumberBox(QWidget *parent)
    : QLineEdit(parent)
{
    setInputMethodHints(Qt::ImhDigitsOnly);
    setValidator(new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9]*")), this));
    connect(this, &QLineEdit::inputRejected, this, [] { QApplication::beep(); });
}

std::optional<int> NumberBox::Value() const
{
    bool isNumber = false;
    const int value = text().toInt(&isNumber);
    return isNumber ? std::optional(value) : std::nullopt;
}
