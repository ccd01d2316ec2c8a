// Any bytes as the stored registry: what can be read is written without loss, and whatever it holds gives usable
// settings and recent files.

#include "Require.h"

#include "platform/registry/RegistryText.h"
#include "services/settings/clsAppProperties.h"
#include "services/settings/clsMRUFileList.h"
#include "services/settings/clsRegistry.h"

#include <cstdint>

namespace {

void checkSettings(RegistryTree tree)
{
    clsAppProperties settings(tree, QStringLiteral("/usr/bin/glosaria"));
    try {
        settings.ReadProperties();
        settings.SaveProperties();
    } catch (const RegistryError &) {
        // Told to the user; the settings are usable all the same.
    }
    require(!settings.FontName().isEmpty(), "the font has a name");
    require(settings.FontSize() >= 1 && settings.FontSize() <= clsAppProperties::LargestFontSize, "font size in range");
    require(settings.QuizMode() >= 1 && settings.QuizMode() <= 5, "quiz mode in range");
    require(settings.AutoTimerInterval() >= 0, "no negative interval");
}

void checkRecentFiles(RegistryTree tree)
{
    clsRegistry registry(tree);
    registry.setSectionKey(QStringLiteral("Software\\Glosaria\\MRUFiles"));
    clsMRUFileList files([](const QString &text) { return int(7 * text.size()); });
    try {
        files.Load(registry);
    } catch (const RegistryError &) {
        return;
    }
    require(files.FileCount() <= files.MaxFileCount(), "no more files than the list holds");
    for (int i = 1; i <= files.FileCount(); ++i)
        require(!files.MenuCaption(i).isEmpty(), "every entry has a caption");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const std::optional<RegistryTree> tree = RegistryText::read(QByteArrayView(data, qsizetype(size)));
    if (!tree)
        return 0;
    const QByteArray written = RegistryText::write(*tree);
    const std::optional<RegistryTree> again = RegistryText::read(written);
    require(again && *again == *tree, "what was written can be read");
    require(RegistryText::write(*again) == written, "writing twice gives the same bytes");
    checkSettings(*tree);
    checkRecentFiles(*tree);
    return 0;
}
