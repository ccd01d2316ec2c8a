#include "services/rules/clsRegistry.h"

#include "platform/RegistryTree.h"

#include <QCoreApplication>

namespace {

/// A store whose disk is full, and one of whose keys cannot be opened.
class FailingStore : public RegistryTree
{
public:
    bool createKey(int, const QString &) override { return false; }
    bool deleteKey(int, const QString &) override { return false; }
    bool setValue(int, const QString &, const QString &, const RegistryValue &) override { return false; }
    bool deleteValue(int, const QString &, const QString &) override { return false; }
    bool keyExists(int, const QString &key) const override { return key != QStringLiteral("Locked"); }
};

clsRegistry registryAt(RegistryStore &store, const QString &key, const QString &name)
{
    clsRegistry registry(store);
    registry.setClassKey(HKEY_CURRENT_USER);
    registry.setSectionKey(key);
    registry.setValueKey(name);
    return registry;
}

template <class Operation> QString failureOf(const Operation &operation)
{
    try {
        operation();
    } catch (const RegistryError &error) {
        EXPECT_EQ(error.Number(), 26001);
        EXPECT_EQ(error.Source(), QStringLiteral("services_rules_test.cRegistry"));
        return error.Description();
    }
    return QStringLiteral("no failure");
}

} // namespace

TEST(Registry, ValueComesBackByItsStoredType)
{
    struct Case
    {
        RegistryType type;
        QVariant written;
        QVariant read;
        RegistryType stored;
    };
    const QString percent = QStringLiteral("%HOME%/words");
    const QString joined = QStringLiteral("a") + QChar::Null + QStringLiteral("b");
    const Case cases[] = {
        {RegistryType::String, QStringLiteral("Arial"), QStringLiteral("Arial"), RegistryType::String},
        {RegistryType::String, QStringLiteral("100%"), QStringLiteral("100%"), RegistryType::String},
        {RegistryType::String, percent, percent, RegistryType::ExpandString},
        {RegistryType::ExpandString, QStringLiteral("x"), QStringLiteral("x"), RegistryType::ExpandString},
        {RegistryType::Binary, QByteArray("\0\xff", 2), QByteArray("\0\xff", 2), RegistryType::Binary},
        {RegistryType::Number, -1, -1, RegistryType::Number},
        {RegistryType::Number, 4294967295u, -1, RegistryType::Number},
        {RegistryType::BigEndianNumber, 7, 7, RegistryType::BigEndianNumber},
        {RegistryType::StringList, QStringList({QStringLiteral("a"), QStringLiteral("b")}), joined,
         RegistryType::StringList},
        {RegistryType::StringList, joined, joined, RegistryType::StringList},
    };
    for (const Case &each : cases) {
        RegistryTree store;
        clsRegistry registry = registryAt(store, QStringLiteral("Software\\Test"), QStringLiteral("Name"));
        registry.setDefault(QStringLiteral("missing"));
        EXPECT_EQ(registry.Value(), QVariant(QStringLiteral("missing")));
        registry.setValueType(each.type);
        registry.setValue(each.written);
        EXPECT_EQ(registry.Value(), each.read);
        const auto value = store.value(HKEY_CURRENT_USER, registry.SectionKey(), registry.ValueKey());
        ASSERT_TRUE(value.has_value());
        EXPECT_EQ(value->type, each.stored);
    }
}

TEST(Registry, KeysAreCreatedFoundAndDeletedWithTheirSubkeys)
{
    RegistryTree store;
    clsRegistry registry = registryAt(store, QStringLiteral("Software\\Glosaria\\MRUFiles"), QStringLiteral("Count"));
    EXPECT_FALSE(registry.KeyExists());
    registry.CreateKey();
    registry.setValue(QStringLiteral("2"));
    registry.DeleteValue();
    registry.setSectionKey(QStringLiteral("SOFTWARE\\glosaria"));
    EXPECT_TRUE(registry.KeyExists());
    registry.DeleteKey();
    EXPECT_FALSE(registry.KeyExists());
    registry.setSectionKey(QStringLiteral("Software\\Glosaria\\MRUFiles"));
    EXPECT_FALSE(registry.KeyExists());
    registry.setSectionKey(QStringLiteral("Software"));
    EXPECT_TRUE(registry.KeyExists());
}

TEST(Registry, FailuresNameKeyAndValue)
{
    FailingStore store;
    clsRegistry registry = registryAt(store, QStringLiteral("Software\\Glosaria"), QStringLiteral("FontName"));
    EXPECT_EQ(failureOf([&] { registry.CreateKey(); }),
              QStringLiteral("Failed to create registry Key: 'Software\\Glosaria"));
    EXPECT_EQ(failureOf([&] { registry.DeleteKey(); }),
              QStringLiteral("Failed to delete registry Key: '-2147483647',Section: 'Software\\Glosaria"));
    EXPECT_EQ(
        failureOf([&] { registry.DeleteValue(); }),
        QStringLiteral("Failed to delete registry Key: '-2147483647',Section: 'Software\\Glosaria',Key: 'FontName"));
    EXPECT_EQ(failureOf([&] { registry.setValue(QStringLiteral("Arial")); }),
              QStringLiteral("Failed to set registry value Key: '-2147483647',Section: 'Software\\Glosaria',Key: "
                             "'FontName' to value: 'Arial'"));
    registry.setClassKey(HKEY_CLASSES_ROOT);
    registry.setSectionKey(QStringLiteral("Locked"));
    EXPECT_EQ(failureOf([&] { registry.DeleteValue(); }),
              QStringLiteral("Failed to open key '-2147483648',Section: 'Locked' for delete access"));
}

TEST(Registry, WhatHasNoFormOfTheTypeIsNotWritten)
{
    RegistryTree store;
    clsRegistry registry = registryAt(store, QStringLiteral("Software"), QStringLiteral("N"));
    for (const QVariant &value : {QVariant(QStringLiteral("seven")), QVariant(qint64(4294967296)), QVariant()}) {
        registry.setValueType(RegistryType::Number);
        EXPECT_NE(failureOf([&] { registry.setValue(value); }), QStringLiteral("no failure"));
    }
    registry.setValueType(RegistryType(6));
    EXPECT_NE(failureOf([&] { registry.setValue(1); }), QStringLiteral("no failure"));
    EXPECT_FALSE(registry.KeyExists());
}
