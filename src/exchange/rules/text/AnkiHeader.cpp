#include "exchange/rules/text/AnkiHeader.h"

#include <utility>

namespace {

constexpr std::pair<const char *, const char *> Separators[] = {{"tab", "\t"},  {"comma", ","}, {"semicolon", ";"},
                                                                {"space", " "}, {"pipe", "|"},  {"colon", ":"}};

QString separatorNamed(QStringView name)
{
    for (const auto &[known, separator] : Separators) {
        if (name.compare(QLatin1String(known), Qt::CaseInsensitive) == 0)
            return QString::fromLatin1(separator);
    }
    return name.toString();
}

/// Takes in one line without its "#". False: it is none of the header.
bool take(AnkiHeader &header, QStringView line)
{
    const qsizetype colon = line.indexOf(u':');
    const QStringView key = line.left(std::max<qsizetype>(colon, 0)).trimmed();
    const QStringView value = line.mid(colon + 1);
    if (key == u"separator")
        header.separator = separatorNamed(value.trimmed().isEmpty() ? value : value.trimmed());
    else if (key == u"html")
        header.markup = value.trimmed().compare(u"true", Qt::CaseInsensitive) == 0;
    else if (key == u"columns")
        header.columnNames =
            value.toString().split(header.separator.isEmpty() ? QStringLiteral("\t") : header.separator);
    else if (key.endsWith(u" column")) {
        if (const int column = value.trimmed().toInt(); column > 0)
            header.otherColumns.push_back(column - 1);
    } else {
        return key == u"tags" || key == u"deck" || key == u"notetype" || key == u"if matches";
    }
    return true;
}

} // namespace

AnkiHeader AnkiHeader::read(QStringView text)
{
    AnkiHeader header;
    while (header.size < text.size() && text[header.size] == u'#') {
        const qsizetype end = text.indexOf(u'\n', header.size);
        QStringView line = text.mid(header.size + 1, (end < 0 ? text.size() : end) - header.size - 1);
        if (line.endsWith(u'\r'))
            line.chop(1);
        if (!take(header, line))
            break;
        header.size = end < 0 ? text.size() : end + 1;
    }
    return header;
}
