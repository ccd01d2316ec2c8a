#include "platform/RegistryFile.h"

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
    QString path() const { return m_folder.filePath(QStringLiteral("registry")); }
    QStringList names() const { return QDir(m_folder.path()).entryList(QDir::Files | QDir::Hidden, QDir::Name); }
    void put(const QByteArray &bytes) const
    {
        QFile file(path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }
    static bool set(RegistryStore &store, const QString &name, const QString &text)
    {
        return store.setValue(HKEY_CURRENT_USER, Key, name, {RegistryType::String, text});
    }
    static QString text(const RegistryStore &store, const QString &name)
    {
        const auto value = store.value(HKEY_CURRENT_USER, Key, name);
        return value ? std::get<QString>(value->data) : QStringLiteral("none");
    }

    QTemporaryDir m_folder;
    const QString m_a = QStringLiteral("a");
    const QString m_b = QStringLiteral("b");
};

} // namespace

TEST_F(RegistryFileTest, EveryOperationReachesTheFile)
{
    RegistryFile store(path());
    EXPECT_TRUE(set(store, m_a, QStringLiteral("1")) && set(store, m_b, QStringLiteral("2")));
    EXPECT_TRUE(store.deleteValue(HKEY_CURRENT_USER, Key, m_a));
    EXPECT_FALSE(store.deleteValue(HKEY_CURRENT_USER, Key, m_a));
    EXPECT_TRUE(store.createKey(HKEY_CLASSES_ROOT, QStringLiteral(".gla")));
    const RegistryFile read(path());
    EXPECT_EQ(text(read, m_a) + text(read, m_b), QStringLiteral("none2"));
    EXPECT_TRUE(read.keyExists(HKEY_CLASSES_ROOT, QStringLiteral(".GLA")));
    EXPECT_TRUE(store.deleteKey(HKEY_CURRENT_USER, QStringLiteral("SOFTWARE")));
    EXPECT_FALSE(RegistryFile(path()).keyExists(HKEY_CURRENT_USER, Key));
    EXPECT_FALSE(store.createKey(HKEY_CURRENT_USER + 1, Key));
}

TEST_F(RegistryFileTest, CopiesKeepEachOthersValues)
{
    constexpr int Copies = 4;
    constexpr int ValuesEach = 10;
    for (int copy = 0; copy < Copies; ++copy) {
        RegistryFile store(path());
        if (::fork() != 0)
            continue;
        bool whole = true;
        for (int i = 0; i < ValuesEach; ++i)
            whole = set(store, QString::number(copy * ValuesEach + i), m_a) && whole;
        ::_exit(whole ? 0 : 1);
    }
    for (int copy = 0; copy < Copies; ++copy) {
        int status = -1;
        ASSERT_GT(::wait(&status), 0);
        EXPECT_EQ(status, 0);
    }
    const RegistryFile store(path());
    for (int i = 0; i < Copies * ValuesEach; ++i)
        EXPECT_EQ(text(store, QString::number(i)), m_a) << i;
}

TEST_F(RegistryFileTest, DamagedFilesAreKeptUnderAnotherName)
{
    for (const QByteArray &damage : {QByteArray("first damage"), QByteArray(), QByteArray(3000, '\xff')}) {
        put(damage);
        RegistryFile store(path());
        EXPECT_FALSE(store.keyExists(HKEY_CURRENT_USER, Key));
        EXPECT_TRUE(set(store, m_a, m_b));
        EXPECT_EQ(text(RegistryFile(path()), m_a), m_b);
    }
    EXPECT_EQ(names(), (QStringList{QStringLiteral("registry"), QStringLiteral("registry.damaged"),
                                    QStringLiteral("registry.damaged-2"), QStringLiteral("registry.damaged-3")}));
    EXPECT_EQ(QFileInfo(path() + QStringLiteral(".damaged")).size(), 12);
}

TEST_F(RegistryFileTest, UnreadableFileIsLeftAlone)
{
    put("secret");
    ASSERT_EQ(::chmod(qPrintable(m_folder.path()), 0777) | ::chmod(qPrintable(path()), 0200), 0);
    EXPECT_TRUE(OrdinaryUser::run([&] {
        RegistryFile store(path());
        return !store.keyExists(HKEY_CURRENT_USER, Key) && !set(store, m_a, m_b);
    }));
    EXPECT_EQ(names(), QStringList{QStringLiteral("registry")});
}
