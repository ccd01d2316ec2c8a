#pragma once

#include "exchange/rules/Pairs.h"

/// What the import tells its user in words.
namespace ImportTexts {

/// How many rows arrive and what does not; mostShown: how many of them the preview has.
QString arriving(const Pairs::Count &count, int mostShown);

/// A character set by the languages that use it.
QString encoding(const QByteArray &name);

} // namespace ImportTexts
