#pragma once

#include "services/help/clsHtmlHelp.h"

class AppToolbars;
struct AppContext;

/// The help of the main window: the topics of menus, documents and preview, and what toolbar buttons and the grid are
/// for.
class MainHelp : public QObject
{
    Q_OBJECT

public:
    MainHelp(HelpDisplay &display, AlertBox &alert, QObject *parent = nullptr);

    /// To be called when the window and its toolbars stand; all of it outlives the object.
    void attach(const AppContext &context, const AppToolbars &toolbars);

    void ShowContents() { m_clsHH.ShowContents(); }

private:
    void clsHH_HelpRequest(int x, int y, const HelpInfo &info);
    void showWhatsThis(const QPoint &point);
    QString topicOfView() const;

    clsHtmlHelp m_clsHH;  ///< answers requests made in the main window
    clsHtmlHelp m_topics; ///< shows topics, whatever window asked
    const AppContext *m_context = nullptr;
    const AppToolbars *m_toolbars = nullptr;
};
