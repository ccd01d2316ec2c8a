#pragma once

#include <QString>
#include <QTranslator>

class QApplication;

/// Lets the toolkit speak the language of the program's texts while this lives: its own texts, as far as the desktop
/// has them, and the direction that windows are laid out in.
class ToolkitLanguage
{
public:
    /// The language as TextLanguage names it; empty, which is English, leaves the toolkit as it is.
    ToolkitLanguage(QApplication &application, const QString &language);

private:
    QTranslator m_texts;
};
