#include "app/MainHelp.h"

#include "app/AppContext.h"
#include "app/AppToolbars.h"
#include "app/frmApp.h"
#include "document/DocumentList.h"
#include "document/ctlGrid.h"
#include "print/PrintCommands.h"

namespace {

constexpr int GridText = 20042;
constexpr int BelowPointer = 10; // pixels

} // namespace

MainHelp::MainHelp(HelpDisplay &display, AlertBox &alert, QObject *parent)
    : QObject(parent)
    , m_clsHH(display, alert, HelpTarget::ofProgram())
    , m_topics(display, alert, HelpTarget::ofProgram())
{
}

void MainHelp::attach(const AppContext &context, const AppToolbars &toolbars)
{
    m_context = &context;
    m_toolbars = &toolbars;
    m_clsHH.setUseEvent(true);
    connect(&m_clsHH, &clsHtmlHelp::HelpRequest, this, &MainHelp::clsHH_HelpRequest);
    m_clsHH.attach(&context.window);
}

void MainHelp::clsHH_HelpRequest(int x, int y, const HelpInfo &info)
{
    const QPoint point(x, y);
    const int button = m_toolbars->whatsThisAt(point);
    if (info.kind == HelpInfo::MenuItem)
        m_topics.ShowTopicByID(info.contextId);
    else if (button >= 0 || info.whatsThis)
        showWhatsThis(point);
    else
        m_topics.ShowTopicByString(topicOfView());
}

void MainHelp::showWhatsThis(const QPoint &point)
{
    const frmApp &window = m_context->window;
    const QPoint screenPoint = window.mapToGlobal(point);
    const frmDoc *document = m_context->documents.active();
    const ctlGrid *grid = document ? document->Rutor() : nullptr;
    if (const int button = m_toolbars->whatsThisAt(point); button >= 0)
        m_clsHH.ShowContextPopUp(button, screenPoint.x(), screenPoint.y());
    else if (grid && grid->isVisible() && grid->rect().contains(grid->mapFromGlobal(screenPoint)))
        m_clsHH.ShowContextPopUp(GridText, screenPoint.x(), screenPoint.y() + BelowPointer);
    else
        m_clsHH.showWhatsThisAt(point);
}

QString MainHelp::topicOfView() const
{
    if (m_context->print.preview().isOpen())
        return QStringLiteral("html\\printpreviewwindow.html");
    return m_context->documents.active() ? QStringLiteral("html\\documentwindow.html")
                                         : QStringLiteral("html\\welcome.html");
}
