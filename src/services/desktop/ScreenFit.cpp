#include "services/desktop/ScreenFit.h"

#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QScreen>
#include <QScrollArea>
#include <QStyle>
#include <QVBoxLayout>

namespace {

/// Left for the window manager's frame, which is not there before the dialog shows.
constexpr QSize FrameRoom(10, 36);

/// The row of buttons that ends the layout, taken out of it; null when it ends in something else.
QDialogButtonBox *takeButtons(QLayout &layout)
{
    const int last = layout.count() - 1;
    auto *buttons = last < 0 ? nullptr : qobject_cast<QDialogButtonBox *>(layout.itemAt(last)->widget());
    if (buttons)
        layout.removeWidget(buttons);
    return buttons;
}

/// Puts the content of a dialog into an area that scrolls; returns the size at which nothing has to.
QSize makeScrollable(QDialog &dialog)
{
    QDialogButtonBox *buttons = takeButtons(*dialog.layout());
    auto *page = new QWidget;
    page->setLayout(dialog.layout());
    auto *area = new QScrollArea(&dialog);
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidgetResizable(true);
    area->setWidget(page);
    auto *layout = new QVBoxLayout(&dialog);
    const QMargins margins = page->layout()->contentsMargins();
    layout->setContentsMargins(0, 0, 0, buttons ? margins.bottom() : 0);
    layout->addWidget(area);
    if (buttons) {
        layout->addWidget(buttons);
        buttons->setContentsMargins(margins.left(), 0, margins.right(), 0);
    }
    // What the old layout has demanded of the dialog ends with it.
    dialog.setMinimumSize(0, 0);
    dialog.setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    layout->activate();
    QObject::connect(qApp, &QApplication::focusChanged, area, [area](QWidget *, QWidget *now) {
        if (now && area->widget()->isAncestorOf(now))
            area->ensureWidgetVisible(now);
    });
    const int scrollBar = dialog.style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, &dialog);
    return page->sizeHint() + QSize(scrollBar, buttons ? buttons->sizeHint().height() + margins.bottom() : 0);
}

} // namespace

ScreenFit::ScreenFit(QApplication &application)
{
    application.installEventFilter(this);
}

bool ScreenFit::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Show && !event->spontaneous()) {
        if (auto *dialog = qobject_cast<QDialog *>(watched); dialog && dialog->isWindow())
            fit(*dialog);
    }
    return false;
}

QRect ScreenFit::room(const QWidget &window)
{
    const QRect screen = window.screen()->availableGeometry();
    return {screen.topLeft(), screen.size() - FrameRoom};
}

void ScreenFit::fit(QDialog &dialog)
{
    const QRect place = room(dialog);
    if (!dialog.layout() || dialog.size().boundedTo(place.size()) == dialog.size())
        return;
    QSize size = dialog.size();
    const QSize least = dialog.layout()->totalMinimumSize();
    if (least.boundedTo(place.size()) != least)
        size = makeScrollable(dialog).expandedTo(size);
    dialog.resize(size.boundedTo(place.size()));
    dialog.move(place.topLeft());
}
