#include "widgets/NumberBox.h"

#include <QKeyEvent>
#include <QRegularExpressionValidator>

namespace {

const auto Whole = QStringLiteral("[0-9]*");
const auto WithFraction = QStringLiteral("[0-9]*\\.?[0-9]*");

bool isDigit(QChar ch)
{
    return ch >= u'0' && ch <= u'9';
}

} // namespace

NumberBox::NumberBox(QWidget *parent)
    : QLineEdit(parent)
    , m_validator(new QRegularExpressionValidator(QRegularExpression(Whole), this))
{
    setInputMethodHints(Qt::ImhDigitsOnly);
    setValidator(m_validator);
    connect(this, &QLineEdit::inputRejected, this, [] { QApplication::beep(); });
}

std::optional<int> NumberBox::Value() const
{
    bool isNumber = false;
    const int value = text().toInt(&isNumber);
    return isNumber ? std::optional(value) : std::nullopt;
}

void NumberBox::setValue(double value)
{
    const QString shown = QString::number(value, 'f', QLocale::FloatingPointShortest);
    const bool whole = std::all_of(shown.begin(), shown.end(), isDigit);
    m_validator->setRegularExpression(QRegularExpression(whole ? Whole : WithFraction));
    setText(shown);
}

void NumberBox::keyPressEvent(QKeyEvent *event)
{
    if (event->text() == u".") // the point of a fraction can be removed, not typed
        Q_EMIT inputRejected();
    else
        QLineEdit::keyPressEvent(event);
}
