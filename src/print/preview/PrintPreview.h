#pragma once

#include "print/preview/PreviewPages.h"
#include "print/rules/Printable.h"

#include <QObject>

#include <optional>

class PrinterMetrics;

/// The print preview: shows the pages of a document one at a time in the main window's client area, turns, zooms and
/// scrolls them.
///
/// Page Up and Page Down scroll a page that is larger than the area and then turn it; the arrow keys scroll by small
/// steps, Home and End go to the first and the last page, Plus and Minus zoom, Escape closes. The wheel scrolls, or
/// turns a page that is wholly visible.
class PrintPreview : public QObject
{
    Q_OBJECT

public:
    PrintPreview(const PrinterMetrics &printer, PrintHost &host, QObject *parent = nullptr);
    ~PrintPreview() override;

    bool isOpen() const { return m_document.has_value(); }
    /// The document shown. Whoever prints it takes a copy: the preview may close while the print dialog is open.
    const Printable &document() const { return *m_document; }

    /// Shows the first page at one third of its size.
    void open(const Printable &document);
    /// Gives the client area back to the documents. Nothing happens when the preview is not open.
    void close();

    void nextPage();
    void previousPage();
    /// Lays the document out again at the same size, after the printer or its paper has changed, and shows a page (from
    /// 0) of it.
    void rebuild(int page);

    int visiblePage() const { return m_pages.visiblePage(); }
    frmPrtPrev *pageWindow() const { return m_pages.window(); }

Q_SIGNALS:
    /// Which of the buttons Previous and Next can be used.
    void buttonsChanged(bool previous, bool next);
    /// A text for the status bar, by id.
    void statusText(int id);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void zoom(double divisor);
    void build(int page);
    void showPage(int page);
    void Form_KeyUp(int key);
    /// Leaves a key that the preview has no use for to others.
    void onKeyPressed(QKeyEvent &event);
    void onWheel(int pixels);
    void pageDown();
    void pageUp();
    void scrollBy(int dx, int dy);
    int topWhenScrolledUp() const;
    int topWhenScrolledDown() const;
    int areaHeight() const;
    int areaStep() const;

    const PrinterMetrics &m_printer;
    PrintHost &m_host;
    PreviewPages m_pages;
    std::optional<Printable> m_document;
    double m_zoomDivisor = 3.0;
    int m_wheelTurned = 0; ///< pixels since the wheel turned a page
};
