#include "quiz/AnswerOptions.h"

#include "quiz/AnswerOption.h"

AnswerOptions::AnswerOptions(const std::array<AnswerOption *, Count> &options, QObject *parent)
    : QObject(parent)
    , m_options(options)
{
    for (int i = 0; i < Count; ++i) {
        m_group.addButton(option(i), i);
        option(i)->installEventFilter(this);
    }
    connect(&m_group, &QButtonGroup::idClicked, this, &AnswerOptions::chosen);
}

void AnswerOptions::offer(const Question &question)
{
    m_group.setExclusive(false);
    for (int i = 0; i < Count; ++i) {
        option(i)->setChecked(false);
        option(i)->setFullText(i + 1, question.field(i + Question::FirstOption));
    }
    m_group.setExclusive(true);
    setReached(false);
}

void AnswerOptions::setReached(bool reached)
{
    m_reached = reached;
    for (AnswerOption *each : m_options)
        each->setFocusShown(reached);
}

void AnswerOptions::setVisible(bool visible)
{
    for (AnswerOption *each : m_options)
        each->setVisible(visible);
}

bool AnswerOptions::chooseByDigit(int key)
{
    const int index = key - Qt::Key_1;
    if (index < 0 || index >= Count || !option(index)->isVisible())
        return false;
    choose(index);
    return true;
}

bool AnswerOptions::eventFilter(QObject *watched, QEvent *event)
{
    const auto at = std::find(m_options.begin(), m_options.end(), watched);
    if (event->type() == QEvent::KeyPress)
        return optionKey(int(at - m_options.begin()), static_cast<QKeyEvent *>(event)->key());
    // A window that opens tells its control of a focus that is not there yet.
    if (event->type() == QEvent::FocusIn && static_cast<QWidget *>(watched)->hasFocus()) {
        const Qt::FocusReason reason = static_cast<QFocusEvent *>(event)->reason();
        setReached(m_reached || reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason);
    }
    return QObject::eventFilter(watched, event);
}

bool AnswerOptions::optionKey(int index, int key)
{
    const bool reached = m_reached || m_group.checkedId() >= 0;
    switch (key) {
    case Qt::Key_Down:
    case Qt::Key_Right:
        moveTo(reached ? (index + 1) % Count : 0);
        return true;
    case Qt::Key_Up:
    case Qt::Key_Left:
        moveTo(reached ? (index + Count - 1) % Count : Count - 1);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (m_choosingChecks && reached)
            choose(index);
        return m_choosingChecks;
    default:
        return false;
    }
}

void AnswerOptions::moveTo(int index)
{
    setReached(true);
    if (m_choosingChecks)
        option(index)->setFocus(Qt::OtherFocusReason);
    else
        choose(index);
}

void AnswerOptions::choose(int index)
{
    option(index)->setFocus(Qt::OtherFocusReason);
    option(index)->click();
}
