#include "services/desktop/ScreenFit.h"

#include "platform/WaylandDesktop.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QScreen>
#include <QScrollArea>
#include <QStyle>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace {

/// Left for the window manager's frame, which is not there before the dialog shows.
constexpr QSize FrameRoom(10, 36);
constexpr int LeastLetters = 10;  ///< that a narrow box with choices has room for, its arrow included
constexpr int DesktopsTurn = 500; ///< milliseconds in which the desktop moves windows from a screen that has gone

/// The row of buttons that ends the layout, taken out of it; null when it ends in something else.
QDialogButtonBox *takeButtons(QLayout &layout)
{
    const int last = layout.count() - 1;
    auto *buttons = last < 0 ? nullptr : qobject_cast<QDialogButtonBox *>(layout.itemAt(last)->widget());
    if (buttons)
        layout.removeWidget(buttons);
    return buttons;
}

/// Breaks the text of a button at the blank nearest to its middle.
void breakText(QAbstractButton &button)
{
    QString text = button.text();
    const qsizetype middle = text.size() / 2;
    const qsizetype before = text.lastIndexOf(u' ', middle), after = text.indexOf(u' ', middle);
    const qsizetype at = before < 0 || (after >= 0 && after - middle < middle - before) ? after : before;
    if (at >= 0)
        button.setText(text.replace(at, 1, u'\n'));
}

/// The buttons whose texts may have two lines, the widest first.
QList<QAbstractButton *> breakableButtons(const QDialog &dialog)
{
    QList<QAbstractButton *> buttons = dialog.findChildren<QAbstractButton *>();
    buttons.removeIf([&dialog](const QAbstractButton *button) {
        const bool isBreakable = qobject_cast<const QCheckBox *>(button) || qobject_cast<const QToolButton *>(button);
        return !isBreakable || !button->isVisibleTo(&dialog);
    });
    std::stable_sort(buttons.begin(), buttons.end(), [](const QAbstractButton *one, const QAbstractButton *other) {
        return one->sizeHint().width() > other->sizeHint().width();
    });
    return buttons;
}

/// Makes a dialog narrower as long as it is wider than this (pixels): lists and boxes with choices give up width, for
/// they show the rest when they are used, and long texts beside check marks and pictures go on in a second line.
void narrow(const QDialog &dialog, int width)
{
    const auto settle = [] { QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest); };
    const auto isTooWide = [&dialog, width, settle] {
        settle();
        return dialog.layout()->totalMinimumSize().width() > width;
    };
    for (auto *area : dialog.findChildren<QAbstractScrollArea *>()) {
        if (isTooWide())
            area->setMinimumWidth(0);
    }
    for (auto *box : dialog.findChildren<QComboBox *>()) {
        if (isTooWide())
            box->setMinimumWidth(LeastLetters * box->fontMetrics().horizontalAdvance(u'X'));
    }
    for (QAbstractButton *button : breakableButtons(dialog)) {
        if (isTooWide())
            breakText(*button);
    }
    settle();
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
    connect(&application, &QGuiApplication::screenRemoved, this,
            [this] { QTimer::singleShot(DesktopsTurn, this, &ScreenFit::bringBackAll); });
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

QRect ScreenFit::inView(const QRect &frame, const QList<QRect> &screens)
{
    QRegion seen;
    QRect best = screens.value(0);
    for (const QRect &screen : screens) {
        seen += screen;
        const QSize here = screen.intersected(frame).size(), there = best.intersected(frame).size();
        if (here.width() * here.height() > there.width() * there.height())
            best = screen;
    }
    if (QRegion(frame).subtracted(seen).isEmpty() || best.isEmpty())
        return frame;
    const QSize size = frame.size().boundedTo(best.size());
    const QPoint last = best.bottomRight() - QPoint(size.width() - 1, size.height() - 1);
    return {{qBound(best.x(), frame.x(), last.x()), qBound(best.y(), frame.y(), last.y())}, size};
}

void ScreenFit::bringBackAll()
{
    if (WaylandDesktop::isHere())
        return;
    QList<QRect> screens;
    for (const QScreen *screen : QGuiApplication::screens())
        screens += screen->availableGeometry();
    for (QWidget *window : QApplication::topLevelWidgets()) {
        const bool floats = window->windowType() == Qt::Window || window->windowType() == Qt::Dialog;
        if (!floats || !window->isVisible() || window->windowState() != Qt::WindowNoState)
            continue;
        const QRect frame = window->frameGeometry();
        const QRect place = inView(frame, screens);
        if (place == frame)
            continue;
        window->resize(window->size() - frame.size() + place.size());
        window->move(place.topLeft());
    }
}

void ScreenFit::fit(QDialog &dialog)
{
    const QRect place = room(dialog);
    if (!dialog.layout() || dialog.size().boundedTo(place.size()) == dialog.size())
        return;
    QSize least = dialog.layout()->totalMinimumSize();
    const bool scrolls = least.height() > place.height();
    const int scrollBar = dialog.style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, &dialog);
    narrow(dialog, place.width() - (scrolls ? scrollBar : 0));
    QSize size = dialog.size();
    least = dialog.layout()->totalMinimumSize();
    if (least.boundedTo(place.size()) != least)
        size = makeScrollable(dialog).expandedTo(size);
    dialog.resize(size.boundedTo(place.size()));
    dialog.move(place.topLeft());
}
