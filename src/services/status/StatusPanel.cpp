#include "services/status/StatusPanel.h"

#include "services/FormTexts.h"

#include <QPainter>

namespace {

constexpr int TextMargin = 5;

} // namespace

StatusPanel::StatusPanel(QWidget *parent)
    : QFrame(parent)
{
    setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
}

void StatusPanel::setText(const QString &text)
{
    if (text == m_text)
        return;
    m_text = text;
    setAccessibleName(text);
    fit();
    update();
}

int StatusPanel::wholeWidth() const
{
    return fontMetrics().horizontalAdvance(m_text) + 2 * TextMargin + 1; // letters end between pixels
}

void StatusPanel::fit()
{
    m_fitted = fontMetrics().elidedText(m_text, Qt::ElideRight, width() - 2 * TextMargin);
    setToolTip(m_fitted == m_text ? QString() : FormTexts::plainToolTip(m_text));
}

void StatusPanel::resizeEvent(QResizeEvent *event)
{
    QFrame::resizeEvent(event);
    fit();
}

void StatusPanel::paintEvent(QPaintEvent *event)
{
    QFrame::paintEvent(event);
    QPainter painter(this);
    painter.drawText(rect().adjusted(TextMargin, 0, -TextMargin, 0), int(Qt::AlignVCenter | Qt::AlignLeft), m_fitted);
}
