#include "platform/instance/SingleInstance.h"

#include "platform/files/FolderLock.h"
#include "platform/instance/HandOff.h"
#include "platform/instance/InstancePlace.h"
#include "support/RefusedCall.h"

#include <QLocalSocket>

constexpr int Patience = 20000; // ms, only spent when something is wrong

/// Copies of a program that are real processes.
struct SingleInstanceTest : ::testing::Test
{
    using Copy = std::shared_ptr<QProcess>;
    using Socket = std::unique_ptr<QLocalSocket>;

    Copy start(const QString &text, int answerLimit = 5000, const QString &token = {}) const
    {
        Copy copy(new QProcess, [](QProcess *process) {
            process->kill();
            process->waitForFinished(Patience);
            delete process;
        });
        copy->start(SINGLE_INSTANCE_HELPER, {path, text, QString::number(answerLimit), token});
        return copy;
    }
    /// The next lines that the copy says, with slashes between them; fewer when it ends.
    static std::string says(const Copy &copy, int lines = 1)
    {
        while (!copy->canReadLine() && copy->waitForReadyRead(Patience)) {
        }
        const std::string line = copy->readLine().trimmed().toStdString();
        return lines > 1 ? line + '/' + says(copy, lines - 1) : line;
    }
    Copy startFirst() const
    {
        Copy copy = start("");
        EXPECT_EQ(says(copy), "first");
        return copy;
    }
    void expectSecond(const QString &text, int answerLimit = 5000, const QString &token = {}) const
    {
        const Copy second = start(text, answerLimit, token);
        EXPECT_TRUE(says(second) == "second" && second->waitForFinished(Patience));
    }
    Socket connectWith(const QByteArray &bytes) const
    {
        auto socket = std::make_unique<QLocalSocket>();
        socket->connectToServer(path);
        if (socket->waitForConnected(0))
            socket->write(bytes);
        return socket;
    }

    static bool isHungUp(const Socket &socket)
    {
        const QDeadlineTimer end(Patience);
        while (socket->state() != QLocalSocket::UnconnectedState && !end.hasExpired())
            QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        return !end.hasExpired();
    }

    QTemporaryDir folder;
    const QString path = folder.filePath("copy");
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
    EXPECT_EQ(HandOff::parse(HandOff::message("a", QString(512, 'x'))).token.size(), 512);
    for (int cut = 1; cut <= withToken.size(); ++cut)
        EXPECT_EQ(HandOff::parse(withToken.chopped(cut)).state, HandOff::State::Incomplete) << cut;
    for (const char *head : {"00000000 00000100", "01000000 00040000"}) // the largest
        EXPECT_EQ(HandOff::parse(QByteArray::fromHex(head)).state, HandOff::State::Incomplete) << head;
    for (const char *head : {"00000000 02000100", "01000000 02040000", "00000000 03000000", "02000000 00000000",
                             "01000000 00000000 00000000 00000000", "00000000 00000000 00"})
        EXPECT_EQ(HandOff::parse(QByteArray::fromHex(head)).state, HandOff::State::Malformed) << head;
}

TEST_F(SingleInstanceTest, LaterCopiesHandOverTheirCommandLineUntilTheFirstEnds)
{
    const Copy first = startFirst();
    struct stat status = {};
    EXPECT_TRUE(::stat(qPrintable(path), &status) == 0 && (status.st_mode & 0077) == 0);
    for (const QString &text : {QString("\"/home/anna/my words.gla\""), QString(30000, 'x'), QString("quit")}) {
        expectSecond(text);
        EXPECT_EQ(says(first, 2), "activated/received " + text.toStdString());
    }
    EXPECT_TRUE(first->waitForFinished(Patience) && !QFileInfo::exists(path));
    const Copy next = startFirst();
    for (const char *token : {"", "token"})
        expectSecond("", 5000, token);
    EXPECT_EQ(says(next, 2), "activated/activated token");
}

