#pragma once

#include "platform/registry/RegistryTree.h"

#include <QByteArrayView>

/// The text form of a store: UTF-8, one line a key or value, readable and without loss for any name and any value.
///
///     Glosaria registry 1
///     HKEY_CURRENT_USER "Software\\Glosaria"
///       "FontName" = string "Arial"
///       "Settings" = binary 00 00 01 ff
///     end
///
/// In quotes, a backslash stands before a backslash, a quote, n (line feed), r, t, and u with four hexadecimal digits
/// (other control characters and surrogates that stand alone).
namespace RegistryText {

QByteArray write(const RegistryTree &tree);

/// Nothing when the bytes are no whole, undamaged text of this form.
std::optional<RegistryTree> read(QByteArrayView bytes);

} // namespace RegistryText
