#include "platform/registry/RegistryTree.h"

namespace {

/// The path without empty parts.
QString cleaned(const QString &path)
{
    return path.split(QLatin1Char('\\'), Qt::SkipEmptyParts).join(QLatin1Char('\\'));
}

QString folded(const QString &name)
{
    return name.toCaseFolded();
}

} // namespace

RegistryTree::RegistryTree()
{
    for (int root : {HKEY_CLASSES_ROOT, HKEY_CURRENT_USER})
        m_roots[root][QString()];
}

const RegistryTree::Key *RegistryTree::find(int root, const QString &key) const
{
    const auto keys = m_roots.find(root);
    if (keys == m_roots.end())
        return nullptr;
    const auto found = keys->second.find(folded(cleaned(key)));
    return found == keys->second.end() ? nullptr : &found->second;
}

RegistryTree::Key *RegistryTree::find(int root, const QString &key)
{
    return const_cast<Key *>(std::as_const(*this).find(root, key));
}

bool RegistryTree::keyExists(int root, const QString &key) const
{
    return find(root, key) != nullptr;
}

bool RegistryTree::createKey(int root, const QString &key)
{
    const auto keys = m_roots.find(root);
    if (keys == m_roots.end())
        return false;
    QString path;
    for (const QString &part : cleaned(key).split(QLatin1Char('\\'), Qt::SkipEmptyParts)) {
        path += path.isEmpty() ? part : QLatin1Char('\\') + part;
        keys->second.try_emplace(folded(path), Key{path, {}});
    }
    return true;
}

bool RegistryTree::deleteKey(int root, const QString &key)
{
    const QString path = folded(cleaned(key));
    if (path.isEmpty() || !find(root, key))
        return false;
    Keys &keys = m_roots.at(root);
    const QString below = path + QLatin1Char('\\');
    keys.erase(path);
    for (auto it = keys.lower_bound(below); it != keys.end() && it->first.startsWith(below);)
        it = keys.erase(it);
    return true;
}

std::optional<RegistryValue> RegistryTree::value(int root, const QString &key, const QString &name) const
{
    const Key *found = find(root, key);
    if (!found)
        return std::nullopt;
    const auto entry = found->values.find(folded(name));
    return entry == found->values.end() ? std::nullopt : std::optional(entry->second.value);
}

bool RegistryTree::setValue(int root, const QString &key, const QString &name, const RegistryValue &value)
{
    if (!createKey(root, key))
        return false;
    const auto [entry, isNew] = find(root, key)->values.try_emplace(folded(name), NamedValue{name, value});
    if (!isNew)
        entry->second.value = value;
    return true;
}

bool RegistryTree::deleteValue(int root, const QString &key, const QString &name)
{
    Key *found = find(root, key);
    return found && found->values.erase(folded(name)) > 0;
}
