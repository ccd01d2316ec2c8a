#include "print/preview/PreviewPages.h"

#include "platform/Twips.h"
#include "print/PrintHost.h"

#include <QLabel>

#include <algorithm>

namespace {

constexpr int NumberMargin = 4; ///< pixels around the page's number

} // namespace

PreviewPages::PreviewPages(PrintHost &host)
    : m_host(host)
{
}

PreviewPages::~PreviewPages()
{
    delete m_window;
    delete m_number;
}

frmPrtPrev *PreviewPages::build(std::shared_ptr<const PageLayout> layout, int page)
{
    closeAll();
    m_window = new frmPrtPrev(std::move(layout), m_host.clientArea());
    m_number = new QLabel(m_host.clientArea());
    m_number->setObjectName(QStringLiteral("lblPage"));
    m_number->setAutoFillBackground(true);
    m_number->setBackgroundRole(QPalette::Window); // the area's own is dark
    m_number->setForegroundRole(QPalette::WindowText);
    m_number->setMargin(NumberMargin);
    m_number->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_number->show();
    show(std::clamp(page, 0, count() - 1));
    return m_window;
}

// The window may be the sender of the signal that is being handled.
void PreviewPages::closeAll()
{
    m_positions.clear();
    if (!m_window)
        return;
    m_window->hide();
    m_window->deleteLater();
    m_window = nullptr;
    delete m_number;
}

int PreviewPages::visiblePage() const
{
    return m_window ? m_window->page() : -1;
}

void PreviewPages::show(int page)
{
    m_window->setPage(page);
    m_window->move(m_positions.value(page, startPosition()));
    m_window->show();
    m_window->setFocus();
    showNumber();
}

void PreviewPages::placeAgain()
{
    m_positions.clear();
    if (m_window)
        m_window->move(startPosition());
    showNumber();
}

// Over the margin of a page that is larger than the area.
void PreviewPages::showNumber()
{
    if (!m_number)
        return;
    m_number->setText(m_window->accessibleName());
    m_number->adjustSize();
    m_number->move(0, m_host.clientArea()->height() - m_number->height());
    m_number->raise();
}

void PreviewPages::moveTo(QPoint position)
{
    m_positions.insert(visiblePage(), position);
    m_window->move(position);
}

// Centred, less the height of the toolbars. A page that is larger than the area begins above it; one that fits is not
// cut.
QPoint PreviewPages::startPosition() const
{
    constexpr int leastLeft = 45; // twips
    const QSize area = m_host.clientArea()->size();
    int left = area.width() / 2 - m_window->width() / 2;
    if (left < 0)
        left = Twips::toPixelsX(leastLeft);
    const int top = area.height() / 2 - m_window->height() / 2 - m_host.toolbarHeight();
    return {left, m_window->height() <= area.height() ? std::max(0, top) : top};
}
