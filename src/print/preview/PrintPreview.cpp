#include "print/preview/PrintPreview.h"

#include "platform/Twips.h"
#include "print/BusyWindow.h"
#include "print/PrintHost.h"

#include <QKeyEvent>

#include <algorithm>

namespace {

constexpr double FullSize = 1.0;
constexpr double ThirdSize = 3.0;
constexpr int ClickToZoom = 505;
constexpr int GapBelow = 2000;  // twips between the bottom of a page scrolled to its end and the area's lower edge
constexpr int GapAbove = 7;     // pixels for each unit of the divisor, above a page scrolled to its beginning
constexpr int LinesOfArea = 12; // a small step is this part of the area's height
constexpr int WheelNotch = 60;  // pixels for one notch of a mouse wheel; touchpads turn by far less at a time

} // namespace

PrintPreview::PrintPreview(const PrinterMetrics &printer, PrintHost &host, QObject *parent)
    : QObject(parent)
    , m_printer(printer)
    , m_host(host)
    , m_pages(host)
{
}

PrintPreview::~PrintPreview() = default;

void PrintPreview::open(const Printable &document)
{
    const BusyWindow busy(m_host.window());
    m_host.enterPreview();
    m_document = document;
    m_zoomDivisor = ThirdSize;
    m_host.clientArea()->installEventFilter(this);
    build(0);
}

void PrintPreview::close()
{
    if (!isOpen())
        return;
    m_host.clientArea()->removeEventFilter(this);
    m_host.leavePreview();
    m_pages.closeAll();
    m_document.reset();
}

void PrintPreview::rebuild(int page)
{
    const BusyWindow busy(m_host.window());
    build(page);
}

void PrintPreview::build(int page)
{
    frmPrtPrev *window = m_pages.build(m_document->layOut(m_printer, m_zoomDivisor), page);
    connect(window, &frmPrtPrev::zoomInRequested, this, [this] { zoom(m_zoomDivisor - 1); });
    connect(window, &frmPrtPrev::zoomOutRequested, this, [this] { zoom(m_zoomDivisor + 1); });
    connect(window, &frmPrtPrev::keyReleased, this, &PrintPreview::Form_KeyUp);
    connect(window, &frmPrtPrev::wheelTurned, this, &PrintPreview::onWheel);
    connect(window, &frmPrtPrev::mouseMoved, this, [this] { Q_EMIT statusText(ClickToZoom); });
    showPage(m_pages.visiblePage());
}

void PrintPreview::zoom(double divisor)
{
    if (divisor < FullSize || divisor > ThirdSize)
        return;
    m_zoomDivisor = divisor;
    rebuild(m_pages.visiblePage());
}

void PrintPreview::showPage(int page)
{
    if (page < 0 || page >= m_pages.count())
        return;
    m_pages.show(page);
    Q_EMIT buttonsChanged(page > 0, page < m_pages.count() - 1);
}

void PrintPreview::nextPage()
{
    showPage(m_pages.visiblePage() + 1);
}

void PrintPreview::previousPage()
{
    showPage(m_pages.visiblePage() - 1);
}

int PrintPreview::areaHeight() const
{
    return m_host.clientArea()->height();
}

int PrintPreview::areaStep() const
{
    return areaHeight() - areaHeight() / LinesOfArea;
}

int PrintPreview::topWhenScrolledUp() const
{
    return int(GapAbove * m_zoomDivisor);
}

int PrintPreview::topWhenScrolledDown() const
{
    return areaHeight() - Twips::toPixelsY(GapBelow) - pageWindow()->height();
}

// Both go to the page's end in one step, unless that would pass over something that has not been seen: then nearly the
// height of the area.
void PrintPreview::pageDown()
{
    const frmPrtPrev *page = pageWindow();
    if (page->y() + page->height() <= areaHeight())
        return nextPage();
    const int end = topWhenScrolledDown();
    m_pages.moveTo({page->x(), page->y() - end > areaHeight() ? page->y() - areaStep() : end});
}

void PrintPreview::pageUp()
{
    const frmPrtPrev *page = pageWindow();
    if (page->y() >= 0)
        return previousPage();
    const int end = topWhenScrolledUp();
    m_pages.moveTo({page->x(), end - page->y() > areaHeight() ? page->y() + areaStep() : end});
}

// Keeps within the ends that the page keys scroll to; what is wholly visible does not move.
void PrintPreview::scrollBy(int dx, int dy)
{
    const QRect page = pageWindow()->geometry();
    const QRect area = m_host.clientArea()->rect();
    QPoint position = page.topLeft();
    if (page.height() > area.height() || page.top() < 0)
        position.ry() = std::clamp(page.top() + dy, std::min(topWhenScrolledDown(), page.top()),
                                   std::max(topWhenScrolledUp(), page.top()));
    if (page.width() > area.width())
        position.rx() = std::clamp(page.left() + dx, area.width() - page.width(), std::max(0, page.left()));
    m_pages.moveTo(position);
}

void PrintPreview::Form_KeyUp(int key)
{
    key == Qt::Key_PageDown ? pageDown() : pageUp();
}

void PrintPreview::onKeyPressed(QKeyEvent &event)
{
    event.accept();
    const int step = areaHeight() / LinesOfArea;
    switch (event.key()) {
    case Qt::Key_Down:
        return scrollBy(0, -step);
    case Qt::Key_Up:
        return scrollBy(0, step);
    case Qt::Key_Right:
        return scrollBy(-step, 0);
    case Qt::Key_Left:
        return scrollBy(step, 0);
    case Qt::Key_Home:
        return showPage(0);
    case Qt::Key_End:
        return showPage(m_pages.count() - 1);
    case Qt::Key_Plus:
        return zoom(m_zoomDivisor - 1);
    case Qt::Key_Minus:
        return zoom(m_zoomDivisor + 1);
    case Qt::Key_Escape:
        return close();
    default:
        event.ignore();
    }
}

void PrintPreview::onWheel(int pixels)
{
    const QRect page = pageWindow()->geometry();
    if (!m_host.clientArea()->rect().contains(page))
        return scrollBy(0, pixels);
    m_wheelTurned += pixels;
    if (std::abs(m_wheelTurned) >= WheelNotch)
        std::exchange(m_wheelTurned, 0) < 0 ? nextPage() : previousPage();
}

bool PrintPreview::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize)
        m_pages.placeAgain();
    if (event->type() != QEvent::KeyPress)
        return QObject::eventFilter(watched, event);
    onKeyPressed(*static_cast<QKeyEvent *>(event));
    return event->isAccepted();
}
