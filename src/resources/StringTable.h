#pragma once

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

/// The user-visible text with this id, looked up at the moment of use. An unknown id gives an empty text and a warning.
QString resText(int id);

/// The ids of all texts, in ascending order.
QList<int> resTextIds();

/// Reads a string table: lines "id<TAB>text" with the escapes \n, \t, \s (blank) and \\; lines that begin with # and
/// empty lines are skipped. A malformed line, an unknown escape and an id that stands twice (its first text holds) are
/// described in faults, each with its line number.
QHash<int, QString> parseStringTable(QByteArrayView source, QStringList *faults = nullptr);
