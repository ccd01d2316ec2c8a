#include "services/settings/clsRegistry.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace {

std::optional<RegistryValue> numberValue(RegistryType type, const QVariant &value)
{
    bool isNumber = false;
    const qint64 number = value.toLongLong(&isNumber);
    if (!isNumber || number < std::numeric_limits<qint32>::min() || number > std::numeric_limits<quint32>::max())
        return std::nullopt;
    return RegistryValue{type, quint32(number)};
}

QStringList listOf(const QVariant &value)
{
    return value.typeId() == QMetaType::QStringList ? value.toStringList() : value.toString().split(QChar::Null);
}

/// Nothing when the value has no such form.
std::optional<RegistryValue> storedForm(RegistryType type, const QVariant &value)
{
    switch (type) {
    case RegistryType::Binary:
        return RegistryValue{type, value.toByteArray()};
    case RegistryType::Number:
    case RegistryType::BigEndianNumber:
        return numberValue(type, value);
    case RegistryType::StringList:
        return RegistryValue{type, listOf(value)};
    case RegistryType::String:
    case RegistryType::ExpandString:
        break;
    default:
        return std::nullopt;
    }
    const QString text = value.toString();
    return RegistryValue{text.count(QLatin1Char('%')) > 1 ? RegistryType::ExpandString : type, text};
}

QString shown(const QVariant &value)
{
    return value.typeId() == QMetaType::QByteArray ? QString::fromLatin1(value.toByteArray().toHex(' '))
                                                   : listOf(value).join(QLatin1Char(' '));
}

} // namespace

RegistryError::RegistryError(const QString &description)
    : std::runtime_error(description.toStdString())
    , m_description(description)
{
}

QString RegistryError::Source() const
{
    return QFileInfo(QCoreApplication::applicationFilePath()).fileName() + QStringLiteral(".cRegistry");
}

QVariant clsRegistry::Value() const
{
    const std::optional<RegistryValue> stored = m_store.value(m_classKey, m_sectionKey, m_valueKey);
    if (!stored)
        return m_default;
    if (const auto *bytes = std::get_if<QByteArray>(&stored->data))
        return *bytes;
    if (const auto *number = std::get_if<quint32>(&stored->data))
        return qint32(*number);
    if (const auto *list = std::get_if<QStringList>(&stored->data))
        return list->join(QChar::Null);
    return std::get<QString>(stored->data);
}

void clsRegistry::setValue(const QVariant &value)
{
    const std::optional<RegistryValue> form = storedForm(m_valueType, value);
    if (!form || !m_store.setValue(m_classKey, m_sectionKey, m_valueKey, *form))
        throw RegistryError(QLatin1String("Failed to set registry value Key: '") + place() + QLatin1String("',Key: '") +
                            m_valueKey + QLatin1String("' to value: '") + shown(value) + QLatin1Char('\''));
}

bool clsRegistry::KeyExists() const
{
    return m_store.keyExists(m_classKey, m_sectionKey);
}

void clsRegistry::CreateKey()
{
    if (!m_store.createKey(m_classKey, m_sectionKey))
        throw RegistryError(QLatin1String("Failed to create registry Key: '") + m_sectionKey);
}

void clsRegistry::DeleteKey()
{
    if (!m_store.deleteKey(m_classKey, m_sectionKey))
        throw RegistryError(QLatin1String("Failed to delete registry Key: '") + place());
}

void clsRegistry::DeleteValue()
{
    if (!KeyExists())
        throw RegistryError(QLatin1String("Failed to open key '") + place() + QLatin1String("' for delete access"));
    if (!m_store.deleteValue(m_classKey, m_sectionKey, m_valueKey))
        throw RegistryError(QLatin1String("Failed to delete registry Key: '") + place() + QLatin1String("',Key: '") +
                            m_valueKey);
}

void clsRegistry::CreateEXEAssociation(const QString &programPath, const QString &typeName, const QString &description,
                                       const QString &extension, int iconIndex)
{
    m_classKey = HKEY_CLASSES_ROOT;
    m_valueKey.clear();
    m_valueType = RegistryType::String;
    writeDefault(QLatin1Char('.') + extension, typeName);
    writeDefault(typeName, description);
    writeDefault(typeName + QLatin1String("\\shell\\open\\command"), programPath + QLatin1String(" \"%1\""));
    if (iconIndex > -1)
        writeDefault(typeName + QLatin1String("\\DefaultIcon"),
                     programPath + QLatin1Char(',') + QString::number(iconIndex));
}

QString clsRegistry::place() const
{
    return QString::number(m_classKey) + QLatin1String("',Section: '") + m_sectionKey;
}

void clsRegistry::writeDefault(const QString &key, const QString &text)
{
    m_sectionKey = key;
    setValue(text);
}
