#include "services/modMsgBox.h"

#include "resources/StringTable.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QShortcut>

namespace {

QMessageBox::StandardButtons buttonsOf(Alert::Buttons buttons)
{
    return buttons == Alert::YesNoCancelHelp ? QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel
                                             : QMessageBox::StandardButtons(QMessageBox::Ok);
}

AlertBox::Answer answerOf(int button, Alert::Buttons buttons)
{
    switch (button) {
    case QMessageBox::Yes:
        return AlertBox::AnswerYes;
    case QMessageBox::No:
        return AlertBox::AnswerNo;
    default:
        return buttons == Alert::YesNoCancelHelp ? AlertBox::AnswerCancel : AlertBox::AnswerOk;
    }
}

} // namespace

modMsgBox::modMsgBox(OpenTopic openTopic)
    : m_openTopic(std::move(openTopic))
{
}

AlertBox::Answer modMsgBox::show(QWidget *owner, const Alert &alert)
{
    QMessageBox box(owner ? owner : m_mainWindow.data());
    box.setWindowTitle(alert.title.isEmpty() ? resText(507) : alert.title);
    box.setTextFormat(Qt::PlainText);
    box.setText(alert.prompt);
    if (alert.exclamation)
        box.setIcon(QMessageBox::Warning);
    else
        box.setIconPixmap(QApplication::windowIcon().pixmap(QSize(48, 48), box.devicePixelRatio()));
    box.setStandardButtons(buttonsOf(alert.buttons));
    const bool question = alert.buttons == Alert::YesNoCancelHelp;
    box.setDefaultButton(question ? QMessageBox::Yes : QMessageBox::Ok);
    box.setEscapeButton(question ? QMessageBox::Cancel : QMessageBox::Ok);
    if (alert.buttons != Alert::Ok) {
        // Without its own connections the button does not end the box.
        QPushButton *help = box.addButton(QMessageBox::Help);
        help->disconnect();
        const auto open = [this, &alert] { m_openTopic(alert.helpId); };
        QObject::connect(help, &QPushButton::clicked, &box, open);
        QObject::connect(new QShortcut(QKeySequence::HelpContents, &box), &QShortcut::activated, &box, open);
    }
    if (alert.sound)
        QApplication::beep();
    return answerOf(box.exec(), alert.buttons);
}
