#include "document/rules/file/VocabularyFile.h"

#include "support/OrdinaryUser.h"

using VocabularyCodec::Outcome;

struct VocabularyFileTest : ::testing::Test
{
    static Outcome load(const QString &from, Vocabulary &vocabulary)
    {
        VocabularyFile file(from);
        const VocabularyCodec::Header header = file.readHeader();
        if (header.outcome != Outcome::Ok)
            return header.outcome;
        VocabularyCodec::DecodeResult result = file.read(CodePage());
        vocabulary = std::move(result.vocabulary);
        return result.outcome;
    }
    Outcome load() { return load(path, vocabulary); }
    bool save() const { return VocabularyFile(path).save(Vocabulary(), CodePage()); }

    QTemporaryDir folder;
    const QString path = folder.filePath("words.gla");
    Vocabulary vocabulary;
};

TEST(VocabularyFile, ItsTitleIsItsNameWithoutFolderAndExtension)
{
    EXPECT_EQ(VocabularyFile::title("/home/a.b/Verbs of motion.gla"), "Verbs of motion");
    EXPECT_EQ(VocabularyFile::title("/x/a"), "");
}

TEST_F(VocabularyFileTest, WhatIsNoReadableFileFails)
{
    EXPECT_EQ(load(), Outcome::Failed);
    ASSERT_TRUE(QDir().mkdir(path));
    EXPECT_EQ(load(), Outcome::Failed);
    EXPECT_FALSE(save());
    ASSERT_TRUE(QDir().rmdir(path));
    ASSERT_EQ(::mkfifo(qPrintable(path), 0600), 0);
    EXPECT_EQ(load(), Outcome::Failed);
    ASSERT_TRUE(QFile::remove(path));
    ASSERT_TRUE(save());
    ASSERT_EQ(::chmod(qPrintable(path), 0) | ::chmod(qPrintable(folder.path()), 0755), 0);
    EXPECT_TRUE(OrdinaryUser::run([this] { return load() == Outcome::Failed; }));
}

TEST_F(VocabularyFileTest, HugeFilesOfAnotherKindAreNotRead)
{
    ASSERT_TRUE(QFile::resize(writeFile(path, "PK"), VocabularyFile::LargestSize));
    EXPECT_EQ(load(), Outcome::BadFormat);
}

TEST_F(VocabularyFileTest, SamplesCanBeRead)
{
    const QDir samples(SOURCE_FOLDER "/samples");
    EXPECT_FALSE(samples.isEmpty());
    for (const QString &name : samples.entryList({"*.gla"})) {
        EXPECT_EQ(load(samples.filePath(name), vocabulary), Outcome::Ok) << qPrintable(name);
        EXPECT_TRUE(vocabulary.font && vocabulary.columnWidths) << qPrintable(name);
        EXPECT_GT(vocabulary.rows(), 20) << qPrintable(name);
    }
}
