#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <limits>
#include <optional>
#include <variant>

/// The roots that the store knows.
constexpr int HKEY_CLASSES_ROOT = std::numeric_limits<int>::min();
constexpr int HKEY_CURRENT_USER = HKEY_CLASSES_ROOT + 1;

/// The numbers are those of the registry's own value types.
enum class RegistryType { String = 1, ExpandString = 2, Binary = 3, Number = 4, BigEndianNumber = 5, StringList = 7 };

/// A typed value; which of the alternatives is used follows from the type.
struct RegistryValue
{
    RegistryType type = RegistryType::String;
    std::variant<QString, QByteArray, quint32, QStringList> data;

    bool operator==(const RegistryValue &) const = default;
};

/// The per-user store of typed values in keys below a root. Key paths are separated by backslashes; the empty path is
/// the root itself, which always exists. Names of keys and values are found in any letter case. Every operation that
/// returns false has changed nothing; an unknown root always fails.
class RegistryStore
{
public:
    virtual ~RegistryStore() = default;

    virtual bool keyExists(int root, const QString &key) const = 0;
    /// Creates the key and those above it; true also when it existed.
    virtual bool createKey(int root, const QString &key) = 0;
    /// Deletes the key and those below it.
    virtual bool deleteKey(int root, const QString &key) = 0;

    /// The empty name is the key's default value.
    virtual std::optional<RegistryValue> value(int root, const QString &key, const QString &name) const = 0;
    /// Creates the key if needed.
    virtual bool setValue(int root, const QString &key, const QString &name, const RegistryValue &value) = 0;
    virtual bool deleteValue(int root, const QString &key, const QString &name) = 0;
};
