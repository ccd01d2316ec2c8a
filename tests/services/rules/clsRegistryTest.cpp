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
    const QString list = "a" + QString(QChar::Null) + "b";
    const QByteArray bytes("\0\xff", 2);
    const std::tuple<RegistryType, QVariant, QVariant, RegistryType> cases[] = {
        {String, "100%", "100%", String},
        {String, "%HOME%/words", "%HOME%/words", ExpandString},
        {ExpandString, "100%", "100%", ExpandString},
        {Binary, bytes, bytes, Binary},
        {Number, INT_MIN, INT_MIN, Number},
        {BigEndianNumber, UINT_MAX, -1, BigEndianNumber},
        {StringList, list.split(QChar::Null), list, StringList},
        {StringList, list, list, StringList}};
    registry.setDefault("missing");
    for (const auto &[type, written, read, stored] : cases) {
        EXPECT_EQ(registry.Value(), "missing");
        registry.setValueType(type);
        registry.setValue(written);
        EXPECT_EQ(registry.Value(), read);
        EXPECT_EQ(store.value(HKEY_CURRENT_USER, "", "")->type, stored);
        registry.DeleteValue();
    }
    for (const auto &[type, value] : {std::pair(Number, QVariant("x")),
                                      {Number, INT_MIN - 1LL},
                                      {Number, UINT_MAX + 1LL},
                                      {RegistryType(9), "x"}}) {
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

TEST_F(RegistryTest, AFileTypeHasAnIconOnlyIfOneIsNamed)
{
    registry.setSectionKey("K");
    registry.CreateKey();
    EXPECT_NO_THROW(registry.DeleteKey());
    registry.setValueKey("N");
    registry.setValueType(Number);
    for (const int icon : {-1, 0}) {
        registry.CreateEXEAssociation("/bin/p", "Type", "A type", "t", icon);
        EXPECT_EQ(store.value(HKEY_CLASSES_ROOT, ".t", "")->data, RegistryValue{.data = QString("Type")}.data);
        EXPECT_EQ(store.keyExists(HKEY_CLASSES_ROOT, "Type\\DefaultIcon"), icon == 0);
    }
}
