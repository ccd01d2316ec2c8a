#include "app/DocumentArea.h"

#include "document/frmDoc.h"
#include "resources/Pictures.h"

#include <QLayout>
#include <QMdiSubWindow>
#include <QMenu>
#include <QResizeEvent>
#include <QShortcut>
#include <QStyle>

namespace {

/// The window's own Close would share Ctrl+W with the command, and the key would then do nothing.
void freeCloseKey(const QMenu &systemMenu)
{
    const QList<QAction *> actions = systemMenu.actions();
    for (QAction *action : actions) {
        if (action->shortcuts().contains(QKeySequence(Qt::CTRL | Qt::Key_W)))
            action->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_F4));
    }
}

/// Where an edit was ended by minimising, the toolkit knows nothing to give the focus back to.
void focusWhenRestored(const QMdiSubWindow &frame, frmDoc &document)
{
    QObject::connect(&frame, &QMdiSubWindow::windowStateChanged, &document,
                     [&document](Qt::WindowStates before, Qt::WindowStates now) {
                         if (before & ~now & Qt::WindowMinimized)
                             document.setFocus();
                     });
}

} // namespace

DocumentArea::DocumentArea(QWidget *parent)
    : QMdiArea(parent)
{
    setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setActivationOrder(ActivationHistoryOrder); // who closes a document is back in the one before
    addKeys();
}

void DocumentArea::addKeys()
{
    connect(new QShortcut(Qt::ALT | Qt::Key_Minus, this), &QShortcut::activated, this, [this] {
        if (QMdiSubWindow *document = activeSubWindow())
            document->showSystemMenu();
    });
    connect(new QShortcut(Qt::CTRL | Qt::Key_Tab, this), &QShortcut::activated, this, [this] { goAround(true); });
    connect(new QShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_Tab, this), &QShortcut::activated, this,
            [this] { goAround(false); });
}

/// Goes to the document after or before the active one in the order of the Window menu; the area's own keys would
/// follow its history.
void DocumentArea::goAround(bool forward)
{
    setActivationOrder(CreationOrder);
    if (forward)
        activateNextSubWindow();
    else
        activatePreviousSubWindow();
    setActivationOrder(ActivationHistoryOrder);
}

QMdiSubWindow *DocumentArea::place(frmDoc &document)
{
    QMdiSubWindow *frame = addSubWindow(&document);
    frame->setAttribute(Qt::WA_DeleteOnClose);
    frame->setWindowIcon(picture(PictureDocument));
    frame->setGeometry(mirrored(WindowLayout::nextPlace(viewport()->rect(), document.Tag(), cascadeStep())));
    frame->layout()->activate(); // the document measures its columns before it is shown
    if (const QMdiSubWindow *active = activeSubWindow(); active && active->isMaximized())
        document.resize(viewport()->size()); // so will this one be
    freeCloseKey(*frame->systemMenu());
    focusWhenRestored(*frame, document);
    return frame;
}

int DocumentArea::cascadeStep() const
{
    return style()->pixelMetric(QStyle::PM_TitleBarHeight) + style()->pixelMetric(QStyle::PM_MdiSubWindowFrameWidth);
}

QRect DocumentArea::mirrored(const QRect &place) const
{
    return QStyle::visualRect(layoutDirection(), viewport()->rect(), place);
}

void DocumentArea::resizeEvent(QResizeEvent *event)
{
    const int wider = event->oldSize().isValid() ? event->size().width() - event->oldSize().width() : 0;
    QMdiArea::resizeEvent(event);
    if (!isRightToLeft() || wider == 0)
        return;
    const QList<QMdiSubWindow *> windows = subWindowList();
    for (QMdiSubWindow *window : windows) {
        if (!window->isMaximized())
            window->move(window->x() + wider, window->y());
    }
}

std::vector<QRect> DocumentArea::placesFor(WindowArrangement how, const QList<QMdiSubWindow *> &windows) const
{
    const QRect area = viewport()->rect();
    const int count = int(windows.size());
    switch (how) {
    case WindowArrangement::Cascade:
        return WindowLayout::cascade(area, count, cascadeStep());
    case WindowArrangement::ArrangeIcons:
        return WindowLayout::icons(area, count, windows.first()->size());
    default:
        return WindowLayout::tiles(area, count, how == WindowArrangement::TileHorizontally);
    }
}

void DocumentArea::activate(frmDoc &document)
{
    if (auto *frame = qobject_cast<QMdiSubWindow *>(document.frame())) {
        if (frame->isMinimized())
            frame->showNormal();
        setActiveSubWindow(frame);
    }
    document.setFocus();
}

void DocumentArea::arrange(WindowArrangement how)
{
    QList<QMdiSubWindow *> open;
    QList<QMdiSubWindow *> icons;
    for (QMdiSubWindow *window : subWindowList()) {
        if (window->isVisible())
            (window->isMinimized() ? icons : open).append(window);
    }
    const QList<QMdiSubWindow *> &windows = how == WindowArrangement::ArrangeIcons ? icons : open;
    if (windows.isEmpty())
        return;
    const std::vector<QRect> places = placesFor(how, windows);
    for (qsizetype i = 0; i < windows.size(); ++i) {
        if (windows[i]->isMaximized())
            windows[i]->showNormal();
        windows[i]->setGeometry(mirrored(places[size_t(i)]));
        if (how == WindowArrangement::Cascade)
            windows[i]->raise();
    }
}
