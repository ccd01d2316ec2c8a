#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

struct Vocabulary;

/// Writes a vocabulary's words for other programs, in UTF-8. Fonts, sizes of rows and columns are not theirs; nothing
/// else is lost but what is no letter: a surrogate without its partner.
namespace ListWriter {

enum class Format { Csv, Tabs, Html, AnkiText };

/// By the end of a file's name; .txt and .tsv are text with tabs, .anki.txt is Anki's. No value: none of them.
std::optional<Format> formatOf(const QString &path);

/// The names of the languages come first where they have any. title: of the page, for HTML.
QByteArray write(const Vocabulary &vocabulary, Format format, const QString &title);

/// Whether a text has something that no UTF-8 can hold.
bool losesLetters(const Vocabulary &vocabulary);

} // namespace ListWriter