TEST_F(SingleInstanceTest, OfManySimultaneousStartsOneIsFirst)
{
    startFirst();
    ASSERT_TRUE(QFileInfo::exists(path)) << "the killed copy leaves its socket behind";
    std::vector<Copy> copies;
    for (int i = 0; i < 10; ++i)
        copies.push_back(start("copy"));
    const auto isFirst = [](const Copy &copy) { return says(copy) == "first"; };
    ASSERT_EQ(std::partition(copies.begin(), copies.end(), isFirst), copies.begin() + 1);
    for (int i = 0; i < 9; ++i)
        EXPECT_EQ(says(copies[0], 2), "activated/received copy");
}

TEST_F(SingleInstanceTest, AFirstThatHangsHoldsNobodyUp)
{
    const Copy first = startFirst();
    ASSERT_TRUE(first->processId() > 0 && ::kill(pid_t(first->processId()), SIGSTOP) == 0);
    expectSecond("/a.gla", 100);
    std::vector<Socket> crowd(80);
    std::generate(crowd.begin(), crowd.end(), [this] { return connectWith({}); });
    expectSecond("/lost.gla", 100);
    crowd.clear();
    ASSERT_EQ(::kill(pid_t(first->processId()), SIGCONT), 0);
    EXPECT_EQ(says(first, 2), "activated/received /a.gla");
}

TEST_F(SingleInstanceTest, NoMessageIsLostAtTheStartOrTheEndOfTheFirst)
{
    QStringList received;
    SingleInstance first(path, {Patience, 20});
    ASSERT_EQ(first.start({}), SingleInstance::Role::First);
    const Socket early = connectWith(HandOff::message("/early.gla"));
    QCoreApplication::processEvents();
    QObject::connect(&first, &SingleInstance::received, [&](const QString &text) {
        received.append(text);
        for (const QDeadlineTimer dialog(40); !dialog.hasExpired();) // longer than a message may be on its way
            QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    });
    first.serve();
    EXPECT_TRUE(isHungUp(early) && early->readAll() == QByteArray(1, HandOff::Handled));
    EXPECT_TRUE(isHungUp(connectWith(HandOff::message("/half.gla").chopped(1))));
    const Socket waiting = connectWith(HandOff::message("/waiting.gla"));
    connectWith(HandOff::message("/given-up.gla"))->waitForBytesWritten();
    EXPECT_EQ(first.leave(), QStringList("/given-up.gla"));
    EXPECT_TRUE(waiting->waitForDisconnected(Patience) && waiting->bytesAvailable() == 0) << "it tries again";
    QCoreApplication::processEvents();
    EXPECT_EQ(received, QStringList("/early.gla"));
    startFirst();
}

TEST_F(SingleInstanceTest, WhoSaysNothingOrNonsenseMakesRoomAtOnce)
{
    SingleInstance first(path, {Patience, 10 * Patience});
    ASSERT_EQ(first.start({}), SingleInstance::Role::First);
    first.serve();
    EXPECT_TRUE(isHungUp(connectWith(QByteArray(200000, '\xff'))));
    std::vector<Socket> crowd(40);
    for (Socket &socket : crowd)
        socket = connectWith({}), QCoreApplication::processEvents();
    EXPECT_TRUE(isHungUp(crowd[7]));
    for (const Socket &socket : crowd)
        EXPECT_EQ(socket->state() == QLocalSocket::ConnectedState, &socket >= &crowd[8]) << "the newest 32";
}

