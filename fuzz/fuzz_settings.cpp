// Any bytes as the settings record: values in range, and a record that comes back.

#include "Require.h"

#include "platform/registry/RegistryTree.h"
#include "services/settings/clsAppProperties.h"

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    RegistryTree store;
    store.setValue(HKEY_CURRENT_USER, QStringLiteral("Software\\Glosaria"), QStringLiteral("Settings"),
                   {RegistryType::Binary, bytes});
    clsAppProperties properties(store, QString());
    properties.ReadProperties();
    require(properties.QuizMode() >= 1 && properties.QuizMode() <= 5, "a quiz mode that exists");
    require(properties.FontSize() >= 1 && properties.FontSize() <= clsAppProperties::LargestFontSize,
            "a size in range");
    require(properties.AutoTimerInterval() >= 0, "an interval that is none or more");
    const SettingsRecord record = SettingsRecord::fromBytes(bytes);
    require(SettingsRecord::fromBytes(record.toBytes()) == record, "a record comes back");
    return 0;
}
