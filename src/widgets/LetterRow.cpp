#include "widgets/LetterRow.h"

#include "resources/StringTable.h"
#include "services/FormTexts.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QShortcut>
#include <QToolButton>

namespace {

constexpr int LettersWithKey = 9;
constexpr int WhatsThisId = 21330;

/// A letter whose capital is written with more characters has none of its own.
QString capitalOf(const QString &letter)
{
    const QString capital = letter.toUpper();
    return capital.size() == letter.size() ? capital : letter;
}

} // namespace

LetterRow::LetterRow(QWidget *parent)
    : QWidget(parent)
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addStretch();
    setAccessibleName(resText(14370));
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    for (int place = 0; place < LettersWithKey; ++place)
        addKeys(place);
    QCoreApplication::instance()->installEventFilter(this); // Shift may be pressed wherever the focus is
    hide();
}

void LetterRow::addKeys(int place)
{
    for (const bool capital : {false, true}) {
        const int shift = capital ? int(Qt::SHIFT) : 0;
        auto *key = new QShortcut(QKeySequence(int(Qt::CTRL) | shift | (Qt::Key_1 + place)), this);
        connect(key, &QShortcut::activated, this, [this, place, capital] { type(place, capital); });
    }
}

QToolButton *LetterRow::addButton(int place)
{
    auto *button = new QToolButton;
    button->setAutoRaise(true);
    FormTexts::setWhatsThis(button, WhatsThisId);
    if (place < LettersWithKey)
        button->setToolTip(resText(14371).arg(place + 1));
    connect(button, &QToolButton::clicked, this, [this, place] { type(place, m_capitals); });
    static_cast<QHBoxLayout *>(layout())->insertWidget(place, button);
    return button;
}

void LetterRow::setLetters(const QStringList &letters)
{
    if (letters == m_letters)
        return;
    m_letters = letters;
    while (m_buttons.size() < m_letters.size())
        m_buttons += addButton(int(m_buttons.size()));
    while (m_buttons.size() > m_letters.size())
        delete m_buttons.takeLast();
    orderTabs();
    showCapitals(m_capitals);
    setVisible(!m_letters.isEmpty());
}

/// The toolkit orders only what takes the focus; Tab is to stop at the row once.
void LetterRow::orderTabs()
{
    QWidget *before = m_before;
    for (QToolButton *button : m_buttons) {
        button->setFocusPolicy(Qt::TabFocus);
        if (before)
            setTabOrder(before, button);
        before = button;
    }
    for (QToolButton *button : m_buttons.mid(1))
        button->setFocusPolicy(Qt::NoFocus);
}

QString LetterRow::letter(int place, bool capital) const
{
    return capital ? capitalOf(m_letters[place]) : m_letters[place];
}

void LetterRow::type(int place, bool capital)
{
    if (isVisible() && place < m_letters.size())
        Q_EMIT typed(letter(place, capital));
}

void LetterRow::showCapitals(bool capitals)
{
    m_capitals = capitals;
    for (int place = 0; place < int(m_buttons.size()); ++place) {
        m_buttons[place]->setText(letter(place, capitals));
        m_buttons[place]->setAccessibleName(letter(place, capitals));
    }
}

bool LetterRow::eventFilter(QObject *watched, QEvent *event)
{
    const bool isKey = event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease;
    if (event->type() == QEvent::ApplicationDeactivate)
        showCapitals(false);
    if (!isKey || !isVisible())
        return false;
    const int key = static_cast<QKeyEvent *>(event)->key();
    if (key == Qt::Key_Shift)
        showCapitals(event->type() == QEvent::KeyPress);
    const int step = key == Qt::Key_Right ? 1 : key == Qt::Key_Left ? -1 : 0;
    return step && event->type() == QEvent::KeyPress && moveFocus(watched, step);
}

/// Along the row; the button that has the focus is the one that Tab comes back to. The buttons' own keys would lead out
/// of the row.
bool LetterRow::moveFocus(QObject *from, int step)
{
    const qsizetype place = m_buttons.indexOf(qobject_cast<QToolButton *>(from));
    if (place < 0)
        return false;
    const qsizetype next = std::clamp<qsizetype>(place + step, 0, m_buttons.size() - 1);
    m_buttons[place]->setFocusPolicy(Qt::NoFocus);
    m_buttons[next]->setFocusPolicy(Qt::TabFocus);
    m_buttons[next]->setFocus(Qt::OtherFocusReason);
    return true;
}
