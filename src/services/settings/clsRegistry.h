#pragma once

#include "platform/registry/RegistryStore.h"

#include <QVariant>

#include <stdexcept>

/// A failure of the registry.
class RegistryError : public std::runtime_error
{
public:
    explicit RegistryError(const QString &description);

    int Number() const { return 26001; }
    /// Names the program.
    QString Source() const;
    QString Description() const { return m_description; }

private:
    QString m_description;
};

/// Access to one key of the registry store. Set ClassKey and SectionKey, and ValueKey where a value is meant, before
/// each operation; an operation that cannot be carried out throws RegistryError.
class clsRegistry
{
public:
    /// The store outlives this object.
    explicit clsRegistry(RegistryStore &store)
        : m_store(store)
    {
    }

    /// The root, HKEY_CURRENT_USER or HKEY_CLASSES_ROOT.
    int ClassKey() const { return m_classKey; }
    void setClassKey(int root) { m_classKey = root; }

    /// The path below the root, separated by backslashes.
    QString SectionKey() const { return m_sectionKey; }
    void setSectionKey(const QString &path) { m_sectionKey = path; }

    /// The value's name; empty: the key's default value.
    QString ValueKey() const { return m_valueKey; }
    void setValueKey(const QString &name) { m_valueKey = name; }

    /// The form in which the next value is written.
    RegistryType ValueType() const { return m_valueType; }
    void setValueType(RegistryType type) { m_valueType = type; }

    /// What Value returns when there is nothing to read.
    QVariant Default() const { return m_default; }
    void setDefault(const QVariant &value) { m_default = value; }

    /// By the stored type: a QByteArray, an int (numbers have 32 bits and a sign) or a QString; the texts of a list are
    /// joined by NUL characters.
    QVariant Value() const;
    /// Takes the same, and a QStringList for a list; numbers up to 4,294,967,295. A text with two percent signs is
    /// written as an expandable string. Creates the key if needed.
    void setValue(const QVariant &value);

    bool KeyExists() const;
    void CreateKey();
    void DeleteKey();
    void DeleteValue();

    /// Registers a file type below HKEY_CLASSES_ROOT: extension (without dot) to type name, and the type's description,
    /// open command and, for an iconIndex above -1, icon. Changes the properties of this object.
    void CreateEXEAssociation(const QString &programPath, const QString &typeName, const QString &description,
                              const QString &extension, int iconIndex);

private:
    QString place() const;
    void writeDefault(const QString &key, const QString &text);

    RegistryStore &m_store;
    int m_classKey = HKEY_CURRENT_USER;
    QString m_sectionKey;
    QString m_valueKey;
    RegistryType m_valueType = RegistryType::String;
    QVariant m_default;
};
