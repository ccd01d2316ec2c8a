#include "quiz/AnswerOption.h"

#include "services/FormTexts.h"
#include "widgets/FittedLabel.h"

#include <QFontMetricsF>
#include <QResizeEvent>
#include <QStyleOptionButton>

namespace {

constexpr double ButtonPixels = 20; ///< less room than a label has, for the round button
constexpr double LineHeight = 1.35; ///< of the type's height: marks above and below letters need room
constexpr QChar FirstStrongIsolate(0x2068);
constexpr QChar PopDirectionalIsolate(0x2069);

} // namespace

AnswerOption::AnswerOption(QWidget *parent)
    : QRadioButton(parent)
{
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

void AnswerOption::setFullText(int number, const QString &text)
{
    m_number = number;
    // A font may have the whole letter only, not the accent that a text puts behind it.
    m_fullText = text.normalized(QString::NormalizationForm_C);
    setAccessibleName(QString::number(number) + u' ' + text);
    fit();
}

void AnswerOption::setFocusShown(bool shown)
{
    m_focusShown = shown;
    update();
}

void AnswerOption::initStyleOption(QStyleOptionButton *option) const
{
    QRadioButton::initStyleOption(option);
    const QStyle::State focus = QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange;
    option->state = m_focusShown && hasFocus() ? option->state | focus : option->state & ~focus;
}

QSize AnswerOption::sizeHint() const
{
    return QSize(QRadioButton::sizeHint().width(), int(QFontMetricsF(font()).height() * LineHeight));
}

QSize AnswerOption::minimumSizeHint() const
{
    return QSize(0, sizeHint().height());
}

bool AnswerOption::hitButton(const QPoint &position) const
{
    return rect().contains(position);
}

void AnswerOption::resizeEvent(QResizeEvent *event)
{
    QRadioButton::resizeEvent(event);
    fit();
}

double AnswerOption::roomForText() const
{
    const int indicator = style()->pixelMetric(QStyle::PM_ExclusiveIndicatorWidth, nullptr, this) +
                          style()->pixelMetric(QStyle::PM_RadioButtonLabelSpacing, nullptr, this);
    const double number = QFontMetricsF(font()).horizontalAdvance(QString::number(m_number) + u' ');
    return std::min(width() * FittedLabel::UsableWidth - ButtonPixels, width() - indicator - number);
}

void AnswerOption::fit()
{
    if (m_number == 0)
        return;
    const QString shown = fittedText(m_fullText, font(), roomForText());
    setToolTip(shown == m_fullText ? QString() : FormTexts::plainToolTip(m_fullText));
    QString caption = FormTexts::escapeMnemonic(shown);
    // Keeps the punctuation of a text that runs against the window on its own side of the number.
    if (m_fullText.isRightToLeft() != isRightToLeft())
        caption = FirstStrongIsolate + caption + PopDirectionalIsolate;
    setText(u'&' + QString::number(m_number) + u' ' + caption);
}
