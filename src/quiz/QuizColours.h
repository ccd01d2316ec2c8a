#pragma once

#include <QColor>

/// The colours of right and wrong: those of the check mark and the X, which read on light and on dark grounds.
namespace QuizColours {

inline const QColor Right(0x2a, 0x9d, 0x4e);
inline const QColor Wrong(0xd6, 0x3b, 0x3b);

} // namespace QuizColours
