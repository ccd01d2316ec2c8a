#pragma once

#include <QColor>

class QWidget;

/// The colours of right and wrong: those of the check mark and the X, which read on light and on dark grounds.
namespace QuizColours {

inline const QColor Right(0x2a, 0x9d, 0x4e);
inline const QColor Wrong(0xd6, 0x3b, 0x3b);

/// Writes a label in the quiet colour of what only names something.
void mute(QWidget &label);

} // namespace QuizColours
