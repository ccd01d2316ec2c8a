#pragma once

#include <QString>

/// The text as a field by RFC 4180: in double quotes, with those within it doubled.
QString quoted(QStringView text);
