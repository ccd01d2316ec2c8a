#include "platform/files/AtomicFile.h"

#include "platform/files/UserFolders.h"
#include "support/FileSizeLimit.h"

struct AtomicFileTest : ::testing::Test
{
    QString path(const QString &name) const { return m_folder.filePath(name); }
    QString put(const QString &name, const QByteArray &bytes) const { return writeFile(path(name), bytes); }
    QStringList names() const
    {
        return QDir(m_folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
    }

    QTemporaryDir m_folder;
};

TEST_F(AtomicFileTest, PiecesOfEverySizeArriveInOrderAndLinksAndModeAreKept)
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
    const QString name = QString(251, u'n') + ".gla"; // the longest there can be
    const QString file = put(name, QByteArray(900000, 'z')), near = path("near.gla"), far = path("far.gla");
    ASSERT_TRUE(::chmod(qPrintable(file), 0640) == 0 && QFile::link(name, near) && QFile::link(near, far));
    ASSERT_TRUE(AtomicFile::write(far, producer));
    EXPECT_TRUE(QFileInfo(near).isSymLink() && QFileInfo(far).isSymLink());
    EXPECT_EQ(readFile(file), expected);
    EXPECT_EQ(names().size(), 3);
    struct stat status = {};
    EXPECT_TRUE(::stat(qPrintable(file), &status) == 0 && (status.st_mode & 07777) == 0640);
}

TEST_F(AtomicFileTest, OldContentSurvivesEveryFailure)
{
    using Sink = AtomicFile::Sink;
    const QString full = std::strerror(EFBIG), stopped = "The content could not be produced";
    const auto once = [](const Sink &sink) { return sink(QByteArray(200000, 'n')); };
    const auto half = [](const Sink &sink) { return sink("half") && false; };
    const auto inPieces = [](const Sink &sink) {
        for (int i = 0; i < 100000; ++i)
            sink("0123456789");
        return sink(QByteArray(1 << 16, 'n')) || true; // whatever it answers
    };
    const QString file = put("a.gla", "old content");
    const FileSizeLimit limit(100000);
    for (const auto &[producer, reason] :
         {std::pair<AtomicFile::Producer, QString>(once, full), {half, stopped}, {inPieces, full}}) {
        QString error;
        EXPECT_FALSE(AtomicFile::write(file, producer, &error));
        EXPECT_EQ(error, reason);
        EXPECT_EQ(readFile(file), "old content");
        EXPECT_EQ(names().size(), 1);
    }
    EXPECT_FALSE(AtomicFile::write(m_folder.path(), "x"));
    EXPECT_FALSE(AtomicFile::write(path("missing/a.gla"), "x"));
}

// In a folder that allows no new file the content is written in place, and put back from the copy on failure.
TEST_F(AtomicFileTest, FolderThatAllowsNoNewFile)
{
    const QString file = put("a.gla", QByteArray(5000, 'o')), fixed = put("readonly.gla", "fixed");
    ASSERT_EQ(::chmod(qPrintable(file), 0666) | ::chmod(qPrintable(fixed), 0444) |
                  ::chmod(qPrintable(m_folder.path()), 0555),
              0);
    EXPECT_TRUE(OrdinaryUser::run([&] {
        const QDir copies(UserFolders::state());
        QString kept;
        const auto producer = [](const AtomicFile::Sink &sink) { return sink("shorter"); };
        const auto overwriting = [&] { kept = readFile(file) + copies.entryList(QDir::Files).join('|').left(6); };
        return AtomicFile::write(file, producer, nullptr, overwriting) && kept == QString(5000, u'o') + "saved-" &&
               copies.isEmpty();
    }));
    EXPECT_EQ(readFile(file), "shorter");
    EXPECT_TRUE(OrdinaryUser::run([&] {
        const auto refused = [](const QString &path, rlim_t limit) {
            const FileSizeLimit small(limit); // too small for the content, or for a copy of what is there
            QString error;
            return !AtomicFile::write(path, QByteArray(200000, 'n'), &error) && !error.contains("saved-");
        };
        return refused(file, 100000) && refused(file, 3) && refused(fixed, 1 << 20) &&
               refused(path("new.gla"), 1 << 20) && QDir(UserFolders::state()).isEmpty();
    }));
    EXPECT_EQ(readFile(file) + readFile(fixed), "shorterfixed");
    EXPECT_EQ(names().size(), 2);
    ::chmod(qPrintable(m_folder.path()), 0755);
}
