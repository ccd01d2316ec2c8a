// Any bytes as what a second copy sends: a message that is taken is the one that such a copy writes.

#include "Require.h"

#include "app/rules/RequestedFile.h"
#include "platform/instance/HandOff.h"

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArrayView bytes(data, qsizetype(size));
    const HandOff::Parsed parsed = HandOff::parse(bytes);
    if (parsed.state != HandOff::State::Malformed) {
        const HandOff::Parsed half = HandOff::parse(bytes.first(bytes.size() / 2));
        require(half.state != HandOff::State::Malformed, "the start of a message is no error");
    }
    if (parsed.state != HandOff::State::Complete) {
        require(parsed.text.isEmpty(), "only a whole message has a text");
        return 0;
    }
    require(HandOff::message(parsed.text, parsed.token) == bytes, "a text comes from one message only");
    const std::optional<QString> path = RequestedFile::requestedPath(parsed.text);
    require(!path || !path->isEmpty(), "what is asked for has a name");
    return 0;
}
