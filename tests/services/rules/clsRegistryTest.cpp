#include "services/rules/clsRegistry.h"

#include "platform/RegistryTree.h"

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

template <class Operation> std::string failureOf(const Operation &operation)
{
    try {
        operation();
    } catch (const RegistryError &error) {
        EXPECT_EQ(error.Number(), 26001);
        EXPECT_EQ(error.Source(), QStringLiteral("services_rules_test.cRegistry"));
        return error.Description().toStdString();
    }
    return "no failure";
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
    const QString text = QStringLiteral("100%");
    const QString percent = QStringLiteral("%HOME%/words");
    const QString list = QStringLiteral("a") + QChar::Null + QStringLiteral("b");
    const Case cases[] = {
        {RegistryType::String, text, text, RegistryType::String},
        {RegistryType::String, percent, percent, RegistryType::ExpandString},
        {RegistryType::ExpandString, text, text, RegistryType::ExpandString},
        {RegistryType::Binary, QByteArray("\0\xff", 2), QByteArray("\0\xff", 2), RegistryType::Binary},
        {RegistryType::Number, -1, -1, RegistryType::Number},
        {RegistryType::BigEndianNumber, 4294967295u, -1, RegistryType::BigEndianNumber},
        {RegistryType::StringList, list.split(QChar::Null), list, RegistryType::StringList},
        {RegistryType::StringList, list, list, RegistryType::StringList},
    };
    for (const Case &each : cases) {
        RegistryTree store;
        clsRegistry registry(store);
        registry.setDefault(QStringLiteral("missing"));
        EXPECT_EQ(registry.Value(), QVariant(QStringLiteral("missing")));
        registry.setValueType(each.type);
        registry.setValue(each.written);
        EXPECT_EQ(registry.Value(), each.read);
        EXPECT_EQ(store.value(HKEY_CURRENT_USER, QString(), QString())->type, each.stored);
    }
}

TEST(Registry, FailuresNameKeyAndValue)
{
    FailingStore store;
    clsRegistry registry(store);
    registry.setSectionKey(QStringLiteral("Software\\Glosaria"));
    registry.setValueKey(QStringLiteral("FontName"));
    const std::string place = "'-2147483647',Section: 'Software\\Glosaria";
    const std::string set = "Failed to set registry value Key: " + place + "',Key: 'FontName' to value: '";
    EXPECT_EQ(failureOf([&] { registry.CreateKey(); }), "Failed to create registry Key: 'Software\\Glosaria");
    EXPECT_EQ(failureOf([&] { registry.DeleteKey(); }), "Failed to delete registry Key: " + place);
    EXPECT_EQ(failureOf([&] { registry.DeleteValue(); }),
              "Failed to delete registry Key: " + place + "',Key: 'FontName");
    EXPECT_EQ(failureOf([&] { registry.setValue(QStringLiteral("Arial")); }), set + "Arial'");
    registry.setValueType(RegistryType::Number);
    EXPECT_EQ(failureOf([&] { registry.setValue(qint64(4294967296)); }), set + "4294967296'");
    registry.setClassKey(HKEY_CLASSES_ROOT);
    registry.setSectionKey(QStringLiteral("Locked"));
    EXPECT_EQ(failureOf([&] { registry.DeleteValue(); }),
              "Failed to open key '-2147483648',Section: 'Locked' for delete access");
}
