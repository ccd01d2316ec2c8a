// Any bytes as the text of the registry store: what can be read must come back the same after it has been written.

#include "Require.h"

#include "platform/RegistryText.h"

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const std::optional<RegistryTree> tree = RegistryText::read(QByteArrayView(data, qsizetype(size)));
    if (!tree)
        return 0;
    const QByteArray text = RegistryText::write(*tree);
    require(RegistryText::read(text) == tree, "what was written is read again");
    require(RegistryText::write(*RegistryText::read(text)) == text, "writing twice gives the same text");
    return 0;
}
