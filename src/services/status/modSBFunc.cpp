#include "services/status/modSBFunc.h"

#include "resources/StringTable.h"
#include "services/status/StatusPanel.h"

#include <QProgressBar>
#include <QSizeGrip>
#include <QStyle>

namespace {

constexpr int SizeGripWidth = 20;
constexpr int LargestRange = 32767;
constexpr int BarHeight = 20;
constexpr int PanelGap = 2;
constexpr int TitleAndCredit = 2000;

} // namespace

modSBFunc::modSBFunc(const ProgramFlags &flags, QWidget *parent)
    : QWidget(parent)
    , m_flags(flags)
    , m_grip(new QSizeGrip(this))
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    for (StatusPanel *&panel : m_panels)
        panel = new StatusPanel(this);
    m_panels[3]->setFrameStyle(QFrame::NoFrame);
    m_grip->raise();
    setStatusTip(resText(TitleAndCredit));
}

void modSBFunc::createPanels(int barWidth)
{
    m_rightEdges[2] = std::max(m_rightEdges[1], barWidth - SizeGripWidth);
    SBSetText(0, SBT_SUNKEN, resText(Ready));
}

/// How far panel 1 moves to the right for the text of panel 0, in pixels.
int modSBFunc::roomForMessage() const
{
    const int wanted = m_panels[0]->wholeWidth() + PanelGap - m_rightEdges[0];
    const int free = std::min(m_rightEdges[2], width()) - m_rightEdges[1] - m_panels[2]->wholeWidth() - PanelGap;
    return std::max(0, std::min(wanted, free));
}

void modSBFunc::placePanels()
{
    const int moved = roomForMessage();
    int left = 0;
    for (size_t i = 0; i < m_panels.size(); ++i) {
        const int right = i < 2 ? m_rightEdges[i] + moved : i == 2 ? m_rightEdges[i] : std::max(left, width());
        m_panels[i]->setGeometry(mirrored({left, 1, right - left - PanelGap, height() - 1}));
        left = right;
    }
    if (m_progress)
        m_progress->setGeometry(panelRect(1));
    const QSize grip = m_grip->sizeHint();
    m_grip->setGeometry(
        mirrored(QRect(rect().bottomRight() - QPoint(grip.width(), grip.height()) + QPoint(1, 1), grip)));
}

/// A place counted from the left, where it is when lines begin at the right.
QRect modSBFunc::mirrored(const QRect &place) const
{
    return QStyle::visualRect(layoutDirection(), rect(), place);
}

void modSBFunc::SBSetText(int panel, int style, const QString &text)
{
    const int target = style == SBT_SUNKEN && panel >= 0 && panel <= 2 ? panel : 0;
    m_panels[size_t(target)]->setText(text);
    placePanels();
}

void modSBFunc::ShowStatus(int id)
{
    if (isHeldBack() || id == m_shownId)
        return;
    m_shownId = id;
    if (id)
        SBSetText(0, SBT_SUNKEN, resText(id));
}

void modSBFunc::showText(const QString &text)
{
    ShowStatus(0);
    SBSetText(0, SBT_SUNKEN, text);
}

QString modSBFunc::text(int panel) const
{
    return m_panels.at(size_t(panel))->text();
}

QRect modSBFunc::panelRect(int panel) const
{
    return m_panels.at(size_t(panel))->geometry();
}

void modSBFunc::createProgress(qint64 maximum)
{
    destroyProgress();
    m_progress = new QProgressBar(this);
    m_progress->setTextVisible(false);
    m_progress->setAccessibleName(text(0));
    m_progress->setGeometry(panelRect(1));
    m_progress->setRange(0, maximum <= LargestRange ? int(maximum) : 100);
    m_progress->show();
    repaint();
}

void modSBFunc::setProgress(qint64 position)
{
    if (!m_progress)
        return;
    const int value = int(std::min<qint64>(position, m_progress->maximum()));
    if (value == m_progress->value())
        return;
    m_progress->setValue(value);
    m_progress->repaint();
}

void modSBFunc::destroyProgress()
{
    delete m_progress;
    m_progress = nullptr;
}

QSize modSBFunc::sizeHint() const
{
    return {m_rightEdges[1] + SizeGripWidth, std::max(BarHeight, fontMetrics().height() + 6)};
}

void modSBFunc::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    placePanels();
}
