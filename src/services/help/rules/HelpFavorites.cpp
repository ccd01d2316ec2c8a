#include "services/help/rules/HelpFavorites.h"

#include "platform/files/AtomicFile.h"
#include "platform/files/RegularFile.h"

#include <QDir>
#include <QFileInfo>

HelpFavorites::HelpFavorites(const QString &path)
    : m_path(path)
{
    QFile file;
    if (!RegularFile::open(file, path))
        return;
    for (const QString &line : QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts))
        m_pages.append(line.trimmed());
    m_pages.removeDuplicates();
}

void HelpFavorites::add(const QString &page)
{
    if (m_pages.contains(page))
        return;
    m_pages.append(page);
    save();
}

void HelpFavorites::remove(const QString &page)
{
    if (m_pages.removeAll(page))
        save();
}

void HelpFavorites::save() const
{
    QDir().mkpath(QFileInfo(m_path).path());
    const QString lines = m_pages.join(QLatin1Char('\n')) + QLatin1Char('\n');
    AtomicFile::write(m_path, lines.toUtf8());
}
