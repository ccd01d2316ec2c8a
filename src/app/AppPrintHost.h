#pragma once

#include "print/PrintHost.h"

class QStackedWidget;
class frmApp;

/// Gives the print preview its place in the main window: an area that takes the place of the document windows.
class AppPrintHost : public PrintHost
{
public:
    /// views shows the document area; the preview's is added to it.
    AppPrintHost(frmApp &window, QStackedWidget &views);

    QWidget *window() override;
    QWidget *clientArea() override { return m_area; }
    int toolbarHeight() const override;
    void showStatus(const QString &text) override;
    void enterPreview() override;
    void leavePreview() override;

private:
    void hideDocuments();
    void showDocuments();

    frmApp &m_window;
    QStackedWidget &m_views;
    QWidget *m_area;
};
