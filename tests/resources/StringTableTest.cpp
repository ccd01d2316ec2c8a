#include "resources/StringTable.h"

#include <QDirIterator>
#include <QRegularExpression>
#include <QSet>

#include <gtest/gtest.h>

namespace {

QByteArray contents(const QString &path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

/// Every place below src/ that names a text by a literal id, as "file: id".
QStringList literalIds()
{
    static const QRegularExpression inCode(QStringLiteral(R"(\b(?:resText|ShowStatus)\((\d+)\))"));
    static const QRegularExpression inForm(
        QStringLiteral(R"rx(name="(?:textId|whatsThisId)"[^>]*>\s*<number>(\d+)</number>)rx"));
    QStringList places;
    QDirIterator files(QStringLiteral(SOURCE_FOLDER "/src"), {QStringLiteral("*.cpp"), QStringLiteral("*.ui")},
                       QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = files.next();
        const QString text = QString::fromUtf8(contents(path));
        auto found = (path.endsWith(QStringLiteral(".ui")) ? inForm : inCode).globalMatch(text);
        while (found.hasNext())
            places.append(files.fileName() + QStringLiteral(": ") + found.next().captured(1));
    }
    return places;
}

TEST(StringTable, SourceHasNoFaults)
{
    QStringList faults;
    const QByteArray source = contents(QStringLiteral(SOURCE_FOLDER "/src/resources/strings.txt"));
    const auto table = parseStringTable(source, &faults);
    EXPECT_TRUE(faults.isEmpty()) << faults.join(u'\n').toStdString();
    EXPECT_EQ(table.size(), resTextIds().size()) << "the program carries another table than the source";
}

TEST(StringTable, HoldsEveryTextThatTheProgramNames)
{
    const QList<int> list = resTextIds();
    const QSet<int> ids(list.begin(), list.end());
    for (const QString &place : literalIds()) {
        const int id = place.section(QStringLiteral(": "), 1).toInt();
        EXPECT_TRUE(id == 0 || ids.contains(id)) << place.toStdString();
    }
}

TEST(StringTable, TextsComeFromTheEmbeddedTable)
{
    EXPECT_EQ(resText(419), QStringLiteral("Can't &Undo"));
    EXPECT_EQ(resText(710), QStringLiteral("A file named "));
    EXPECT_EQ(resText(711), QStringLiteral(" is already open."));
    EXPECT_TRUE(resText(-1).isNull());
}

TEST(StringTable, ParserResolvesEscapesAndNamesFaults)
{
    QStringList faults;
    const auto table = parseStringTable("# head\n1\ta\\nb\\tc\\\\n\\s\n\n2\tx\n2\ty\nno id\n3\t\n4\tbad\\q\n5\tend \n"
                                        "6\tcut\\",
                                        &faults);
    EXPECT_EQ(table, (QHash<int, QString>{{1, QStringLiteral("a\nb\tc\\n ")}, {2, QStringLiteral("x")}}));
    EXPECT_EQ(faults, (QStringList{"line 5: doubled id 2", "line 6: malformed", "line 7: malformed",
                                   "line 8: malformed", "line 9: malformed", "line 10: malformed"}));
}

} // namespace
