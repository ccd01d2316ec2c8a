#include "services/desktop/EnterKey.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QKeyEvent>

namespace {

class Filter : public QObject
{
public:
    explicit Filter(QDialog &dialog)
        : QObject(&dialog)
        , m_dialog(dialog)
    {
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        const auto *list = qobject_cast<QComboBox *>(watched);
        if (event->type() != QEvent::KeyPress || (list && list->isEditable())) // that leaves Enter to the dialog
            return false;
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key != Qt::Key_Return && key != Qt::Key_Enter)
            return false;
        QApplication::sendEvent(&m_dialog, event);
        return true;
    }

private:
    QDialog &m_dialog;
};

} // namespace

void EnterKey::leaveToDialog(QDialog &dialog)
{
    auto *filter = new Filter(dialog);
    for (auto *button : dialog.findChildren<QAbstractButton *>()) {
        if (button->isCheckable())
            button->installEventFilter(filter);
    }
    for (auto *list : dialog.findChildren<QComboBox *>())
        list->installEventFilter(filter);
}
