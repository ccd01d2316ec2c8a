#include "platform/SingleInstance.h"

#include "platform/HandOff.h"
#include "platform/InstancePlace.h"

#include <QDir>
#include <QFileInfo>
#include <QLocalSocket>
#include <QProcess>
#include <QRandomGenerator>

#include <csignal>
#include <sys/stat.h>

namespace {

constexpr int Patience = 20000; // ms, only spent when something is wrong

/// Copies of a program that are real processes.
class SingleInstanceTest : public ::testing::Test
{
protected:
    using Copy = std::unique_ptr<QProcess>;

    Copy start(const QString &text, int answerLimit = 5000) const
    {
        auto copy = std::make_unique<QProcess>();
        copy->start(QStringLiteral(SINGLE_INSTANCE_HELPER), {path(), text, QString::number(answerLimit)});
        return copy;
    }
    QString path() const { return m_folder.filePath(QStringLiteral("copy")); }

    /// The next line that the copy says; empty when it ends without one.
    static QString line(const Copy &copy)
    {
        while (!copy->canReadLine() && copy->waitForReadyRead(Patience)) {
        }
        return QString::fromUtf8(copy->readLine()).trimmed();
    }
    Copy startFirst() const
    {
        Copy copy = start(QString());
        EXPECT_EQ(line(copy).toStdString(), "first");
        return copy;
    }
    void expectSecond(const QString &text, int answerLimit = 5000) const
    {
        const Copy second = start(text, answerLimit);
        EXPECT_EQ(line(second).toStdString(), "second");
        EXPECT_TRUE(second->waitForFinished(Patience));
    }
    void expectHandOver(const Copy &first, const QString &text) const
    {
        expectSecond(text);
        EXPECT_EQ(line(first).toStdString(), "activated");
        EXPECT_EQ(line(first), QStringLiteral("received ") + text);
    }
    static void kill(const Copy &copy)
    {
        ::kill(pid_t(copy->processId()), SIGKILL);
        copy->waitForFinished(Patience);
    }

    QTemporaryDir m_folder;
};

} // namespace

TEST(HandOff, MessageIsTheBlockAndTheTextInUtf16)
{
    EXPECT_EQ(HandOff::message(QStringLiteral("\"/é")).toHex(' '), "00 00 00 00 06 00 00 00 22 00 2f 00 e9 00");
    EXPECT_EQ(HandOff::message(QString()).toHex(), "0000000000000000");
    EXPECT_EQ(HandOff::message(QString(32769, QLatin1Char('x'))).size(), HandOff::HeaderSize);
    for (const QString &text : {QString(), QString(32768, QLatin1Char('x')), QString(QChar(0xd800))}) {
        const HandOff::Parsed parsed = HandOff::parse(HandOff::message(text));
        EXPECT_EQ(parsed.state, HandOff::State::Complete);
        EXPECT_EQ(parsed.text, text);
    }
}

TEST(HandOff, AnyBytesAreIncompleteCompleteOrMalformed)
{
    const QByteArray whole = HandOff::message(QStringLiteral("/home/a.gla"));
    for (qsizetype size = 0; size < whole.size(); ++size)
        EXPECT_EQ(HandOff::parse(whole.left(size)).state, HandOff::State::Incomplete) << size;
    const QByteArray malformed[] = {
        whole + "x",
        QByteArray::fromHex("01000000"
                            "00000000"), // another kind of message
        QByteArray::fromHex("00000000"
                            "03000000"), // half a character
        QByteArray::fromHex("00000000"
                            "02000100"), // too long
        QByteArray::fromHex("00000000"
                            "ffffffff"),
    };
    for (const QByteArray &bytes : malformed)
        EXPECT_EQ(HandOff::parse(bytes).state, HandOff::State::Malformed) << bytes.toHex().constData();
    QRandomGenerator random(3);
    for (int i = 0; i < 2000; ++i) {
        QByteArray bytes(random.bounded(40), char(0));
        for (int k = random.bounded(4); k > 0 && !bytes.isEmpty(); --k)
            bytes[random.bounded(int(bytes.size()))] = char(random.generate());
        const HandOff::Parsed parsed = HandOff::parse(bytes);
        EXPECT_TRUE(parsed.state != HandOff::State::Complete || HandOff::message(parsed.text) == bytes);
    }
}

TEST_F(SingleInstanceTest, LaterCopiesHandOverTheirCommandLine)
{
    const Copy first = startFirst();
    expectHandOver(first, QStringLiteral("\"/home/anna/my words.gla\""));
    expectSecond(QString());
    EXPECT_EQ(line(first).toStdString(), "activated");
    expectHandOver(first, QString(30000, QLatin1Char('x')));
    struct stat status = {};
    ASSERT_EQ(::stat(qPrintable(path()), &status), 0);
    EXPECT_EQ(status.st_mode & 0077, 0u);
    kill(first);
}

