#pragma once

#include "services/help/HelpDisplay.h"

#include <QPointer>
#include <QRect>
#include <QWidget>

#include <vector>

class AlertBox;
class QHelpEvent;
class QKeyEvent;
class QMenu;

/// What a request for help is about.
struct HelpInfo
{
    enum Kind { Window = 1, MenuItem = 2 };

    Kind kind = Window;
    bool whatsThis = false; ///< a click in What's This mode, else F1
    int contextId = 0;      ///< help topic of the drop-down, for MenuItem
};

/// The help of one window: F1 opens the topic of the control that has the focus, a click in What's This mode shows
/// what the clicked control is for, and F1 in a drop-down opens the drop-down's topic. Controls name their topic and
/// their text by the properties helpContextId and whatsThisId.
class clsHtmlHelp : public QObject
{
    Q_OBJECT

public:
    /// Without attach the object shows topics but answers nothing by itself.
    clsHtmlHelp(HelpDisplay &display, AlertBox &alert, HelpTarget target, QObject *parent = nullptr);

    QString HTMLHelpFile() const { return m_target.HTMLHelpFile; }
    QString ContextHelpFile() const { return m_target.ContextHelpFile; }
    QString HelpWindow() const { return m_target.HelpWindow; }

    /// When true, requests are handed to the owner as HelpRequest.
    bool UseEvent() const { return m_useEvent; }
    void setUseEvent(bool useEvent) { m_useEvent = useEvent; }

    /// True from the start of What's This mode to the next request for help.
    bool WhatsThisMode() const { return m_whatsThisMode; }

    /// Answers requests made in this window from now on. A control that names a what's-this text that does not exist
    /// is reported once.
    void attach(QWidget *window);

    void ShowContents();
    void ShowIndex();
    void ShowSearch();
    void ShowFavorites();
    void ShowTopicByID(int id);
    /// A path in the help file; folders are separated by a slash or a backslash.
    void ShowTopicByString(const QString &topic);
    /// Shows the text with that id at a point of the screen, in pixels. An id of 0 or less shows nothing.
    void ShowContextPopUp(int id, int x, int y);
    /// Shows what the control at a point of the window (pixels) is for: the child there or the nearest of its parents
    /// that has a text; else the first recorded control whose rectangle holds the point; else the window itself.
    void showWhatsThisAt(const QPoint &point);

Q_SIGNALS:
    /// x and y are pixels of the owner's client area.
    void HelpRequest(int x, int y, const HelpInfo &info);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Control
    {
        QPointer<QWidget> widget;
        int whatsThisId;
        QRect place; ///< pixels of the client area
    };

    bool recordControls();
    bool belongsToWindow(const QWidget *widget) const;
    bool onKey(QWidget *receiver, const QKeyEvent &key);
    bool onWhatsThis(const QWidget *receiver, QHelpEvent &event);
    void onMenuHelp(QMenu *menu);
    void answer(const QPoint &screenPoint, const HelpInfo &info);

    HelpDisplay &m_display;
    AlertBox &m_alert;
    HelpTarget m_target;
    QPointer<QWidget> m_window;
    std::vector<Control> m_controls;
    bool m_useEvent = false;
    bool m_whatsThisMode = false;
};
