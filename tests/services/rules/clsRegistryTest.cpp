#include "services/settings/clsRegistry.h"

#include "platform/registry/RegistryTree.h"

TEST(Registry, ValueComesBackByItsStoredType)
{
    using enum RegistryType;
    const QString list = "a" + QString(QChar::Null) + "b";
    const QByteArray bytes("\0\xff", 2);
    const std::tuple<RegistryType, QVariant, QVariant, RegistryType> cases[] = {
        {String, "100%", "100%", String},
        {String, "%HOME%/words", "%HOME%/words", ExpandString},
        {ExpandString, "100%", "100%", ExpandString},
        {Binary, bytes, bytes, Binary},
        {Number, -1, -1, Number},
        {BigEndianNumber, 4294967295u, -1, BigEndianNumber},
        {StringList, list.split(QChar::Null), list, StringList},
        {StringList, list, list, StringList}};
    for (const auto &[type, written, read, stored] : cases) {
        RegistryTree store;
        clsRegistry registry(store);
        registry.setDefault("missing");
        EXPECT_EQ(registry.Value(), "missing");
        registry.setValueType(type);
        registry.setValue(written);
        EXPECT_EQ(registry.Value(), read);
        EXPECT_EQ(store.value(HKEY_CURRENT_USER, QString(), QString())->type, stored);
    }
}

TEST(Registry, FailuresNameKeyAndValue)
{
    RegistryTree store;
    clsRegistry registry(store);
    registry.setClassKey(7); // which the store does not know
    registry.setSectionKey("Software\\Glosaria");
    registry.setValueKey("FontName");
    try {
        registry.setValue("Arial");
        ADD_FAILURE() << "nothing was thrown";
    } catch (const RegistryError &error) {
        EXPECT_EQ(error.Number(), 26001);
        EXPECT_EQ(error.Source(), "services_rules_test.cRegistry");
        EXPECT_EQ(error.Description(), "Failed to set registry value Key: '7',Section: 'Software\\Glosaria',"
                                       "Key: 'FontName' to value: 'Arial'");
    }
    EXPECT_THROW(registry.CreateKey(), RegistryError);
    EXPECT_THROW(registry.DeleteKey(), RegistryError);
    EXPECT_THROW(registry.DeleteValue(), RegistryError);
}