TEST_F(SingleInstanceTest, OfManySimultaneousStartsOneIsFirst)
{
    kill(startFirst());
    ASSERT_TRUE(QFileInfo::exists(path())) << "the killed copy leaves its socket behind";
    std::vector<Copy> copies;
    for (int i = 0; i < 10; ++i)
        copies.push_back(start(QStringLiteral("copy")));
    int firsts = 0;
    int handedOver = 0;
    for (const Copy &copy : copies) {
        const bool isFirst = line(copy) == QStringLiteral("first");
        firsts += isFirst;
        for (int i = 0; isFirst && i < 18; ++i)
            handedOver += line(copy) == QStringLiteral("received copy");
    }
    EXPECT_EQ(firsts, 1);
    EXPECT_EQ(handedOver, 9);
    for (const Copy &copy : copies)
        kill(copy);
}

TEST_F(SingleInstanceTest, NextCopyIsFirstAfterTheFirstHasEnded)
{
    Copy first = startFirst();
    expectSecond(QStringLiteral("quit"));
    EXPECT_TRUE(first->waitForFinished(Patience));
    EXPECT_FALSE(QFileInfo::exists(path()));
    first = startFirst();
    kill(first);
    first = startFirst();
    kill(first);
}

TEST_F(SingleInstanceTest, StoppedFirstCopyHoldsNobodyUpAndFindsTheMessageLater)
{
    const Copy first = startFirst();
    ASSERT_EQ(::kill(pid_t(first->processId()), SIGSTOP), 0);
    expectSecond(QStringLiteral("/a.gla"), 100);
    std::vector<std::unique_ptr<QLocalSocket>> crowd;
    for (int i = 0; i < 80; ++i) {
        crowd.push_back(std::make_unique<QLocalSocket>());
        crowd.back()->connectToServer(path());
    }
    expectSecond(QStringLiteral("/lost.gla"), 100);
    crowd.clear();
    ASSERT_EQ(::kill(pid_t(first->processId()), SIGCONT), 0);
    EXPECT_EQ(line(first).toStdString(), "activated");
    EXPECT_EQ(line(first).toStdString(), "received /a.gla");
    kill(first);
}

TEST_F(SingleInstanceTest, BadMessagesAreDroppedAndBlockNobody)
{
    const Copy first = startFirst();
    const QByteArray messages[] = {
        "",
        HandOff::message(QStringLiteral("/a.gla")).chopped(1), // stalls
        QByteArray::fromHex("00000000ffffff7f"),
        QByteArray(200000, '\xff'),
        HandOff::message(QStringLiteral("/a.gla")) + "more",
    };
    std::vector<std::unique_ptr<QLocalSocket>> sockets;
    for (const QByteArray &message : messages) {
        sockets.push_back(std::make_unique<QLocalSocket>());
        sockets.back()->connectToServer(path());
        ASSERT_TRUE(sockets.back()->waitForConnected(Patience));
        sockets.back()->write(message);
        sockets.back()->waitForBytesWritten(100);
    }
    expectHandOver(first, QStringLiteral("/b.gla"));
    for (const auto &socket : sockets) {
        EXPECT_TRUE(socket->state() == QLocalSocket::UnconnectedState || socket->waitForDisconnected(Patience));
        EXPECT_EQ(socket->bytesAvailable(), 0);
    }
    expectHandOver(first, QStringLiteral("/c.gla"));
    kill(first);
}

TEST(InstancePlace, ShortPathInAPrivateFolder)
{
    struct Case
    {
        QByteArray runtimeFolder;
        bool used;
    };
    QTemporaryDir folder;
    const QString longFolder = folder.filePath(QString(90, QLatin1Char('d')));
    QDir().mkpath(longFolder);
    const QByteArray before = qgetenv("XDG_RUNTIME_DIR");
    const Case cases[] = {{QFile::encodeName(folder.path()), true},
                          {QFile::encodeName(longFolder), false},
                          {"/missing", false},
                          {"relative", false},
                          {"", false}};
    for (const Case &each : cases) {
        qputenv("XDG_RUNTIME_DIR", each.runtimeFolder);
        const QString path = InstancePlace::socketPath();
        EXPECT_EQ(path.startsWith(QFile::decodeName(each.runtimeFolder) + QStringLiteral("/glosaria/")), each.used);
        EXPECT_LE(path.size(), InstancePlace::LongestPath);
        struct stat status = {};
        ASSERT_EQ(::lstat(qPrintable(QFileInfo(path).path()), &status), 0);
        EXPECT_EQ(status.st_mode & 07777, 0700u);
        QDir().rmdir(QFileInfo(path).path());
    }
    qputenv("XDG_RUNTIME_DIR", before);
}

TEST(InstancePlace, OneAPlaceForEachDisplay)
{
    const auto placeOn = [](const char *wayland, const char *x11) {
        qputenv("WAYLAND_DISPLAY", wayland);
        qputenv("DISPLAY", x11);
        return InstancePlace::socketPath();
    };
    const QByteArray wayland = qgetenv("WAYLAND_DISPLAY");
    const QByteArray x11 = qgetenv("DISPLAY");
    EXPECT_NE(placeOn("", ":0"), placeOn("", ":1"));
    EXPECT_EQ(placeOn("", ":0"), placeOn("", ":0.1"));
    EXPECT_NE(placeOn("", "host.net:0"), placeOn("", "host.org:0"));
    EXPECT_EQ(placeOn("wayland-0", ":0"), placeOn("wayland-0", ":1"));
    qputenv("WAYLAND_DISPLAY", wayland);
    qputenv("DISPLAY", x11);
}
