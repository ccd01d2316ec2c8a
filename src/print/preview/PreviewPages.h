#pragma once

#include "print/preview/frmPrtPrev.h"

#include <QHash>
#include <QPointer>

class PrintHost;
class QLabel;

/// The page windows of the preview as one list. However many pages there are, only the one that is looked at has a
/// window; the others are remembered by where they were scrolled to. A label in the corner of the area tells its
/// number.
class PreviewPages
{
public:
    explicit PreviewPages(PrintHost &host);
    ~PreviewPages();

    /// Makes the window for the pages of a layout and shows one of them (from 0), or the last if there are no more as
    /// many. The window before it is gone then.
    frmPrtPrev *build(std::shared_ptr<const PageLayout> layout, int page);
    void closeAll();
    int count() const { return m_window ? m_window->pageCount() : 0; }

    /// The page in the window, from 0; -1 when there is none.
    int visiblePage() const;
    /// Hides the visible page and shows another, where it was last.
    void show(int page);

    /// The visible page's window.
    frmPrtPrev *window() const { return m_window; }
    /// Puts every page back to where it stands at first, as after a resize of the client area.
    void placeAgain();
    void moveTo(QPoint position);

private:
    QPoint startPosition() const;
    void showNumber();

    PrintHost &m_host;
    QPointer<frmPrtPrev> m_window;
    QPointer<QLabel> m_number;
    QHash<int, QPoint> m_positions; ///< of the pages that were moved, in pixels of the client area
};
