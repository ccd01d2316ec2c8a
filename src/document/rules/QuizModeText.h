#pragma once

#include <QString>

/// How a quiz mode reads: which language is asked, which one answered, and the order, for example
/// "English -> German In Order". Any other mode gives an empty text.
QString quizModeText(int quizMode, const QString &language1, const QString &language2);
