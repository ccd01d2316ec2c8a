#include "services/help/clsHtmlHelp.h"

#include "resources/StringTable.h"
#include "services/AlertBox.h"
#include "services/FormTexts.h"

#include <QApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QWhatsThis>

namespace {

constexpr int CannotAssignIds = 13002;

int whatsThisIdOf(const QWidget *control)
{
    return control->property("whatsThisId").toInt();
}

/// The topic of a drop-down, or of the one it was opened from.
int menuTopic(const QWidget *menu)
{
    for (; qobject_cast<const QMenu *>(menu); menu = menu->parentWidget()) {
        if (const int id = menu->property("helpContextId").toInt())
            return id;
    }
    return 0;
}

/// An open drop-down keeps keys and mouse from every window.
void closeMenus()
{
    while (QWidget *popup = QApplication::activePopupWidget()) {
        if (!popup->close())
            return;
    }
}

} // namespace

clsHtmlHelp::clsHtmlHelp(HelpDisplay &display, AlertBox &alert, HelpTarget target, QObject *parent)
    : QObject(parent)
    , m_display(display)
    , m_alert(alert)
    , m_target(std::move(target))
{
}

void clsHtmlHelp::attach(QWidget *window)
{
    m_window = window;
    QApplication::instance()->installEventFilter(this);
    if (recordControls())
        return;
    m_alert.show(window, {.prompt = resText(CannotAssignIds)});
}

/// Drop-downs are windows of their own and are never hit.
bool clsHtmlHelp::recordControls()
{
    m_controls.clear();
    static const QList<int> texts = resTextIds();
    bool complete = true;
    for (QWidget *control : m_window->findChildren<QWidget *>()) {
        const int id = whatsThisIdOf(control);
        if (!id || control->window() != m_window)
            continue;
        const QRect place(control->mapTo(m_window.data(), QPoint(0, 0)), control->size());
        m_controls.push_back({control, id, place});
        complete = complete && std::binary_search(texts.begin(), texts.end(), id);
    }
    return complete;
}

void clsHtmlHelp::ShowContents()
{
    m_display.HtmlHelp(m_target, HH_DISPLAY_TOC);
}

void clsHtmlHelp::ShowIndex()
{
    m_display.HtmlHelp(m_target, HH_DISPLAY_INDEX);
}

void clsHtmlHelp::ShowSearch()
{
    m_display.HtmlHelp(m_target, HH_DISPLAY_SEARCH);
}

void clsHtmlHelp::ShowFavorites()
{
    m_display.HtmlHelp(m_target, HH_DISPLAY_FAVORITES);
}

void clsHtmlHelp::ShowTopicByID(int id)
{
    m_display.HtmlHelp(m_target, HH_HELP_CONTEXT, id);
}

void clsHtmlHelp::ShowTopicByString(const QString &topic)
{
    m_display.HtmlHelp(m_target, HH_DISPLAY_TOPIC, topic);
}

void clsHtmlHelp::ShowContextPopUp(int id, int x, int y)
{
    if (id > 0)
        m_display.showPopUp(m_window, id, QPoint(x, y));
}

void clsHtmlHelp::showWhatsThisAt(const QPoint &point)
{
    const QPoint screenPoint = m_window->mapToGlobal(point);
    for (QWidget *child = m_window->childAt(point); child && child != m_window; child = child->parentWidget()) {
        if (const int id = whatsThisIdOf(child))
            return ShowContextPopUp(id, screenPoint.x(), screenPoint.y());
    }
    const auto hit = std::find_if(m_controls.begin(), m_controls.end(), [&point](const Control &control) {
        return control.widget && control.widget->isVisible() && control.place.contains(point);
    });
    ShowContextPopUp(hit == m_controls.end() ? whatsThisIdOf(m_window) : hit->whatsThisId, screenPoint.x(),
                     screenPoint.y());
}

bool clsHtmlHelp::eventFilter(QObject *watched, QEvent *event)
{
    auto *receiver = qobject_cast<QWidget *>(watched);
    if (!m_window || !receiver)
        return false;
    switch (event->type()) {
    case QEvent::EnterWhatsThisMode:
    case QEvent::LeaveWhatsThisMode:
        if (receiver == m_window) {
            m_whatsThisMode = event->type() == QEvent::EnterWhatsThisMode;
            recordControls();
        }
        return false;
    case QEvent::KeyPress:
        return belongsToWindow(receiver) && onKey(receiver, *static_cast<QKeyEvent *>(event));
    case QEvent::WhatsThis:
        return receiver->window() == m_window && onWhatsThis(receiver, *static_cast<QHelpEvent *>(event));
    default:
        return false;
    }
}

/// Drop-downs are windows of their own; what counts is the window that they were opened from.
bool clsHtmlHelp::belongsToWindow(const QWidget *widget) const
{
    while (qobject_cast<const QMenu *>(widget) && widget->parentWidget())
        widget = widget->parentWidget();
    return widget->window() == m_window;
}

bool clsHtmlHelp::onKey(QWidget *receiver, const QKeyEvent &key)
{
    const Qt::KeyboardModifiers modifiers = key.modifiers() & ~Qt::KeypadModifier;
    if (key.key() != Qt::Key_F1 || key.isAutoRepeat() || QWhatsThis::inWhatsThisMode())
        return false;
    if (modifiers == Qt::ShiftModifier && !qobject_cast<QMenu *>(receiver)) {
        QWhatsThis::enterWhatsThisMode();
        return true;
    }
    if (modifiers != Qt::NoModifier)
        return false;
    if (auto *menu = qobject_cast<QMenu *>(receiver))
        onMenuHelp(menu);
    else
        answer(QCursor::pos(), {});
    return true;
}

void clsHtmlHelp::onMenuHelp(QMenu *menu)
{
    const int topic = menuTopic(menu);
    closeMenus();
    answer(QCursor::pos(), topic ? HelpInfo{HelpInfo::MenuItem, false, topic} : HelpInfo{});
}

/// The request reaches the clicked widget first and then its parents; it is answered once, when it comes to the window.
bool clsHtmlHelp::onWhatsThis(const QWidget *receiver, QHelpEvent &event)
{
    event.ignore();
    if (receiver != m_window)
        return true;
    answer(event.globalPos(), {HelpInfo::Window, true, 0});
    // A popup ends the mode; without one it ends when the button is released.
    event.setAccepted(!QWhatsThis::inWhatsThisMode());
    m_whatsThisMode = false;
    return true;
}

void clsHtmlHelp::answer(const QPoint &screenPoint, const HelpInfo &info)
{
    const QPoint point = m_window->mapFromGlobal(screenPoint);
    if (m_useEvent) {
        Q_EMIT HelpRequest(point.x(), point.y(), info);
    } else if (info.kind == HelpInfo::MenuItem) {
        ShowTopicByID(info.contextId);
    } else if (info.whatsThis) {
        showWhatsThisAt(point);
    } else {
        const QWidget *focus = QApplication::focusWidget();
        ShowTopicByID(FormTexts::helpContextId(focus && focus->window() == m_window ? focus : m_window));
    }
}
