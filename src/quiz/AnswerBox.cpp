#include "quiz/AnswerBox.h"

namespace {

constexpr int LineWidth = 2;
constexpr int SideMargin = 6;
constexpr int EdgeMargin = 5;

} // namespace

AnswerBox::AnswerBox(QWidget *parent)
    : QLineEdit(parent)
{
    setFrame(false);
    setTextMargins(SideMargin, EdgeMargin, SideMargin, EdgeMargin + LineWidth);
}

void AnswerBox::paintEvent(QPaintEvent *event)
{
    QLineEdit::paintEvent(event);
    QPainter painter(this);
    const QRect line(0, height() - LineWidth, width(), LineWidth);
    painter.fillRect(line, palette().color(hasFocus() ? QPalette::Highlight : QPalette::Mid));
}
