#include "exchange/rules/ListWriter.h"

#include "document/rules/Vocabulary.h"
#include "services/rules/QuotedText.h"

namespace {

using ListWriter::Format;

constexpr qsizetype PortionSize = qsizetype(64) * 1024; ///< letters that are encoded at once

bool isAscii(const QString &text)
{
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c.unicode() < 0x80; });
}

bool isSpecialInCsv(QChar c)
{
    return c == u',' || c == u'"' || c == u'\r' || c == u'\n';
}

/// By RFC 4180.
void appendCsv(QString &text, const QString &word)
{
    text += std::any_of(word.begin(), word.end(), isSpecialInCsv) ? quoted(word) : word;
}

void appendCsvRow(QString &text, const QString &first, const QString &second)
{
    appendCsv(text, first);
    text += u',';
    appendCsv(text, second);
    text += u"\r\n";
}

/// Words hold no tabs and no line breaks. One that begins with a quote would be taken for a quoted one.
void appendTabbed(QString &text, const QString &word)
{
    text += word.startsWith(u'"') ? quoted(word) : word;
}

void appendTabbedRow(QString &text, const QString &first, const QString &second)
{
    appendTabbed(text, first);
    text += u'\t';
    appendTabbed(text, second);
    text += u'\n';
}

/// A line that begins with "#" would be passed over by its reader.
void appendAnkiRow(QString &text, const QString &first, const QString &second)
{
    if (!first.startsWith(u'#'))
        return appendTabbedRow(text, first, second);
    text += quoted(first) + u'\t';
    appendTabbed(text, second);
    text += u'\n';
}

void appendHtmlRow(QString &text, const QString &first, const QString &second, const char *cell)
{
    const QString tag = QString::fromLatin1(cell);
    const QString open = u'<' + tag + QStringLiteral(" dir=\"auto\">");
    text += QStringLiteral("<tr>") + open + first.toHtmlEscaped() + QStringLiteral("</") + tag + u'>' + open +
            second.toHtmlEscaped() + QStringLiteral("</") + tag + QStringLiteral("></tr>\n");
}

void appendRow(QString &text, Format format, const QString &first, const QString &second)
{
    switch (format) {
    case Format::Csv:
        return appendCsvRow(text, first, second);
    case Format::Tabs:
        return appendTabbedRow(text, first, second);
    case Format::Html:
        return appendHtmlRow(text, first, second, "td");
    case Format::AnkiText:
        return appendAnkiRow(text, first, second);
    }
}

QString htmlStart(const QString &title)
{
    return QStringLiteral("<!DOCTYPE html>\n<html>\n<head>\n<meta charset=\"utf-8\">\n<title>") +
           title.toHtmlEscaped() +
           QStringLiteral("</title>\n<style>\ntable { border-collapse: collapse; width: 100%; }\n"
                          "th, td { border: 1px solid #888; padding: 0.2em 0.5em; text-align: start; "
                          "vertical-align: top; white-space: pre-wrap; width: 50%; }\ntr { break-inside: avoid; }\n"
                          "thead { display: table-header-group; }\n</style>\n</head>\n<body>\n<table>\n");
}

void appendNames(QString &text, Format format, const QString &first, const QString &second)
{
    switch (format) {
    case Format::Csv:
    case Format::Tabs:
        return appendRow(text, format, first, second);
    case Format::Html:
        text += QStringLiteral("<thead>\n");
        appendHtmlRow(text, first, second, "th");
        text += QStringLiteral("</thead>\n");
        return;
    case Format::AnkiText:
        text += QStringLiteral("#columns:") + first + u'\t' + second + u'\n';
        return;
    }
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

Output::Output(Format format, const QString &firstName, const QString &secondName, const QString &title)
    : m_format(format)
{
    if (format == Format::Html)
        m_text = htmlStart(title);
    else if (format == Format::AnkiText)
        m_text = QStringLiteral("#separator:tab\n#html:false\n");
    if (!firstName.isEmpty() || !secondName.isEmpty())
        appendNames(m_text, format, firstName, secondName);
    if (format == Format::Html)
        m_text += QStringLiteral("<tbody>\n");
}

void Output::add(const QString &first, const QString &second)
{
    if (first.isEmpty() && second.isEmpty()) {
        ++m_withoutWords;
        return;
    }
    for (; m_withoutWords > 0; --m_withoutWords)
        addRow({}, {});
    addRow(first, second);
}

void Output::addRow(const QString &first, const QString &second)
{
    appendRow(m_text, m_format, first, second);
    if (m_text.size() >= PortionSize)
        flush();
}

void Output::flush()
{
    m_ascii = m_ascii && isAscii(m_text);
    m_bytes += m_text.toUtf8();
    m_text.resize(0);
}

/// Spreadsheets need a mark to read letters beyond ASCII.
QByteArray Output::bytes()
{
    if (m_format == Format::Html)
        m_text += QStringLiteral("</tbody>\n</table>\n</body>\n</html>\n");
    flush();
    if (m_format == Format::Csv && !m_ascii)
        m_bytes.prepend("\xEF\xBB\xBF");
    return std::move(m_bytes);
}

QByteArray write(const Vocabulary &vocabulary, Format format, const QString &title)
{
    const bool any = vocabulary.rows() > 0;
    Output output(format, any ? vocabulary.first.front() : QString(), any ? vocabulary.second.front() : QString(),
                  title);
    for (size_t row = 1; row < vocabulary.first.size(); ++row)
        output.add(vocabulary.first[row], vocabulary.second[row]);
    return output.bytes();
}

bool losesLetters(const Vocabulary &vocabulary)
{
    const auto isWhole = [](const QString &word) { return word.isValidUtf16(); };
    return !std::all_of(vocabulary.first.begin(), vocabulary.first.end(), isWhole) ||
           !std::all_of(vocabulary.second.begin(), vocabulary.second.end(), isWhole);
}

} // namespace ListWriter
