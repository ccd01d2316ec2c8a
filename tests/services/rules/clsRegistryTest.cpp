#include "services/settings/clsRegistry.h"

#include "platform/registry/RegistryTree.h"

using enum RegistryType;

struct RegistryTest : ::testing::Test
{
    RegistryTree store;
    clsRegistry registry{store};
};

TEST_F(RegistryTest, ValueComesBackByItsStoredType)
{
    const QString list = "a" + QString(QChar::Null) + "b", path = "%HOME%/words";
    const QByteArray bytes("\0\xff", 2);
    const QStringList parts{"a", "b"};
    const std::tuple<RegistryType, QVariant, QVariant> cases[] = {
        {String, "100%", "100%"},  {String, path, path},       {ExpandString, "100%", "100%"},
        {Binary, bytes, bytes},    {Number, INT_MIN, INT_MIN}, {BigEndianNumber, UINT_MAX, -1},
        {StringList, parts, list}, {StringList, list, list}};
    registry.setDefault("missing");
    for (const auto &[type, written, read] : cases) {
        EXPECT_EQ(registry.Value(), "missing");
        registry.setValueType(type);
        registry.setValue(written);
        EXPECT_EQ(registry.Value(), read);
        EXPECT_EQ(store.value(HKEY_CURRENT_USER, "", "")->type, written == path ? ExpandString : type);
        registry.DeleteValue();
    }
    const std::pair<RegistryType, QVariant> wrong[] = {
        {Number, "x"}, {Number, INT_MIN - 1LL}, {Number, UINT_MAX + 1LL}, {RegistryType(9), "x"}};
    for (const auto &[type, value] : wrong) {
        registry.setValueType(type);
        EXPECT_THROW(registry.setValue(value), RegistryError) << value.toString().toStdString();
    }
}

TEST_F(RegistryTest, FailuresNameKeyAndValue)
{
    const std::tuple<int, std::function<void()>, const char *> cases[] = {
        {7, [this] { registry.setValue(QString("a%1b").arg(QString(QChar::Null))); },
         "set registry value Key: '7',Section: 'K\\L',Key: 'N' to value: 'a b'"},
        {7, [this] { registry.setValue(QByteArray("\1\xff")); },
         "set registry value Key: '7',Section: 'K\\L',Key: 'N' to value: '01 ff'"},
        {7, [this] { registry.CreateKey(); }, "create registry Key: 'K\\L"},
        {7, [this] { registry.DeleteKey(); }, "delete registry Key: '7',Section: 'K\\L"},
        {7, [this] { registry.DeleteValue(); }, "open key '7',Section: 'K\\L' for delete access"},
        {HKEY_CURRENT_USER, [this] { registry.CreateKey(), registry.DeleteValue(); },
         "delete registry Key: '-2147483647',Section: 'K\\L',Key: 'N"}};
    registry.setSectionKey("K\\L");
    registry.setValueKey("N");
    for (const auto &[root, act, failure] : cases) {
        registry.setClassKey(root); // there is no root 7
        EXPECT_THAT(act, testing::ThrowsMessage<RegistryError>(std::string("Failed to ") + failure));
    }
    const RegistryError error("told");
    EXPECT_EQ(QString::number(error.Number()) + error.Source() + error.Description(),
              "26001services_rules_test.cRegistrytold");
}
