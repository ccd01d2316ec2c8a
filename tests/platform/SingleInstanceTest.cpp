#include "platform/instance/SingleInstance.h"

#include "platform/instance/HandOff.h"
#include "platform/instance/InstancePlace.h"

#include <QLocalSocket>

#include <sys/resource.h>

constexpr int Patience = 20000; // ms, only spent when something is wrong

/// Copies of a program that are real processes.
struct SingleInstanceTest : ::testing::Test
{
    using Copy = std::shared_ptr<QProcess>;
    using Socket = std::unique_ptr<QLocalSocket>;

    QString path() const { return m_folder.filePath("copy"); }
    Copy start(const QString &text, int answerLimit = 5000, const QString &token = {}) const
    {
        Copy copy(new QProcess, [](QProcess *process) {
            process->kill();
            process->waitForFinished(Patience);
            delete process;
        });
        copy->start(QStringLiteral(SINGLE_INSTANCE_HELPER), {path(), text, QString::number(answerLimit), token});
        return copy;
    }
    /// The next line that the copy says; empty when it ends without one.
    static std::string line(const Copy &copy)
    {
        while (!copy->canReadLine() && copy->waitForReadyRead(Patience)) {
        }
        return QString::fromUtf8(copy->readLine()).trimmed().toStdString();
    }
    Copy startFirst() const
    {
        Copy copy = start(QString());
        EXPECT_EQ(line(copy), "first");
        return copy;
    }
    void expectSecond(const char *text, int answerLimit = 5000, const char *token = "") const
    {
        const Copy second = start(QString::fromUtf8(text), answerLimit, token);
        EXPECT_EQ(line(second), "second");
        EXPECT_TRUE(second->waitForFinished(Patience));
    }
    static void expectReceived(const Copy &first, const char *text)
    {
        EXPECT_EQ(line(first), "activated");
        EXPECT_EQ(line(first), std::string("received ") + text);
    }
    Socket connectWith(const QByteArray &bytes) const
    {
        auto socket = std::make_unique<QLocalSocket>();
        socket->connectToServer(path());
        if (socket->waitForConnected(0))
            socket->write(bytes);
        return socket;
    }

    QTemporaryDir m_folder;
};

TEST(HandOff, MessageIsTheBlockAndTheTextInUtf16)
{
    EXPECT_EQ(HandOff::message("\"/é").toHex(' '), "00 00 00 00 06 00 00 00 22 00 2f 00 e9 00");
    EXPECT_EQ(HandOff::message(QString(32769, QLatin1Char('x'))).toHex(), "0000000000000000");
    for (const QString &text : {QString(), QString(32768, QLatin1Char('x')), QString(QChar(0xd800))})
        EXPECT_EQ(HandOff::parse(HandOff::message(text)).text, text);
    const QByteArray withToken = HandOff::message("a", "t");
    EXPECT_EQ(withToken.toHex(' '), "01 00 00 00 02 00 00 00 74 00 00 00 00 00 02 00 00 00 61 00");
    EXPECT_EQ(HandOff::parse(withToken).token, "t");
    EXPECT_EQ(HandOff::message("a", QString(513, 'x')), HandOff::message("a"));
    for (int cut = 1; cut <= withToken.size(); ++cut)
        EXPECT_EQ(HandOff::parse(withToken.chopped(cut)).state, HandOff::State::Incomplete) << cut;
}

TEST_F(SingleInstanceTest, LaterCopiesHandOverTheirCommandLineUntilTheFirstEnds)
{
    const Copy first = startFirst();
    struct stat status = {};
    ASSERT_EQ(::stat(qPrintable(path()), &status), 0);
    EXPECT_EQ(status.st_mode & 0077, 0u);
    const QByteArray longest(30000, 'x');
    for (const char *text : {"\"/home/anna/my words.gla\"", longest.constData(), "quit"}) {
        expectSecond(text);
        expectReceived(first, text);
    }
    EXPECT_TRUE(first->waitForFinished(Patience));
    EXPECT_FALSE(QFileInfo::exists(path()));
    const Copy next = startFirst();
    expectSecond("");
    EXPECT_EQ(line(next), "activated");
    expectSecond("", 5000, "token");
    EXPECT_EQ(line(next), "activated token");
}

TEST_F(SingleInstanceTest, OfManySimultaneousStartsOneIsFirst)
{
    startFirst();
    ASSERT_TRUE(QFileInfo::exists(path())) << "the killed copy leaves its socket behind";
    std::vector<Copy> copies;
    for (int i = 0; i < 10; ++i)
        copies.push_back(start("copy"));
    const auto isFirst = [](const Copy &copy) { return line(copy) == "first"; };
    const auto first = std::partition(copies.begin(), copies.end(), isFirst) - 1;
    ASSERT_EQ(first, copies.begin());
    for (int i = 0; i < 9; ++i)
        expectReceived(*first, "copy");
}

