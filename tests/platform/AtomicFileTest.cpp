#include "platform/files/AtomicFile.h"

#include "platform/files/UserFolders.h"
#include "support/FileSizeLimit.h"
#include "support/RefusedCall.h"

struct AtomicFileTest : ::testing::Test
{
    ~AtomicFileTest() override { EXPECT_EQ(QDir("/proc/self/fd").count(), m_openBefore); }
    QString path(const QString &name) const { return m_folder.filePath(name); }
    QString put(const QString &name, const QByteArray &bytes) const { return writeFile(path(name), bytes); }
    QStringList names() const
    {
        return QDir(m_folder.path()).entryList(QDir::Files | QDir::System | QDir::Hidden, QDir::Name);
    }

    QTemporaryDir m_folder;
    const uint m_openBefore = QDir("/proc/self/fd").count();
};

const QString Stopped = "The content could not be produced";

TEST_F(AtomicFileTest, PiecesOfEverySizeArriveInOrderAndLinksAndModeAreKept)
{
    QByteArray expected;
    const auto producer = [&expected](const AtomicFile::Sink &sink) {
        const auto sizes = {0, 1, 65535, 65536, 65537, 3, 200000, 65536};
        return std::all_of(sizes.begin(), sizes.end(), [&](int size) {
            expected += QByteArray(size, char('a' + size % 23));
            return sink(expected.last(size));
        });
    };
    const QString name = QString(251, u'n') + ".gla"; // the longest there can be
    const QString file = put(name, QByteArray(900000, 'z')), near = path("near.gla"), far = path("far.gla");
    ASSERT_TRUE(::chmod(qPrintable(file), 0640) == 0 && QFile::link(name, near) && QFile::link(near, far));
    ASSERT_TRUE(AtomicFile::write(far, producer));
    EXPECT_TRUE(QFileInfo(near).isSymLink() && QFileInfo(far).isSymLink() && names().size() == 3);
    EXPECT_EQ(readFile(file), expected);
    struct stat status = {};
    EXPECT_TRUE(::stat(qPrintable(file), &status) == 0 && (status.st_mode & 07777) == 0640);
}

TEST_F(AtomicFileTest, OldContentSurvivesEveryFailure)
{
    using Sink = AtomicFile::Sink;
    const auto half = [](const Sink &sink) { return sink("half") && false; };
    const auto inPieces = [](const Sink &sink) {
        for (int i = 0; i < 100000; ++i)
            sink("0123456789");
        return sink(QByteArray(1 << 16, 'n')) || true; // whatever it answers
    };
    const QString file = put("a.gla", "old content"), pipe = path("pipe");
    ASSERT_EQ(::mkfifo(qPrintable(pipe), 0600), 0);
    const FileSizeLimit limit(100000);
    const std::tuple<QString, AtomicFile::Producer, QString> cases[] = {{file, half, Stopped},
                                                                        {file, inPieces, std::strerror(EFBIG)},
                                                                        {m_folder.path(), half, std::strerror(EISDIR)},
                                                                        {path("no/a"), half, std::strerror(ENOENT)},
                                                                        {pipe, half, std::strerror(EACCES)}};
    for (const auto &[name, producer, reason] : cases) {
        QString error;
        EXPECT_FALSE(AtomicFile::write(name, producer, &error) || AtomicFile::write(name, producer));
        EXPECT_EQ(error + readFile(file) + names().join(' '), reason + "old content" + "a.gla pipe");
    }
}

