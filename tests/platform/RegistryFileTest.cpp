#include "platform/RegistryFile.h"

#include "support/FileSizeLimit.h"
#include "support/OrdinaryUser.h"

#include <QDir>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

const QString Key = QStringLiteral("Software\\Glosaria");

class RegistryFileTest : public ::testing::Test
{
protected:
    QString path() const { return m_folder.filePath(QStringLiteral("below/registry")); }
    QStringList names() const
    {
        return QDir(m_folder.filePath(QStringLiteral("below"))).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }
    void put(const QByteArray &bytes) const
    {
        QDir(m_folder.path()).mkpath(QStringLiteral("below"));
        QFile file(path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }
    QByteArray content() const
    {
        QFile file(path());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
    }
    bool set(RegistryStore &store, const char *name, const QString &text) const
    {
        return store.setValue(HKEY_CURRENT_USER, Key, QLatin1String(name), {RegistryType::String, text});
    }
    QString text(const RegistryStore &store, const char *name) const
    {
        const auto value = store.value(HKEY_CURRENT_USER, Key, QLatin1String(name));
        return value ? std::get<QString>(value->data) : QStringLiteral("none");
    }

    QTemporaryDir m_folder;
};

} // namespace

TEST_F(RegistryFileTest, EveryOperationReachesTheFile)
{
    RegistryFile store(path());
    EXPECT_FALSE(store.keyExists(HKEY_CURRENT_USER, Key));
    EXPECT_TRUE(set(store, "a", QStringLiteral("1")) && set(store, "b", QStringLiteral("2")));
    EXPECT_TRUE(store.deleteValue(HKEY_CURRENT_USER, Key, QStringLiteral("a")));
    EXPECT_FALSE(store.deleteValue(HKEY_CURRENT_USER, Key, QStringLiteral("a")));
    EXPECT_TRUE(store.createKey(HKEY_CLASSES_ROOT, QStringLiteral(".gla")));
    EXPECT_EQ(text(RegistryFile(path()), "a"), QStringLiteral("none"));
    EXPECT_EQ(text(RegistryFile(path()), "b"), QStringLiteral("2"));
    EXPECT_TRUE(RegistryFile(path()).keyExists(HKEY_CLASSES_ROOT, QStringLiteral(".GLA")));
    EXPECT_TRUE(store.deleteKey(HKEY_CURRENT_USER, Key));
    EXPECT_FALSE(RegistryFile(path()).keyExists(HKEY_CURRENT_USER, Key));
    EXPECT_FALSE(store.createKey(HKEY_CURRENT_USER + 1, Key));
}

TEST_F(RegistryFileTest, TwoCopiesKeepEachOthersValues)
{
    RegistryFile first(path());
    RegistryFile second(path());
    EXPECT_TRUE(set(first, "a", QStringLiteral("first")));
    EXPECT_TRUE(set(second, "b", QStringLiteral("second")));
    EXPECT_TRUE(set(first, "c", QStringLiteral("third")));
    const RegistryFile third(path());
    EXPECT_EQ(text(third, "a") + text(third, "b") + text(third, "c"), QStringLiteral("firstsecondthird"));
}

TEST_F(RegistryFileTest, ValuesWrittenAtTheSameMomentAreAllKept)
{
    constexpr int Copies = 4;
    constexpr int ValuesEach = 10;
    for (int copy = 0; copy < Copies; ++copy) {
        if (::fork() != 0)
            continue;
        RegistryFile store(path());
        bool whole = true;
        for (int i = 0; i < ValuesEach; ++i)
            whole = set(store, qPrintable(QStringLiteral("%1-%2").arg(copy).arg(i)), QStringLiteral("x")) && whole;
        ::_exit(whole ? 0 : 1);
    }
    for (int copy = 0; copy < Copies; ++copy) {
        int status = -1;
        ASSERT_GT(::wait(&status), 0);
        EXPECT_EQ(status, 0);
    }
    const RegistryFile store(path());
    for (int i = 0; i < Copies * ValuesEach; ++i) {
        const QString name = QStringLiteral("%1-%2").arg(i / ValuesEach).arg(i % ValuesEach);
        EXPECT_EQ(text(store, qPrintable(name)), QStringLiteral("x")) << qPrintable(name);
    }
}

TEST_F(RegistryFileTest, DamagedFilesAreKeptUnderAnotherName)
{
    for (const QByteArray &damage : {QByteArray("first damage"), QByteArray(), QByteArray(3000, '\xff')}) {
        put(damage);
        RegistryFile store(path());
        EXPECT_FALSE(store.keyExists(HKEY_CURRENT_USER, Key));
        EXPECT_TRUE(set(store, "a", QStringLiteral("new")));
        EXPECT_EQ(text(RegistryFile(path()), "a"), QStringLiteral("new"));
    }
    EXPECT_EQ(names(), (QStringList{QStringLiteral("registry"), QStringLiteral("registry.damaged"),
                                    QStringLiteral("registry.damaged-2"), QStringLiteral("registry.damaged-3")}));
    QFile kept(path() + QStringLiteral(".damaged"));
    ASSERT_TRUE(kept.open(QIODevice::ReadOnly));
    EXPECT_EQ(kept.readAll(), "first damage");
}

TEST_F(RegistryFileTest, FailedWriteChangesNothing)
{
    RegistryFile store(path());
    ASSERT_TRUE(set(store, "a", QStringLiteral("old")));
    const QByteArray before = content();
    {
        const FileSizeLimit limit(1000);
        EXPECT_FALSE(set(store, "a", QString(5000, QLatin1Char('x'))));
    }
    EXPECT_EQ(content(), before);
    EXPECT_EQ(text(store, "a"), QStringLiteral("old"));
    EXPECT_TRUE(set(store, "a", QStringLiteral("newer")));
}

TEST_F(RegistryFileTest, UnreadableFileIsLeftAlone)
{
    put("secret");
    for (const QString &folder : {m_folder.path(), m_folder.filePath(QStringLiteral("below"))})
        ASSERT_EQ(::chmod(qPrintable(folder), 0777), 0);
    ASSERT_EQ(::chmod(qPrintable(path()), 0200), 0);
    EXPECT_TRUE(OrdinaryUser::run([&] {
        RegistryFile store(path());
        return !store.keyExists(HKEY_CURRENT_USER, Key) && !set(store, "a", QStringLiteral("x"));
    }));
    EXPECT_EQ(names(), QStringList{QStringLiteral("registry")});
}
