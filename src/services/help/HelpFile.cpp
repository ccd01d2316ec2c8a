#include "services/help/HelpFile.h"

#include <QDir>
#include <QHelpEngineCore>
#include <QUrl>

namespace {

/// Folder of the topics within the compiled file, as the project file names it.
const QString Folder = QStringLiteral("/help/");
const QString ProjectFile = QStringLiteral("glhelp.qhp");

} // namespace

HelpFile::HelpFile(const QString &path, const QString &language)
    : m_path(path)
    , m_language(language)
{
}

HelpFile::~HelpFile() = default;

bool HelpFile::open()
{
    if (m_engine)
        return true;
    m_namespace = QFile::exists(m_path) ? QHelpEngineCore::namespaceName(m_path) : QString();
    if (m_namespace.isEmpty())
        return false;
    m_collectionFolder = std::make_unique<QTemporaryDir>();
    auto engine = std::make_unique<QHelpEngineCore>(m_collectionFolder->filePath(QStringLiteral("collection.qhc")));
    engine->setReadOnly(false);
    if (!engine->setupData() || !engine->registerDocumentation(m_path))
        return false;
    m_engine = std::move(engine);
    m_book = parseHelpBook(contents(ProjectFile));
    if (!m_language.isEmpty())
        findTranslated();
    return true;
}

void HelpFile::findTranslated()
{
    for (const HelpChapter *chapter : m_book.pages()) {
        const QString file = translatedPage(chapter->page, m_language);
        if (!contents(file).isEmpty())
            m_translated.insert(chapter->page, file);
    }
    for (auto page = m_translated.cbegin(); page != m_translated.cend(); ++page)
        m_book.setTitle(page.key(), titleOfPage(contents(page.value())));
}

QUrl HelpFile::urlOf(const QString &file) const
{
    QUrl url;
    url.setScheme(QStringLiteral("qthelp"));
    url.setAuthority(m_namespace);
    url.setPath(Folder + file);
    return url;
}

QByteArray HelpFile::contents(const QString &file) const
{
    return m_engine ? m_engine->fileData(urlOf(file)) : QByteArray();
}

QString HelpFile::pageOf(int contextId, const QString &contextFile) const
{
    return parseHelpContexts(contents(contextFile)).value(contextId);
}

QString HelpFile::pageNamed(const QString &topic) const
{
    QString page = topic;
    page.replace(QLatin1Char('\\'), QLatin1Char('/'));
    return contents(page).isEmpty() ? QString() : page;
}
