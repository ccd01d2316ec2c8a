#include "platform/registry/RegistryFile.h"

#include <sys/wait.h>
#include <unistd.h>

const QString Key = "Software\\Glosaria";

struct RegistryFileTest : ::testing::Test
{
    QStringList names() const { return QDir(m_folder.path()).entryList(QDir::Files | QDir::Hidden, QDir::Name); }
    static bool set(RegistryStore &store, const QString &name, const QString &text)
    {
        return store.setValue(HKEY_CURRENT_USER, Key, name, {RegistryType::String, text});
    }
    QTemporaryDir m_folder;
    const QString m_path = m_folder.filePath("registry");
};

TEST_F(RegistryFileTest, EveryOperationReachesTheFile)
{
    RegistryFile store(m_path);
    EXPECT_TRUE(set(store, "a", "1") && set(store, "b", "2") && store.deleteValue(HKEY_CURRENT_USER, Key, "a") &&
                !store.deleteValue(HKEY_CURRENT_USER, Key, "a") && store.createKey(HKEY_CLASSES_ROOT, ".gla"));
    EXPECT_EQ(readFile(m_path).simplified(),
              R"(Glosaria registry 1 HKEY_CLASSES_ROOT ".gla" HKEY_CURRENT_USER "Software" )"
              R"(HKEY_CURRENT_USER "Software\\Glosaria" "b" = string "2" end)");
    const RegistryFile read(m_path);
    EXPECT_TRUE(read.keyExists(HKEY_CLASSES_ROOT, ".GLA") && read.value(HKEY_CURRENT_USER, Key, "B"));
    EXPECT_TRUE(store.deleteKey(HKEY_CURRENT_USER, "SOFTWARE"));
    EXPECT_FALSE(RegistryFile(m_path).keyExists(HKEY_CURRENT_USER, Key));
    EXPECT_FALSE(store.createKey(HKEY_CURRENT_USER + 1, Key) || store.keyExists(HKEY_CURRENT_USER + 1, "") ||
                 store.deleteKey(HKEY_CURRENT_USER, "") || store.deleteKey(HKEY_CURRENT_USER, "none"));
}

TEST_F(RegistryFileTest, CopiesKeepEachOthersValues)
{
    for (int copy = 0; copy < 4; ++copy) {
        RegistryFile store(m_path);
        if (::fork() != 0)
            continue;
        for (int i = 0; i < 10; ++i)
            set(store, QString::number(10 * copy + i), "a");
        ::_exit(0);
    }
    while (::wait(nullptr) > 0) {
    }
    EXPECT_EQ(readFile(m_path).count(" = string \"a\""), 40);
}

TEST_F(RegistryFileTest, DamagedFilesAreKeptUnderAnotherName)
{
    for (const QByteArray &damage : {QByteArray("first damage"), QByteArray(), QByteArray(3000, '\xff')}) {
        writeFile(m_path, damage);
        RegistryFile store(m_path);
        EXPECT_FALSE(store.keyExists(HKEY_CURRENT_USER, Key));
        writeFile(m_path, damage); // meanwhile
        EXPECT_TRUE(set(store, "a", "b") && RegistryFile(m_path).value(HKEY_CURRENT_USER, Key, "a"));
    }
    EXPECT_EQ(names().join(' '), "registry registry.damaged registry.damaged-2 registry.damaged-3 registry.damaged-4 "
                                 "registry.damaged-5 registry.damaged-6");
    EXPECT_EQ(readFile(m_path + ".damaged"), "first damage");
}

TEST_F(RegistryFileTest, WhatCanNeitherBeReadNorSetAsideIsLeftAlone)
{
    writeFile(m_path, "secret");
    for (const auto &[folder, file] : {std::pair(0777, 0200), {0555, 0444}}) {
        ASSERT_EQ(::chmod(qPrintable(m_folder.path()), mode_t(folder)) | ::chmod(qPrintable(m_path), mode_t(file)), 0);
        EXPECT_TRUE(OrdinaryUser::run([&] {
            RegistryFile store(m_path);
            return !store.keyExists(HKEY_CURRENT_USER, Key) && !set(store, "a", "b");
        }));
        EXPECT_TRUE(names() == QStringList{"registry"} && readFile(m_path) == "secret");
    }
    ::chmod(qPrintable(m_folder.path()), 0755);
}
