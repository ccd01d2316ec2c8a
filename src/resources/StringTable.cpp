#include "resources/StringTable.h"

#include "resources/ResourceFiles.h"
#include "resources/TextLanguage.h"

#include <QLocale>

#include <algorithm>

namespace {

/// Resolves the escapes of a text; false when one is unknown or cut off.
bool unescape(QString &text)
{
    for (qsizetype at = text.indexOf(QLatin1Char('\\')); at >= 0; at = text.indexOf(QLatin1Char('\\'), at + 1)) {
        constexpr QLatin1String Names("nts\\"), Meanings("\n\t \\");
        const qsizetype which = at + 1 < text.size() ? Names.indexOf(text.at(at + 1)) : -1;
        if (which < 0)
            return false;
        text.replace(at, 2, Meanings.at(which));
    }
    return true;
}

/// Takes one line into the table; returns what is wrong with it, or an empty text.
QString takeLine(QByteArrayView line, QHash<int, QString> &table)
{
    const qsizetype tab = line.indexOf('\t');
    bool isNumber = false;
    const int id = line.first(std::max<qsizetype>(tab, 0)).toInt(&isNumber);
    QString text = QString::fromUtf8(line.sliced(tab + 1));
    if (!isNumber || text.isEmpty() || text.front().isSpace() || text.back().isSpace() || !unescape(text))
        return QStringLiteral("malformed");
    if (table.contains(id))
        return QStringLiteral("doubled id %1").arg(id);
    table.insert(id, text);
    return {};
}

/// The texts in use: English ones until another table is laid over them.
QHash<int, QString> &texts()
{
    static QHash<int, QString> table = parseStringTable(ResourceFiles::contents(ResourceFiles::StringTable));
    return table;
}

/// Whose table lies over the English one.
QString &languageInUse()
{
    static QString language;
    return language;
}

} // namespace

const QString &TextLanguage::inUse()
{
    return languageInUse();
}

QString TextLanguage::isolated(const QString &name)
{
    constexpr QChar FirstStrongIsolate(0x2068), PopIsolate(0x2069);
    const bool mixes = QLocale(languageInUse()).textDirection() == Qt::RightToLeft;
    return mixes ? FirstStrongIsolate + name + PopIsolate : name;
}

void TextLanguage::use(const QString &language)
{
    if (language.isEmpty())
        return;
    languageInUse() = language;
    const QByteArray name = "strings." + language.toLatin1() + ".txt";
    texts().insert(parseStringTable(ResourceFiles::contents(QLatin1String(name))));
}

QHash<int, QString> parseStringTable(QByteArrayView source, QStringList *faults)
{
    QHash<int, QString> table;
    table.reserve(source.count('\n'));
    for (int number = 1; !source.isEmpty(); ++number) {
        const qsizetype end = source.indexOf('\n');
        const QByteArrayView line = end < 0 ? source : source.first(end);
        source = end < 0 ? QByteArrayView() : source.sliced(end + 1);
        if (line.isEmpty() || line.startsWith('#'))
            continue;
        const QString fault = takeLine(line, table);
        if (faults && !fault.isEmpty())
            faults->append(QStringLiteral("line %1: %2").arg(number).arg(fault));
    }
    return table;
}

QString resText(int id)
{
    const auto found = texts().constFind(id);
    if (found == texts().constEnd()) {
        qWarning("There is no text with the id %d", id);
        return {};
    }
    return *found;
}

QList<int> resTextIds()
{
    QList<int> ids = texts().keys();
    std::sort(ids.begin(), ids.end());
    return ids;
}
