#include "app/ToolkitLanguage.h"

#include "resources/ResourceFiles.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>

ToolkitTexts::ToolkitTexts(const QString &language)
{
    if (!load(QStringLiteral("qtbase_") + language, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        return;
    const QByteArray name = "toolkit." + language.toLatin1() + ".txt";
    const QList<QByteArray> lines = ResourceFiles::contents(QLatin1String(name)).split('\n');
    for (const QByteArray &line : lines) {
        if (const qsizetype tab = line.indexOf('\t'); tab > 0)
            m_own.insert(line.first(tab), QString::fromUtf8(line.sliced(tab + 1)));
    }
}

QString ToolkitTexts::translate(const char *context, const char *sourceText, const char *disambiguation, int n) const
{
    const auto own = m_own.constFind(QByteArray::fromRawData(sourceText, qstrlen(sourceText)));
    if (own != m_own.constEnd())
        return *own;
    // The tables have kinds of files where the toolkit looked for them before.
    if (qstrcmp(context, "QAbstractFileIconProvider") == 0)
        context = "QFileDialog";
    return QTranslator::translate(context, sourceText, disambiguation, n);
}

bool ToolkitTexts::isEmpty() const
{
    return m_own.isEmpty() && QTranslator::isEmpty();
}

ToolkitLanguage::ToolkitLanguage(QApplication &application, const QString &language)
{
    if (language.isEmpty())
        return;
    m_texts = std::make_unique<ToolkitTexts>(language);
    application.installTranslator(m_texts.get());
    QApplication::setLayoutDirection(QLocale(language).textDirection());
}
