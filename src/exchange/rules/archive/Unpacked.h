#pragma once

#include "exchange/rules/archive/PackedStream.h"

/// Streams of the two ways to pack a single file. bytes must outlive the stream.
namespace Unpacked {

/// RFC 1952, as gzip writes it.
std::unique_ptr<PackedStream> gzip(const QByteArray &bytes, Limits &limits);

/// Frames of RFC 8878 that come out of another stream.
std::unique_ptr<PackedStream> zstd(std::shared_ptr<PackedStream> packed, Limits &limits);

} // namespace Unpacked
