#include "app/AppPrintHost.h"

#include "app/DocumentArea.h"
#include "app/frmApp.h"
#include "document/DocumentList.h"
#include "platform/Twips.h"
#include "services/status/modSBFunc.h"

#include <QMdiSubWindow>
#include <QSignalBlocker>
#include <QStackedWidget>

AppPrintHost::AppPrintHost(frmApp &window, QStackedWidget &views)
    : m_window(window)
    , m_views(views)
    , m_area(new QWidget)
{
    m_area->setObjectName(QStringLiteral("PreviewArea"));
    m_area->setBackgroundRole(QPalette::Dark);
    m_area->setAutoFillBackground(true);
    m_views.addWidget(m_area);
}

QWidget *AppPrintHost::window()
{
    return &m_window;
}

int AppPrintHost::toolbarHeight() const
{
    return m_window.toolbarHeight();
}

void AppPrintHost::showStatus(const QString &text)
{
    modSBFunc &status = m_window.context().status;
    status.showText(text);
    status.repaint();
}

void AppPrintHost::enterPreview()
{
    m_window.SetCommandState(AppState::StatePreview);
    modSBFunc &status = m_window.context().status;
    status.showText({});
    status.SBSetText(1, modSBFunc::SBT_SUNKEN, {});
    hideDocuments();
    m_views.setCurrentWidget(m_area);
}

void AppPrintHost::leavePreview()
{
    m_views.setCurrentWidget(m_window.documentArea());
    showDocuments();
    m_window.SetCommandState(AppState::StateDocument);
    m_window.context().status.ShowStatus(modSBFunc::Ready);
}

// The active document stays the active one: the document area is kept from telling that its windows come and go.
void AppPrintHost::hideDocuments()
{
    const QSignalBlocker blocker(m_window.documentArea());
    for (frmDoc *document : m_window.context().documents.open()) {
        QWidget *frame = document->frame();
        document->WindowLeft = Twips::fromPixelsX(frame->x());
        document->WindowTop = Twips::fromPixelsY(frame->y());
        frame->hide();
    }
}

void AppPrintHost::showDocuments()
{
    const QSignalBlocker blocker(m_window.documentArea());
    for (frmDoc *document : m_window.context().documents.open()) {
        QWidget *frame = document->frame();
        frame->move(Twips::toPixelsX(document->WindowLeft), Twips::toPixelsY(document->WindowTop));
        frame->show();
    }
    if (frmDoc *active = m_window.context().documents.active()) {
        m_window.documentArea()->setActiveSubWindow(qobject_cast<QMdiSubWindow *>(active->frame()));
        active->setFocus();
        active->refreshCellReference();
    }
}
