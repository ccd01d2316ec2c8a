#include "quiz/QuizProgress.h"

#include "quiz/QuizColours.h"
#include "services/desktop/Contrast.h"

#include <QPainterPath>

namespace {

constexpr int Thickness = 6;
constexpr double TrackStrength = 0.25;

} // namespace

QuizProgress::QuizProgress(QWidget *parent)
    : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void QuizProgress::setCounts(int total, int correct, int wrong)
{
    m_total = total;
    m_correct = correct;
    m_wrong = wrong;
    update();
}

QSize QuizProgress::sizeHint() const
{
    return QSize(200, Thickness);
}

void QuizProgress::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF bar(rect());
    if (isRightToLeft()) {
        painter.translate(bar.right(), 0);
        painter.scale(-1, 1);
    }
    QPainterPath shape;
    shape.addRoundedRect(bar, bar.height() / 2, bar.height() / 2);
    painter.setClipPath(shape);
    painter.fillRect(bar, Contrast::towardsText(palette(), TrackStrength));
    const double correct = bar.width() * m_correct / m_total;
    const double wrong = bar.width() * m_wrong / m_total;
    painter.fillRect(QRectF(bar.left(), bar.top(), correct, bar.height()), QuizColours::Right);
    painter.fillRect(QRectF(bar.left() + correct, bar.top(), wrong, bar.height()), QuizColours::Wrong);
}
