#include "print/preview/frmPrtPrev.h"

#include "platform/Twips.h"
#include "print/PaintedSurface.h"
#include "print/rules/PageLayout.h"
#include "resources/StringTable.h"
#include "services/FormTexts.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

namespace {

constexpr int WhatsThisId = 20033;

/// Keys that turn or scroll pages when they come up; every other key acts when it goes down, and not here.
bool actsOnRelease(int key)
{
    return key == Qt::Key_PageUp || key == Qt::Key_PageDown;
}

} // namespace

frmPrtPrev::frmPrtPrev(std::shared_ptr<const PageLayout> layout, QWidget *parent)
    : QWidget(parent)
    , m_layout(std::move(layout))
{
    setFocusPolicy(Qt::StrongFocus);
    FormTexts::setWhatsThis(this, WhatsThisId);
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    resize(Twips::toPixelsX(m_layout->pageWidth()), Twips::toPixelsY(m_layout->pageHeight()));
}

frmPrtPrev::~frmPrtPrev() = default;

int frmPrtPrev::pageCount() const
{
    return m_layout->pageCount();
}

void frmPrtPrev::setPage(int page)
{
    m_page = page;
    setAccessibleName(resText(12406).arg(page + 1).arg(pageCount()));
    update();
}

// Paper is white in every palette.
void frmPrtPrev::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    painter.setPen(Qt::gray);
    painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
    painter.setRenderHint(QPainter::TextAntialiasing);
    painter.scale(1 / Twips::perPixelX(), 1 / Twips::perPixelY());
    PaintedSurface surface(painter);
    m_layout->drawPage(m_page, surface);
}

void frmPrtPrev::keyPressEvent(QKeyEvent *event)
{
    event->setAccepted(actsOnRelease(event->key()));
}

void frmPrtPrev::keyReleaseEvent(QKeyEvent *event)
{
    event->setAccepted(actsOnRelease(event->key()));
    if (event->isAccepted() && !event->isAutoRepeat())
        Q_EMIT keyReleased(event->key());
}

void frmPrtPrev::mouseMoveEvent(QMouseEvent *)
{
    Q_EMIT mouseMoved();
}

void frmPrtPrev::mousePressEvent(QMouseEvent *)
{
    setFocus(Qt::MouseFocusReason);
}

void frmPrtPrev::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    if (event->modifiers() & Qt::ControlModifier)
        Q_EMIT zoomOutRequested();
    else
        Q_EMIT zoomInRequested();
}

void frmPrtPrev::wheelEvent(QWheelEvent *event)
{
    Q_EMIT wheelTurned(event->angleDelta().y() / 2);
}