TEST_F(SingleInstanceTest, AListenerTellsOfCallersAndRestsWhereNoHandleIsLeftForThem)
{
    int calls = 0;
    LocalListener listener;
    QObject::connect(&listener, &LocalListener::called, [&calls] { ++calls; });
    listener.setEnabled(true);
    ASSERT_TRUE(listener.listen(path) && !LocalListener().listen(path));
    Socket callers[3];
    for (const int known : {0, 1, 2}) {
        callers[known] = connectWith({});
        QCoreApplication::processEvents();
        EXPECT_EQ(calls, known) << "not of the first, and nothing to be taken is no reason to rest";
        EXPECT_TRUE(listener.next() && !listener.next());
        listener.setEnabled(true);
    }
    const Socket late = connectWith({});
    EXPECT_TRUE(OrdinaryUser::run([&] {
        RefusedCall{SYS_accept4, EMFILE}.refuse();
        const bool isTaken = listener.next() || listener.next();
        for (int i = 0; i < 9; ++i)
            QCoreApplication::processEvents();
        EXPECT_TRUE(!isTaken && calls == 2);
        while (calls == 2)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        return !HasFailure();
    }));
    listener.close();
    EXPECT_FALSE(listener.isListening() || listener.next() || QFileInfo::exists(path));
}

TEST_F(SingleInstanceTest, WhereCopiesCannotMeetEveryOneIsFirst)
{
    const FolderLock other(folder.path(), 0); // another copy is about to become the first
    const uint handles = QDir("/proc/self/fd").count();
    for (const QString &place : {folder.filePath("none/copy"), folder.filePath(QString(120, u'd')), QString()})
        EXPECT_EQ(SingleInstance(place, {50, 50}).start({}), SingleInstance::Role::First);
    EXPECT_TRUE(!LocalListener().listen(folder.filePath(QString(107, u'd'))) && errno == ENAMETOOLONG);
    const QDeadlineTimer wait(60);
    EXPECT_TRUE(SingleInstance(path, {60, 50}).start({}) == SingleInstance::Role::First && wait.hasExpired());
    EXPECT_EQ(QDir("/proc/self/fd").count(), handles);
}

TEST(InstancePlace, ShortPathInAPrivateFolderForEachDisplay)
{
    const QTemporaryDir folder;
    const QString longFolder = folder.filePath(QString(90, u'd')), relative = QDir().relativeFilePath(folder.path());
    QString foreign = folder.filePath("foreign");
    for (const QString &name : {longFolder, foreign, folder.filePath("glosaria")}) // where others may look
        QDir().mkpath(name);
    if (::chown(qPrintable(foreign), 1, 1) != 0)
        foreign.clear(); // only an administrator can give it away
    const auto placeIn = [](const QString &runtime, const QByteArray &wayland, const QByteArray &x11) {
        qputenv("XDG_RUNTIME_DIR", runtime.toUtf8());
        qputenv("WAYLAND_DISPLAY", wayland);
        qputenv("DISPLAY", x11);
        return InstancePlace::socketPath();
    };
    const QString before = qEnvironmentVariable("XDG_RUNTIME_DIR");
    for (const QString &runtime : {folder.path(), longFolder, foreign, QString("/missing"), relative, QString()}) {
        const QString path = placeIn(runtime, "", ":0"), inside = QFileInfo(path).path();
        EXPECT_EQ(inside == runtime + "/glosaria", runtime == folder.path());
        EXPECT_LE(path.size(), InstancePlace::LongestPath);
        struct stat status = {};
        EXPECT_TRUE(::lstat(qPrintable(inside), &status) == 0 && (status.st_mode & 07777) == 0700);
        EXPECT_NE(placeIn(runtime, "", ":1"), path);
        EXPECT_EQ(placeIn(runtime, "", ":0.1"), path);
        EXPECT_NE(placeIn(runtime, "", "a.b:0"), placeIn(runtime, "", "a.c:0"));
        EXPECT_NE(placeIn(runtime, "wayland-0", ""), placeIn(runtime, "wayland-1", ""));
        EXPECT_EQ(placeIn(runtime, "wayland-0", ":0"), placeIn(runtime, "wayland-0", ":1"));
        QDir().rmdir(inside);
    }
    placeIn(before, "", "");
}