// A file that cannot be moved into place is written in place.
TEST_F(AtomicFileTest, WhatTheFileSystemRefusesIsDoneOtherwiseOrTold)
{
    ASSERT_EQ(::chmod(qPrintable(m_folder.path()), 0777), 0);
    const auto expect = [this](const QString &told, const std::vector<RefusedCall> &refused) {
        const QString file = put("a.gla", "old content"), another = path("another.gla");
        const bool written = told.isEmpty(), moves = written && (refused.empty() || refused[0].number != SYS_rename);
        ::chmod(qPrintable(file), 0666);
        EXPECT_TRUE(OrdinaryUser::run([&] {
            std::for_each(refused.begin(), refused.end(), [](const RefusedCall &call) { call.refuse(); });
            ::umask(0027);
            QString error = "from before";
            struct stat status = {};
            return AtomicFile::write(file, "new", &error) == written && error == told &&
                   AtomicFile::write(another, "") == moves && QDir(UserFolders::state()).isEmpty() &&
                   (::stat(qPrintable(another), &status) != 0 || (status.st_mode & 07777) == 0640);
        })) << (refused.empty() ? 0 : refused[0].number);
        EXPECT_EQ(readFile(file), written ? "new" : "old content");
        EXPECT_EQ(names().join(' '), moves ? "a.gla another.gla" : "a.gla");
        QFile::remove(another);
    };
    const RefusedCall noLaterName{SYS_linkat, ENOENT};
    expect("", {});
    expect("", {noLaterName});
    for (const int error : {EINVAL, ENOTSUP})
        expect("", {{SYS_fsync, error}});
    for (const int error : {EACCES, EPERM, EBUSY, EXDEV})
        expect("", {{SYS_rename, error}});
    expect(std::strerror(EIO), {noLaterName, {SYS_rename, EIO}});
    for (const int call : {SYS_rename, SYS_fsync, SYS_ftruncate})
        expect(std::strerror(EIO), {{call, EIO}});
    for (const int call : {SYS_lseek, SYS_read})
        expect(Stopped, {{SYS_rename, EXDEV}, {call, EIO}});
}

// In place the content is put back from the copy on failure.
TEST_F(AtomicFileTest, FolderThatAllowsNoNewFile)
{
    const QString file = put("a.gla", QByteArray(5000, 'o')), fixed = put("readonly.gla", "fixed");
    ASSERT_EQ(::chmod(qPrintable(file), 0666) | ::chmod(qPrintable(fixed), 0444), 0);
    ASSERT_EQ(::chmod(qPrintable(m_folder.path()), 0555), 0);
    EXPECT_TRUE(OrdinaryUser::run([&] {
        const QDir copies(UserFolders::state());
        const auto failure = [](const QString &path, rlim_t copying, rlim_t writing, rlim_t restoring) {
            std::optional<FileSizeLimit> limit(copying);
            QString error;
            const auto producer = [&](const AtomicFile::Sink &sink) {
                limit.reset(), limit.emplace(writing);
                const bool taken = sink(QByteArray(200000, 'n'));
                limit.reset(), limit.emplace(restoring);
                return taken;
            };
            return AtomicFile::write(path, producer, &error) ? QString() : error;
        };
        constexpr rlim_t Much = 1 << 20;
        QString full = std::strerror(EFBIG), forbidden = std::strerror(EACCES), kept;
        const auto overwriting = [&] { kept = readFile(file) + copies.entryList(QDir::Files).join('|').left(6); };
        const bool right = AtomicFile::write(
                               file, [](const auto &sink) { return sink("shorter"); }, nullptr, overwriting) &&
                           kept == QString(5000, u'o') + "saved-" && failure(file, Much, 100000, Much) == full &&
                           failure(file, 3, Much, Much) == full && failure(fixed, Much, Much, Much) == forbidden &&
                           failure(path("new.gla"), Much, Much, Much) == forbidden && copies.isEmpty();
        const QString named = failure(file, Much, 3, 3), copy = copies.entryInfoList(QDir::Files).value(0).filePath();
        qputenv("XDG_STATE_HOME", "/proc");
        return right && named == full + " (" + copy + ')' && readFile(copy) == "shorter" && copy.endsWith(".gla") &&
               !failure(file, Much, Much, Much).isEmpty();
    }));
    EXPECT_TRUE(readFile(file) + readFile(fixed) == "shorterfixed" && names().size() == 2);
    ::chmod(qPrintable(m_folder.path()), 0755);
}
