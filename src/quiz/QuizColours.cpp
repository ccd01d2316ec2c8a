#include "quiz/QuizColours.h"

#include "services/desktop/Contrast.h"

#include <QPalette>
#include <QWidget>

void QuizColours::mute(QWidget &label)
{
    QPalette palette = label.palette();
    palette.setColor(QPalette::WindowText, Contrast::readable(palette.color(QPalette::PlaceholderText), palette));
    label.setPalette(palette);
}
