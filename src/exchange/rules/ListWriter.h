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

/// Writes pair by pair, so that a long list stands nowhere else in memory. Pairs without a word are left out at the
/// end.
class Output
{
public:
    /// The names of the languages come first where they have any. title: of the page, for HTML.
    Output(Format format, const QString &firstName, const QString &secondName, const QString &title);

    void add(const QString &first, const QString &second);
    /// To be called once, at the end.
    QByteArray bytes();

private:
    void addRow(const QString &first, const QString &second);
    void flush();

    Format m_format;
    QString m_text; ///< what has not been encoded yet
    QByteArray m_bytes;
    bool m_ascii = true;
    qsizetype m_withoutWords = 0; ///< pairs that are left out unless others follow
};

QByteArray write(const Vocabulary &vocabulary, Format format, const QString &title);

/// Whether a text has something that no UTF-8 can hold.
bool losesLetters(const Vocabulary &vocabulary);

} // namespace ListWriter
