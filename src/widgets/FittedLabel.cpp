#include "widgets/FittedLabel.h"

#include "services/FormTexts.h"

#include <QFontInfo>
#include <QFontMetricsF>
#include <QResizeEvent>

namespace {

constexpr double TypeStep = 0.9;
constexpr double LineHeight = 1.2; ///< of the type's height: marks above and below letters need room

double textWidth(const QString &text, const QFont &font)
{
    return QFontMetricsF(font).horizontalAdvance(text);
}

} // namespace

QString fittedText(const QString &text, const QFont &font, double width)
{
    if (textWidth(text, font) <= width)
        return text;
    return QFontMetricsF(font).elidedText(text, Qt::ElideRight, width);
}

FittedLabel::FittedLabel(QWidget *parent)
    : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

void FittedLabel::setFullText(const QString &text)
{
    // A font may have the whole letter only, not the accent that a text puts behind it.
    m_fullText = text.normalized(QString::NormalizationForm_C);
    setAccessibleName(text);
    // The text's own direction places its punctuation; the label stays at the side where the window's lines begin.
    const bool mirrored = parentWidget() && parentWidget()->isRightToLeft();
    setLayoutDirection(text.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    setAlignment(Qt::AlignAbsolute | (mirrored ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    fit();
}

void FittedLabel::setTypeSizes(double preferred, double smallest)
{
    m_preferred = preferred;
    m_smallest = smallest;
    updateGeometry();
    fit();
}

void FittedLabel::setFamily(const QString &family)
{
    m_family = family;
    updateGeometry();
    fit();
}

void FittedLabel::setRoomFor(const QString &text)
{
    m_roomFor = text.normalized(QString::NormalizationForm_C);
    fit();
}

QSize FittedLabel::sizeHint() const
{
    const QFontMetricsF metrics(scaledFont(m_preferred));
    const QMargins margins = contentsMargins();
    return QSize(int(std::ceil(metrics.horizontalAdvance(m_fullText) / UsableWidth)) + margins.left() + margins.right(),
                 int(std::ceil(metrics.height() * LineHeight)) + margins.top() + margins.bottom());
}

QSize FittedLabel::minimumSizeHint() const
{
    return QSize(0, sizeHint().height());
}

void FittedLabel::resizeEvent(QResizeEvent *event)
{
    QLabel::resizeEvent(event);
    fit();
}

void FittedLabel::changeEvent(QEvent *event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::FontChange && !m_fitting)
        fit();
}

QFont FittedLabel::scaledFont(double factor) const
{
    const QFont base = parentWidget() ? parentWidget()->font() : font();
    QFont scaled = base;
    scaled.setPointSizeF(QFontInfo(base).pointSizeF() * factor);
    if (!m_family.isEmpty())
        scaled.setFamilies({m_family, base.family()});
    return scaled;
}

QFont FittedLabel::fittingFont(double width) const
{
    const QString &longest = m_roomFor.size() > m_fullText.size() ? m_roomFor : m_fullText;
    double factor = m_preferred;
    while (factor > m_smallest && textWidth(longest, scaledFont(factor)) > width)
        factor = std::max(m_smallest, factor * TypeStep);
    return scaledFont(factor);
}

void FittedLabel::fit()
{
    const double width = usableWidth();
    const QFont type = fittingFont(width);
    showFitted(fittedText(m_fullText, type, width), type);
}

void FittedLabel::showFitted(const QString &text, const QFont &type)
{
    m_fitting = true;
    setFont(type);
    m_fitting = false;
    setText(text);
    setToolTip(text == m_fullText ? QString() : FormTexts::plainToolTip(m_fullText));
}
