#include "platform/registry/RegistryFile.h"

#include "platform/files/AtomicFile.h"
#include "platform/files/FolderLock.h"
#include "platform/files/RegularFile.h"
#include "platform/files/UserFolders.h"
#include "platform/registry/RegistryText.h"

#include <QDir>
#include <QFileInfo>

namespace {

constexpr int LockWait = 2000; // ms
constexpr qint64 LargestFile = 64 << 20;

} // namespace

RegistryFile::RegistryFile(const QString &path)
    : m_path(path)
{
    if (load(m_tree) != State::Damaged)
        return;
    // Another copy may just have set it aside and begun a new one.
    const FolderLock lock(QFileInfo(m_path).absolutePath(), LockWait);
    if (load(m_tree) == State::Damaged)
        setAside();
}

QString RegistryFile::defaultPath()
{
    return UserFolders::config() + QStringLiteral("/registry");
}

RegistryFile::State RegistryFile::load(RegistryTree &tree) const
{
    if (!QFileInfo::exists(m_path))
        return State::Whole;
    QFile file;
    if (!RegularFile::open(file, m_path))
        return State::Unreadable;
    if (file.size() > LargestFile)
        return State::Damaged;
    const QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return State::Unreadable;
    std::optional<RegistryTree> found = RegistryText::read(bytes);
    if (!found)
        return State::Damaged;
    tree = std::move(*found);
    return State::Whole;
}

bool RegistryFile::setAside() const
{
    QString name = m_path + QStringLiteral(".damaged");
    for (int number = 2; QFileInfo::exists(name); ++number)
        name = m_path + QStringLiteral(".damaged-%1").arg(number);
    return QFile::rename(m_path, name);
}

bool RegistryFile::change(const Edit &edit)
{
    const QString folder = QFileInfo(m_path).absolutePath();
    QDir().mkpath(folder);
    const FolderLock lock(folder, LockWait);
    if (!lock.isHeld())
        return false;
    RegistryTree current;
    const State state = load(current);
    if (state == State::Unreadable || (state == State::Damaged && !setAside()))
        return false;
    RegistryTree next = current;
    if (!edit(next))
        return false;
    if (next != current && !AtomicFile::write(m_path, RegistryText::write(next)))
        return false;
    m_tree = std::move(next);
    return true;
}

bool RegistryFile::keyExists(int root, const QString &key) const
{
    return m_tree.keyExists(root, key);
}

bool RegistryFile::createKey(int root, const QString &key)
{
    return change([&](RegistryTree &tree) { return tree.createKey(root, key); });
}

bool RegistryFile::deleteKey(int root, const QString &key)
{
    return change([&](RegistryTree &tree) { return tree.deleteKey(root, key); });
}

std::optional<RegistryValue> RegistryFile::value(int root, const QString &key, const QString &name) const
{
    return m_tree.value(root, key, name);
}

bool RegistryFile::setValue(int root, const QString &key, const QString &name, const RegistryValue &value)
{
    return change([&](RegistryTree &tree) { return tree.setValue(root, key, name, value); });
}

bool RegistryFile::deleteValue(int root, const QString &key, const QString &name)
{
    return change([&](RegistryTree &tree) { return tree.deleteValue(root, key, name); });
}
