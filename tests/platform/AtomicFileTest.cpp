#include "platform/AtomicFile.h"

#include "support/FileSizeLimit.h"
#include "support/OrdinaryUser.h"

#include <QDir>
#include <QFileInfo>

#include <sys/stat.h>

namespace {

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
}

class AtomicFileTest : public ::testing::Test
{
protected:
    QString path(const QString &name) const { return m_folder.filePath(name); }
    QStringList names() const
    {
        return QDir(m_folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
    }
    void put(const QString &name, const QByteArray &bytes) const
    {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }

    QTemporaryDir m_folder;
};

} // namespace

TEST_F(AtomicFileTest, PiecesOfEverySizeArriveInOrder)
{
    QByteArray expected;
    const auto producer = [&expected](const AtomicFile::Sink &sink) {
        for (int size : {0, 1, 65535, 65536, 65537, 3, 200000, 65536}) {
            const QByteArray piece(size, char('a' + size % 23));
            expected += piece;
            if (!sink(piece))
                return false;
        }
        return true;
    };
    put(QStringLiteral("a.gla"), QByteArray(900000, 'z'));
    QString error;
    ASSERT_TRUE(AtomicFile::write(path(QStringLiteral("a.gla")), producer, &error)) << qPrintable(error);
    EXPECT_EQ(contentOf(path(QStringLiteral("a.gla"))), expected);
    EXPECT_EQ(names(), QStringList{QStringLiteral("a.gla")});
}

TEST_F(AtomicFileTest, NameAsLongAsTheFileSystemAllows)
{
    const QString name = QString(251, QLatin1Char('n')) + QStringLiteral(".gla");
    EXPECT_TRUE(AtomicFile::write(path(name), "x"));
    EXPECT_EQ(names(), QStringList{name});
}

TEST_F(AtomicFileTest, KeepsLinksAndMode)
{
    put(QStringLiteral("real.gla"), "old");
    ASSERT_EQ(::chmod(qPrintable(path(QStringLiteral("real.gla"))), 0640), 0);
    ASSERT_TRUE(QFile::link(QStringLiteral("real.gla"), path(QStringLiteral("near.gla"))));
    ASSERT_TRUE(QFile::link(path(QStringLiteral("near.gla")), path(QStringLiteral("far.gla"))));
    ASSERT_TRUE(AtomicFile::write(path(QStringLiteral("far.gla")), "new"));
    EXPECT_TRUE(QFileInfo(path(QStringLiteral("far.gla"))).isSymLink());
    EXPECT_TRUE(QFileInfo(path(QStringLiteral("near.gla"))).isSymLink());
    EXPECT_EQ(contentOf(path(QStringLiteral("real.gla"))), "new");
    struct stat status = {};
    ASSERT_EQ(::stat(qPrintable(path(QStringLiteral("real.gla"))), &status), 0);
    EXPECT_EQ(status.st_mode & 07777, 0640u);
}

TEST_F(AtomicFileTest, OldContentSurvivesEveryFailure)
{
    struct Case
    {
        const char *what;
        AtomicFile::Producer producer;
    };
    const Case cases[] = {
        {"one piece over the limit", [](const AtomicFile::Sink &sink) { return sink(QByteArray(200000, 'n')); }},
        {"small pieces over the limit",
         [](const AtomicFile::Sink &sink) {
             for (int i = 0; i < 20000; ++i) {
                 if (!sink("0123456789"))
                     return false;
             }
             return true;
         }},
        {"a producer that ignores the sink's answer",
         [](const AtomicFile::Sink &sink) {
             for (int i = 0; i < 20000; ++i)
                 sink("0123456789");
             return true;
         }},
        {"a producer that gives up",
         [](const AtomicFile::Sink &sink) {
             sink("half");
             return false;
         }},
    };
    put(QStringLiteral("a.gla"), "old content");
    const FileSizeLimit limit(100000);
    for (const Case &failing : cases) {
        QString error;
        EXPECT_FALSE(AtomicFile::write(path(QStringLiteral("a.gla")), failing.producer, &error)) << failing.what;
        EXPECT_FALSE(error.isEmpty()) << failing.what;
        EXPECT_EQ(contentOf(path(QStringLiteral("a.gla"))), "old content") << failing.what;
        EXPECT_EQ(names(), QStringList{QStringLiteral("a.gla")}) << failing.what;
    }
}

TEST_F(AtomicFileTest, RefusesWhatIsNoFile)
{
    QString error;
    EXPECT_FALSE(AtomicFile::write(m_folder.path(), "x", &error));
    EXPECT_FALSE(error.isEmpty());
    EXPECT_FALSE(AtomicFile::write(path(QStringLiteral("missing/a.gla")), "x", &error));
    EXPECT_FALSE(error.isEmpty());
}

// In a folder that allows no new file the content is written in place, and put back from the copy on failure.
TEST_F(AtomicFileTest, FolderThatAllowsNoNewFile)
{
    put(QStringLiteral("a.gla"), QByteArray(5000, 'o'));
    put(QStringLiteral("readonly.gla"), "fixed");
    QTemporaryDir state;
    const QByteArray stateBefore = qgetenv("XDG_STATE_HOME");
    qputenv("XDG_STATE_HOME", QFile::encodeName(state.path()));
    for (const QString &name : {path(QStringLiteral("a.gla")), state.path()})
        ASSERT_EQ(::chmod(qPrintable(name), 0777), 0);
    ASSERT_EQ(::chmod(qPrintable(path(QStringLiteral("readonly.gla"))), 0444), 0);
    ASSERT_EQ(::chmod(qPrintable(m_folder.path()), 0555), 0);
    const QString file = path(QStringLiteral("a.gla"));

    EXPECT_TRUE(OrdinaryUser::run([&] { return AtomicFile::write(file, "shorter"); }));
    EXPECT_EQ(contentOf(file), "shorter");
    EXPECT_TRUE(OrdinaryUser::run([&] {
        const FileSizeLimit limit(100000);
        return !AtomicFile::write(file, QByteArray(200000, 'n'));
    }));
    EXPECT_EQ(contentOf(file), "shorter");
    EXPECT_TRUE(OrdinaryUser::run([&] {
        return !AtomicFile::write(path(QStringLiteral("readonly.gla")), "x") &&
               !AtomicFile::write(path(QStringLiteral("new.gla")), "x");
    }));
    EXPECT_EQ(contentOf(path(QStringLiteral("readonly.gla"))), "fixed");
    EXPECT_EQ(names().size(), 2);
    EXPECT_TRUE(QDir(state.filePath(QStringLiteral("glosaria"))).isEmpty());
    ::chmod(qPrintable(m_folder.path()), 0755);
    qputenv("XDG_STATE_HOME", stateBefore);
}
