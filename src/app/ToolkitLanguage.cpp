#include "app/ToolkitLanguage.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>

ToolkitLanguage::ToolkitLanguage(QApplication &application, const QString &language)
{
    if (language.isEmpty())
        return;
    if (m_texts.load(QStringLiteral("qtbase_") + language, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        application.installTranslator(&m_texts);
    QApplication::setLayoutDirection(QLocale(language).textDirection());
}
