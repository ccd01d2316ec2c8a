#pragma once

#include "platform/registry/RegistryTree.h"

#include <functional>

/// The store on the disk. Every change reads the file again under a lock, so that two copies of the program keep each
/// other's keys, and replaces the file as a whole. A damaged file is set aside under another name beside it, and the
/// store starts empty.
class RegistryFile : public RegistryStore
{
public:
    /// Reads the file; a missing one is an empty store. Its folder is created by the first change.
    explicit RegistryFile(const QString &path = defaultPath());

    /// The file in the user's configuration folder.
    static QString defaultPath();

    bool keyExists(int root, const QString &key) const override;
    bool createKey(int root, const QString &key) override;
    bool deleteKey(int root, const QString &key) override;
    std::optional<RegistryValue> value(int root, const QString &key, const QString &name) const override;
    bool setValue(int root, const QString &key, const QString &name, const RegistryValue &value) override;
    bool deleteValue(int root, const QString &key, const QString &name) override;

private:
    using Edit = std::function<bool(RegistryTree &tree)>;
    enum class State { Whole, Damaged, Unreadable };

    State load(RegistryTree &tree) const;
    bool setAside() const;
    bool change(const Edit &edit);

    QString m_path;
    RegistryTree m_tree;
};
