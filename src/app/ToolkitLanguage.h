#pragma once

#include <QHash>
#include <QString>
#include <QTranslator>

#include <memory>

class QApplication;

/// The toolkit's own texts: from its table, as far as the desktop has one, and from a small one of the program for what
/// that table lacks.
class ToolkitTexts : public QTranslator
{
public:
    explicit ToolkitTexts(const QString &language);

    QString translate(const char *context, const char *sourceText, const char *disambiguation = nullptr,
                      int n = -1) const override;
    bool isEmpty() const override;

private:
    QHash<QByteArray, QString> m_own; ///< by the English text
};

/// Lets the toolkit speak the language of the program's texts while this lives, and lay windows out in its direction.
class ToolkitLanguage
{
public:
    /// The language as TextLanguage names it; empty, which is English, leaves the toolkit as it is.
    ToolkitLanguage(QApplication &application, const QString &language);

private:
    std::unique_ptr<ToolkitTexts> m_texts;
};
