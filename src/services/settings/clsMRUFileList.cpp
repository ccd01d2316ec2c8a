#include "services/settings/clsMRUFileList.h"

#include "resources/TextLanguage.h"
#include "services/settings/PathEllipsis.h"
#include "services/settings/clsRegistry.h"

namespace {

QString fileKey(int i)
{
    return QStringLiteral("File%1").arg(i);
}

void write(clsRegistry &registry, const QString &name, RegistryType type, const QVariant &value)
{
    registry.setValueKey(name);
    registry.setValueType(type);
    registry.setValue(value);
}

QVariant read(clsRegistry &registry, const QString &name)
{
    registry.setValueKey(name);
    registry.setDefault(QVariant());
    return registry.Value();
}

} // namespace

clsMRUFileList::clsMRUFileList(TextWidth textWidth)
    : m_textWidth(std::move(textWidth))
{
}

void clsMRUFileList::setMaxFileCount(int count)
{
    m_maxFileCount = std::clamp(count, 0, LargestCapacity);
    m_files = m_files.mid(0, m_maxFileCount);
}

QString clsMRUFileList::File(int i) const
{
    return m_files.value(i - 1);
}

QString clsMRUFileList::MenuCaption(int i) const
{
    const QString number = QString::number(i) + QLatin1Char(' ');
    const QString path = File(i).section(QChar::Null, 0, 0);
    const QString shortPath = PathEllipsis::shortened(
        path, [&](const QString &candidate) { return m_textWidth(number + candidate) <= CaptionWidth; });
    QString shown = TextLanguage::isolated(shortPath);
    return QLatin1Char('&') + number + shown.replace(QLatin1Char('&'), QLatin1String("&&"));
}

void clsMRUFileList::AddFile(const QString &path)
{
    const auto same = std::find_if(m_files.begin(), m_files.end(), [&path](const QString &file) {
        return file.compare(path, Qt::CaseInsensitive) == 0;
    });
    if (same != m_files.end())
        m_files.erase(same);
    m_files.prepend(path);
    setMaxFileCount(m_maxFileCount);
}

void clsMRUFileList::Save(clsRegistry &registry) const
{
    write(registry, QStringLiteral("MaxCount"), RegistryType::Number, m_maxFileCount);
    write(registry, QStringLiteral("Count"), RegistryType::Number, FileCount());
    for (int i = 1; i <= FileCount(); ++i)
        write(registry, fileKey(i), RegistryType::String, File(i));
}

void clsMRUFileList::Load(clsRegistry &registry)
{
    m_files.clear();
    setMaxFileCount(read(registry, QStringLiteral("MaxCount")).toInt());
    const int count = std::min(read(registry, QStringLiteral("Count")).toInt(), m_maxFileCount);
    for (int i = 1; i <= count; ++i)
        m_files += read(registry, fileKey(i)).toString();
}
