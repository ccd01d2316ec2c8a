#include "services/modMsgBox.h"

#include "resources/StringTable.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QShortcut>

namespace {

constexpr int HelpCaption = 13031;

/// What the buttons are, which of them Enter presses, and which Escape.
struct ButtonSet
{
    QMessageBox::StandardButtons all;
    QMessageBox::StandardButton enter;
    QMessageBox::StandardButton escape;
    bool help;
};

ButtonSet setOf(Alert::Buttons buttons)
{
    switch (buttons) {
    case Alert::YesNo:
        return {QMessageBox::Yes | QMessageBox::No, QMessageBox::No, QMessageBox::No, false};
    case Alert::YesNoCancelHelp:
        return {QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::Yes, QMessageBox::Cancel, true};
    default:
        return {QMessageBox::Ok, QMessageBox::Ok, QMessageBox::Ok, buttons == Alert::OkHelp};
    }
}

AlertBox::Answer answerOf(int button)
{
    switch (button) {
    case QMessageBox::Yes:
        return AlertBox::AnswerYes;
    case QMessageBox::No:
        return AlertBox::AnswerNo;
    case QMessageBox::Cancel:
        return AlertBox::AnswerCancel;
    default:
        return AlertBox::AnswerOk;
    }
}

} // namespace

modMsgBox::modMsgBox(OpenTopic openTopic, std::function<void()> beep)
    : m_openTopic(std::move(openTopic))
    , m_beep(std::move(beep))
{
}

AlertBox::Answer modMsgBox::show(QWidget *owner, const Alert &alert)
{
    // An owner that goes while the box is open takes the box with it.
    const QPointer<QMessageBox> box = new QMessageBox(owner ? owner : m_mainWindow.data());
    box->setWindowTitle(alert.title.isEmpty() ? resText(507) : alert.title);
    box->setTextFormat(Qt::PlainText);
    box->setText(alert.prompt);
    if (alert.exclamation)
        box->setIcon(QMessageBox::Warning);
    else
        box->setIconPixmap(QApplication::windowIcon().pixmap(QSize(48, 48), box->devicePixelRatio()));
    const ButtonSet buttons = setOf(alert.buttons);
    box->setStandardButtons(buttons.all);
    box->setDefaultButton(buttons.enter);
    box->setEscapeButton(buttons.escape);
    if (buttons.help) {
        // Without its own connections the button does not end the box.
        QPushButton *help = box->addButton(QMessageBox::Help);
        help->disconnect();
        help->setText(resText(HelpCaption));
        const auto open = [this, &alert] { m_openTopic(alert.helpId); };
        QObject::connect(help, &QPushButton::clicked, box, open);
        QObject::connect(new QShortcut(QKeySequence::HelpContents, box), &QShortcut::activated, box, open);
    }
    if (alert.sound)
        m_beep();
    const int button = box->exec();
    if (!box)
        return answerOf(buttons.escape);
    delete box;
    return answerOf(button);
}
