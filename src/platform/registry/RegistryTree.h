#pragma once

#include "platform/registry/RegistryStore.h"

#include <map>

/// The keys and values of a store in memory.
class RegistryTree : public RegistryStore
{
public:
    /// Names keep the spelling that they were created with; the maps find them by their case-folded form.
    struct NamedValue
    {
        QString name;
        RegistryValue value;
        bool operator==(const NamedValue &) const = default;
    };
    struct Key
    {
        QString path;
        std::map<QString, NamedValue> values;
        bool operator==(const Key &) const = default;
    };
    using Keys = std::map<QString, Key>;

    RegistryTree();

    bool keyExists(int root, const QString &key) const override;
    bool createKey(int root, const QString &key) override;
    bool deleteKey(int root, const QString &key) override;
    std::optional<RegistryValue> value(int root, const QString &key, const QString &name) const override;
    bool setValue(int root, const QString &key, const QString &name, const RegistryValue &value) override;
    bool deleteValue(int root, const QString &key, const QString &name) override;

    const std::map<int, Keys> &roots() const { return m_roots; }
    bool operator==(const RegistryTree &other) const { return m_roots == other.m_roots; }

private:
    const Key *find(int root, const QString &key) const;
    Key *find(int root, const QString &key);

    std::map<int, Keys> m_roots;
};