TEST_F(SingleInstanceTest, StoppedFirstCopyHoldsNobodyUpAndFindsTheMessageLater)
{
    const Copy first = startFirst();
    ASSERT_EQ(::kill(pid_t(first->processId()), SIGSTOP), 0);
    expectSecond("/a.gla", 100);
    std::vector<Socket> crowd;
    for (int i = 0; i < 80; ++i)
        crowd.push_back(connectWith(QByteArray()));
    expectSecond("/lost.gla", 100);
    crowd.clear();
    ASSERT_EQ(::kill(pid_t(first->processId()), SIGCONT), 0);
    expectReceived(first, "/a.gla");
}

TEST_F(SingleInstanceTest, BadMessagesAreDroppedAndBlockNobody)
{
    const Copy first = startFirst();
    const QByteArray whole = HandOff::message("/a.gla");
    std::vector<Socket> sockets;
    for (const QByteArray &bytes : {QByteArray(), whole.chopped(1), QByteArray::fromHex("00000000ffffff7f"),
                                    QByteArray(200000, '\xff'), QByteArray(whole + "more")})
        sockets.push_back(connectWith(bytes));
    expectSecond("/b.gla");
    expectReceived(first, "/b.gla");
    for (const Socket &socket : sockets) {
        EXPECT_TRUE(socket->state() == QLocalSocket::UnconnectedState || socket->waitForDisconnected(Patience));
        EXPECT_EQ(socket->bytesAvailable(), 0);
    }
    const rlimit fewHandles{40, 40};
    ASSERT_EQ(::prlimit(pid_t(first->processId()), RLIMIT_NOFILE, &fewHandles, nullptr), 0);
    std::vector<Socket> crowd; // that stays
    for (int i = 0; i < 200; ++i)
        crowd.push_back(connectWith(QByteArray()));
    expectSecond("/c.gla");
    expectReceived(first, "/c.gla");
}

TEST_F(SingleInstanceTest, NoMessageIsLostAtTheStartOrTheEndOfTheFirst)
{
    QStringList received;
    SingleInstance first(path());
    ASSERT_EQ(first.start(QString()), SingleInstance::Role::First);
    const Socket early = connectWith(HandOff::message(QStringLiteral("/early.gla")));
    QCoreApplication::processEvents();
    QObject::connect(&first, &SingleInstance::received, [&](const QString &text) { received.append(text); });
    first.serve();
    while (!early->waitForReadyRead(1))
        QCoreApplication::processEvents();
    EXPECT_EQ(received, QStringList{QStringLiteral("/early.gla")});

    const Socket waiting = connectWith(HandOff::message(QStringLiteral("/waiting.gla")));
    connectWith(HandOff::message(QStringLiteral("/given-up.gla")))->waitForBytesWritten();
    EXPECT_EQ(first.leave(), QStringList{QStringLiteral("/given-up.gla")});
    EXPECT_TRUE(waiting->waitForDisconnected(Patience));
    EXPECT_EQ(waiting->bytesAvailable(), 0) << "it tries again";
    QCoreApplication::processEvents();
    EXPECT_EQ(received.size(), 1);
    startFirst();
}

TEST(InstancePlace, ShortPathInAPrivateFolderForEachDisplay)
{
    const QTemporaryDir folder;
    const QString longFolder = folder.filePath(QString(90, u'd'));
    QDir().mkpath(longFolder);
    const auto placeIn = [](const QString &runtime, const QByteArray &wayland, const QByteArray &x11) {
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(runtime));
        qputenv("WAYLAND_DISPLAY", wayland);
        qputenv("DISPLAY", x11);
        return InstancePlace::socketPath();
    };
    const QString before = qEnvironmentVariable("XDG_RUNTIME_DIR");
    QDir(folder.path()).mkdir("glosaria"); // where others may look
    for (const QString &runtime : {folder.path(), longFolder, QString("/missing"), QString()}) {
        const QString path = placeIn(runtime, "", ":0"), inside = QFileInfo(path).path();
        EXPECT_EQ(inside == runtime + "/glosaria", runtime == folder.path());
        EXPECT_LE(path.size(), InstancePlace::LongestPath);
        struct stat status = {};
        ASSERT_EQ(::lstat(qPrintable(inside), &status), 0);
        EXPECT_EQ(status.st_mode & 07777, 0700u);
        EXPECT_NE(placeIn(runtime, "", ":1"), path);
        EXPECT_EQ(placeIn(runtime, "", ":0.1"), path);
        EXPECT_EQ(placeIn(runtime, "wayland-0", ":0"), placeIn(runtime, "wayland-0", ":1"));
        QDir().rmdir(inside);
    }
    placeIn(before, "", "");
}
