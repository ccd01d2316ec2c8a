#include "document/rules/VocabularyFile.h"

#include "support/FileSizeLimit.h"
#include "support/OrdinaryUser.h"

#include <QDir>

#include <sys/stat.h>

namespace {

using VocabularyCodec::Outcome;

class VocabularyFileTest : public ::testing::Test
{
protected:
    QString path() const { return m_folder.filePath(QStringLiteral("words.gla")); }

    Outcome load(Vocabulary &vocabulary) const
    {
        VocabularyFile file(path());
        const VocabularyCodec::Header header = file.readHeader();
        if (header.outcome != Outcome::Ok)
            return header.outcome;
        VocabularyCodec::DecodeResult result = file.read(CodePage());
        vocabulary = std::move(result.vocabulary);
        return result.outcome;
    }

    Outcome load() const
    {
        Vocabulary vocabulary;
        return load(vocabulary);
    }

    static Vocabulary withRows(int count)
    {
        Vocabulary vocabulary;
        vocabulary.font = VocabularyFont();
        vocabulary.columnWidths = {340, 4000, 4000};
        for (int i = 0; i < count; ++i)
            vocabulary.append(QString::number(i), QStringLiteral("word"));
        return vocabulary;
    }

    QTemporaryDir m_folder;
};

} // namespace

TEST_F(VocabularyFileTest, WhatIsNoReadableFileFails)
{
    EXPECT_EQ(load(), Outcome::Failed);
    ASSERT_TRUE(QDir(m_folder.path()).mkdir(QStringLiteral("words.gla")));
    EXPECT_EQ(load(), Outcome::Failed);
    EXPECT_FALSE(VocabularyFile(path()).save(withRows(1), CodePage()));
    ASSERT_TRUE(QDir(m_folder.path()).rmdir(QStringLiteral("words.gla")));
    ASSERT_EQ(::mkfifo(qPrintable(path()), 0600), 0);
    EXPECT_EQ(load(), Outcome::Failed);
    ASSERT_TRUE(QFile::remove(path()));
    ASSERT_TRUE(VocabularyFile(path()).save(withRows(1), CodePage()));
    ASSERT_EQ(::chmod(qPrintable(path()), 0), 0);
    ASSERT_EQ(::chmod(qPrintable(m_folder.path()), 0755), 0);
    EXPECT_TRUE(OrdinaryUser::run([this] { return load() == Outcome::Failed; }));
}

TEST_F(VocabularyFileTest, HugeFilesOfAnotherKindAreNotRead)
{
    QFile file(path());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write("PK") == 2 && file.resize(VocabularyFile::LargestSize));
    file.close();
    EXPECT_EQ(load(), Outcome::BadFormat);
}

TEST_F(VocabularyFileTest, FailedSaveKeepsTheOldFile)
{
    ASSERT_TRUE(VocabularyFile(path()).save(withRows(2000), CodePage()));
    QString error;
    {
        const FileSizeLimit limit(60000);
        EXPECT_FALSE(VocabularyFile(path()).save(withRows(4000), CodePage(), {}, &error));
    }
    EXPECT_FALSE(error.isEmpty());
    Vocabulary vocabulary;
    EXPECT_EQ(load(vocabulary), Outcome::Ok);
    EXPECT_TRUE(vocabulary == withRows(2000));
    EXPECT_EQ(QDir(m_folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot).size(), 1);
}

TEST(VocabularySamples, AllCanBeRead)
{
    const QDir folder(QStringLiteral(SOURCE_FOLDER "/samples"));
    const QStringList names = folder.entryList({QStringLiteral("*.gla")});
    EXPECT_FALSE(names.isEmpty());
    for (const QString &name : names) {
        VocabularyFile file(folder.filePath(name));
        ASSERT_EQ(file.readHeader().outcome, Outcome::Ok) << qPrintable(name);
        const VocabularyCodec::DecodeResult result = file.read(CodePage());
        EXPECT_EQ(result.outcome, Outcome::Ok) << qPrintable(name);
        EXPECT_TRUE(result.vocabulary.font && result.vocabulary.columnWidths) << qPrintable(name);
        EXPECT_GT(result.vocabulary.rows(), 20) << qPrintable(name);
    }
}
