#include "resources/StringTable.h"
#include "services/HelpFile.h"
#include "services/rules/HelpBook.h"

#include <QDirIterator>
#include <QRegularExpression>

namespace {

const QString HelpFolder = QStringLiteral(SOURCE_FOLDER "/src/resources/help/");

QByteArray contents(const QString &path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

/// What a pattern's first group matches in the forms and the code of the program, as number and file.
std::multimap<int, QString> numbersIn(const QStringList &patterns)
{
    std::multimap<int, QString> numbers;
    QDirIterator files(QStringLiteral(SOURCE_FOLDER "/src"), {QStringLiteral("*.cpp"), QStringLiteral("*.ui")},
                       QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString text = QString::fromUtf8(contents(files.next()));
        for (const QString &pattern : patterns) {
            auto match = QRegularExpression(pattern).globalMatch(text);
            while (match.hasNext())
                numbers.emplace(match.next().captured(1).toInt(), files.fileName());
        }
    }
    return numbers;
}

QStringList pagesOf(const HelpBook &book)
{
    QStringList pages;
    for (const HelpChapter *chapter : book.pages())
        pages.append(chapter->page);
    return pages;
}

HelpBook book()
{
    return parseHelpBook(contents(HelpFolder + QStringLiteral("glhelp.qhp")));
}

TEST(HelpContent, EveryHelpIdOfTheProgramHasATopic)
{
    const auto topics = parseHelpContexts(contents(HelpFolder + QStringLiteral("context.txt")));
    const auto ids = numbersIn({QStringLiteral(R"rx(helpContextId"[^>]*>\s*<number>(\d+))rx"),
                                QStringLiteral(R"rx((?:helpTopic|Topic) = (\d+))rx"),
                                QStringLiteral(R"rx(\{QStringLiteral\("mnu\w+"\), \d+, \d+, (\d+))rx"),
                                QStringLiteral(R"rx(setHelpContextId\([^;]*?\b(\d{4})\b)rx"),
                                QStringLiteral(R"rx(setHelpContextId\([^;]*\b(\d{4})\))rx")});
    for (const int id : {1030, 1090, 1160, 1170, 1180, 1200, 1204, 1210, 1220, 1230, 1240, 1250, 1400, 1440})
        EXPECT_TRUE(ids.contains(id)) << "the patterns above miss " << id;
    for (const auto &[id, file] : ids)
        EXPECT_TRUE(topics.contains(id)) << file.toStdString() << " names topic " << id;
    for (const QString &page : topics)
        EXPECT_TRUE(pagesOf(book()).contains(page)) << page.toStdString();
}

TEST(HelpContent, EveryWhatsThisIdOfTheProgramHasAText)
{
    const QList<int> texts = resTextIds();
    const auto ids = numbersIn({QStringLiteral(R"rx(\b(200\d\d)\b)rx")});
    EXPECT_GT(ids.size(), 100u);
    for (const auto &[id, file] : ids)
        EXPECT_TRUE(texts.contains(id)) << file.toStdString() << " names text " << id;
}

TEST(HelpContent, EveryPageStandsInTheContentsOnceUnderItsTitle)
{
    QStringList files;
    for (const QString &name : QDir(HelpFolder + QStringLiteral("html")).entryList(QDir::Files))
        files.append(QStringLiteral("html/") + name);
    QStringList listed = pagesOf(book());
    listed.sort();
    EXPECT_EQ(listed, files);
    const HelpBook all = book();
    for (const HelpChapter *chapter : all.pages()) {
        const QString page = QString::fromUtf8(contents(HelpFolder + chapter->page));
        EXPECT_TRUE(page.contains(QStringLiteral("<title>%1</title>").arg(chapter->title)))
            << chapter->page.toStdString();
        EXPECT_TRUE(page.contains(QStringLiteral("<h1>%1</h1>").arg(chapter->title))) << chapter->page.toStdString();
    }
    for (const HelpKeyword &keyword : all.keywords)
        EXPECT_TRUE(files.contains(keyword.page)) << keyword.word.toStdString();
}

TEST(HelpContent, NoLinkIsDead)
{
    HelpFile file(QStringLiteral(HELP_FILE));
    ASSERT_TRUE(file.open());
    static const QRegularExpression link(QStringLiteral(R"rx((?:href|src)="([^"#]*))rx"));
    int links = 0;
    for (const QString &page : pagesOf(book())) {
        auto match = link.globalMatch(QString::fromUtf8(file.contents(page)));
        for (; match.hasNext(); ++links) {
            const QString target = QDir::cleanPath(QStringLiteral("html/") + match.next().captured(1));
            EXPECT_FALSE(file.contents(target).isEmpty()) << page.toStdString() << ": " << target.toStdString();
        }
    }
    EXPECT_GT(links, 100);
}

TEST(HelpContent, HasNoColoursOfItsOwnAndStaysSmall)
{
    static const QRegularExpression colour(QStringLiteral("#[0-9a-f]{3}|color[:=]|bgcolor"));
    qint64 size = 0;
    QDirIterator files(HelpFolder, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QByteArray text = contents(files.next());
        size += text.size();
        const bool picture = files.fileName().endsWith(QStringLiteral(".png"));
        EXPECT_TRUE(picture || !QString::fromUtf8(text).contains(colour)) << files.fileName().toStdString();
    }
    EXPECT_LT(size, 1'000'000);
}

} // namespace
