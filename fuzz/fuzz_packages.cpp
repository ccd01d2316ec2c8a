// Any bytes as a file of any kind that is imported, archives and databases among them.

#include "Application.h"
#include "Require.h"

#include "exchange/rules/ListReader.h"
#include "exchange/rules/Pairs.h"

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    beApplication();
    const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    const ListReader::Result opened = ListReader::open(bytes, {"windows-1252", QLocale::c()});
    require((opened.source == nullptr) == (opened.error != ReadError::None), "a list or a reason");
    if (!opened.source)
        return 0;
    ReadChoices choices = opened.source->proposal();
    for (choices.list = 0; choices.list < int(opened.source->lists().size()); ++choices.list) {
        const ListReader::Table read = ListReader::read(*opened.source, choices);
        Pairs::take(read.table, Pairs::proposal(read.table, opened.source->hasMarkup()));
    }
    return 0;
}
