#include "exchange/rules/ListWriter.h"

#include "document/rules/Vocabulary.h"

namespace {

/// Rows with words; the names of the languages are the first where they have any.
template <typename Row> void forEachRow(const Vocabulary &vocabulary, qsizetype from, Row row)
{
    for (qsizetype i = from; i < vocabulary.filledRows(); ++i)
        row(vocabulary.first[size_t(i)], vocabulary.second[size_t(i)]);
}

bool hasNames(const Vocabulary &vocabulary)
{
    return vocabulary.rows() > 0 && !(vocabulary.first.front().isEmpty() && vocabulary.second.front().isEmpty());
}

qsizetype namesOrFirst(const Vocabulary &vocabulary)
{
    return hasNames(vocabulary) ? 0 : 1;
}

bool isAscii(const QString &text)
{
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c.unicode() < 0x80; });
}

/// In quotes where it has to be, with those within doubled.
void appendQuoted(QString &text, const QString &word, QChar separator)
{
    const auto isSpecial = [separator](QChar c) { return c == separator || c == u'"' || c == u'\r' || c == u'\n'; };
    if (std::none_of(word.begin(), word.end(), isSpecial)) {
        text += word;
        return;
    }
    text += u'"';
    for (const QChar c : word) {
        text += c;
        if (c == u'"')
            text += u'"';
    }
    text += u'"';
}

/// By RFC 4180. Spreadsheets need a mark to read letters beyond ASCII.
QString csv(const Vocabulary &vocabulary)
{
    QString text;
    forEachRow(vocabulary, namesOrFirst(vocabulary), [&text](const QString &first, const QString &second) {
        appendQuoted(text, first, u',');
        text += u',';
        appendQuoted(text, second, u',');
        text += u"\r\n";
    });
    return isAscii(text) ? text : QChar(QChar::ByteOrderMark) + text;
}

/// Words hold no tabs and no line breaks. One that begins with a quote would be taken for a quoted one.
void appendTabbed(QString &text, const QString &word)
{
    if (word.startsWith(u'"'))
        appendQuoted(text, word, u'\t');
    else
        text += word;
}

QString tabs(const Vocabulary &vocabulary, qsizetype from)
{
    QString text;
    forEachRow(vocabulary, from, [&text](const QString &first, const QString &second) {
        appendTabbed(text, first);
        text += u'\t';
        appendTabbed(text, second);
        text += u'\n';
    });
    return text;
}

/// A line that begins with "#" would be passed over by its reader.
QString ankiText(const Vocabulary &vocabulary)
{
    QString text = QStringLiteral("#separator:tab\n#html:false\n");
    if (hasNames(vocabulary))
        text += QStringLiteral("#columns:") + vocabulary.first.front() + u'\t' + vocabulary.second.front() + u'\n';
    forEachRow(vocabulary, 1, [&text](const QString &first, const QString &second) {
        if (first.startsWith(u'#'))
            text += u'"' + QString(first).replace(QStringLiteral("\""), QStringLiteral("\"\"")) + u'"';
        else
            appendTabbed(text, first);
        text += u'\t';
        appendTabbed(text, second);
        text += u'\n';
    });
    return text;
}

void appendHtmlRow(QString &text, const QString &first, const QString &second, const char *cell)
{
    const QString tag = QString::fromLatin1(cell);
    const QString open = u'<' + tag + QStringLiteral(" dir=\"auto\">");
    text += QStringLiteral("<tr>") + open + first.toHtmlEscaped() + QStringLiteral("</") + tag + u'>' + open +
            second.toHtmlEscaped() + QStringLiteral("</") + tag + QStringLiteral("></tr>\n");
}

QString html(const Vocabulary &vocabulary, const QString &title)
{
    QString text =
        QStringLiteral("<!DOCTYPE html>\n<html>\n<head>\n<meta charset=\"utf-8\">\n<title>") + title.toHtmlEscaped() +
        QStringLiteral("</title>\n<style>\ntable { border-collapse: collapse; width: 100%; }\n"
                       "th, td { border: 1px solid #888; padding: 0.2em 0.5em; text-align: start; "
                       "vertical-align: top; white-space: pre-wrap; width: 50%; }\ntr { break-inside: avoid; }\n"
                       "thead { display: table-header-group; }\n</style>\n</head>\n<body>\n<table>\n");
    if (hasNames(vocabulary)) {
        text += QStringLiteral("<thead>\n");
        appendHtmlRow(text, vocabulary.first.front(), vocabulary.second.front(), "th");
        text += QStringLiteral("</thead>\n");
    }
    text += QStringLiteral("<tbody>\n");
    forEachRow(vocabulary, 1,
               [&text](const QString &first, const QString &second) { appendHtmlRow(text, first, second, "td"); });
    return text + QStringLiteral("</tbody>\n</table>\n</body>\n</html>\n");
}

} // namespace

namespace ListWriter {

std::optional<Format> formatOf(const QString &path)
{
    static constexpr std::pair<const char *, Format> Ends[] = {{".csv", Format::Csv},   {".anki.txt", Format::AnkiText},
                                                               {".txt", Format::Tabs},  {".tsv", Format::Tabs},
                                                               {".html", Format::Html}, {".htm", Format::Html}};
    for (const auto &[end, format] : Ends) {
        if (path.endsWith(QLatin1String(end), Qt::CaseInsensitive))
            return format;
    }
    return std::nullopt;
}

QByteArray write(const Vocabulary &vocabulary, Format format, const QString &title)
{
    switch (format) {
    case Format::Csv:
        return csv(vocabulary).toUtf8();
    case Format::Tabs:
        return tabs(vocabulary, namesOrFirst(vocabulary)).toUtf8();
    case Format::Html:
        return html(vocabulary, title).toUtf8();
    case Format::AnkiText:
        return ankiText(vocabulary).toUtf8();
    }
    return {};
}

bool losesLetters(const Vocabulary &vocabulary)
{
    const auto isWhole = [](const QString &word) { return word.isValidUtf16(); };
    return !std::all_of(vocabulary.first.begin(), vocabulary.first.end(), isWhole) ||
           !std::all_of(vocabulary.second.begin(), vocabulary.second.end(), isWhole);
}

} // namespace ListWriter
