#pragma once

#include <QByteArray>

struct Vocabulary;

/// The sample words as files of other programs, in the way in which those write them.
namespace SampleLists {

QByteArray csv(const Vocabulary &vocabulary);
QByteArray ods(const Vocabulary &vocabulary);
/// With shared strings.
QByteArray xlsx(const Vocabulary &vocabulary);
/// An old collection.
QByteArray apkg(const Vocabulary &vocabulary);

} // namespace SampleLists
