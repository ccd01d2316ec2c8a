#include "document/rules/file/VocabularyFile.h"

using VocabularyCodec::Outcome;

TEST(VocabularyFile, WhatIsNoReadableFileFails)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("words.gla");
    const auto save = [&path] { return VocabularyFile(path).save(Vocabulary(), CodePage()); };
    const auto load = [&path] {
        VocabularyFile file(path);
        const VocabularyCodec::Header header = file.readHeader();
        return header.outcome == Outcome::Ok ? file.read(CodePage()).outcome : header.outcome;
    };
    EXPECT_EQ(load(), Outcome::Failed);
    EXPECT_EQ(VocabularyFile("/proc/self/mem").readHeader().outcome, Outcome::Failed) << "an error of the disk, say";
    ASSERT_TRUE(QDir().mkdir(path));
    EXPECT_EQ(load(), Outcome::Failed);
    EXPECT_FALSE(save());
    ASSERT_TRUE(QDir().rmdir(path));
    ASSERT_EQ(::mkfifo(qPrintable(path), 0600), 0);
    EXPECT_EQ(load(), Outcome::Failed);
    ASSERT_TRUE(QFile::remove(path));
    ASSERT_TRUE(save());
    EXPECT_EQ(load(), Outcome::Ok);
    ASSERT_TRUE(QFile::resize(path, VocabularyFile::LargestSize + 1));
    EXPECT_EQ(load(), Outcome::Failed);
    ASSERT_TRUE(QFile::resize(writeFile(path, "PK"), VocabularyFile::LargestSize));
    EXPECT_EQ(load(), Outcome::BadFormat) << "of another kind, and not read whole";
    ASSERT_EQ(::chmod(qPrintable(path), 0) | ::chmod(qPrintable(folder.path()), 0755), 0);
    EXPECT_TRUE(OrdinaryUser::run([&load] { return load() == Outcome::Failed; }));
}

TEST(Lessons, AreShortAskableAndAsTheProgramSavesThem)
{
    const QString root = SOURCE_FOLDER "/samples/";
    const CodePage foreign("windows-874"); // holds none of their letters: they are the same for users of every locale
    int count = 0;
    for (QDirIterator files(root, QDir::Files, QDirIterator::Subdirectories); files.hasNext();) {
        const QByteArray bytes = readFile(files.next());
        const QString name = files.filePath().mid(root.size());
        SCOPED_TRACE(qPrintable(name));
        EXPECT_TRUE(QRegularExpression("^[a-z]+/[01][0-9](-[a-z]+)+\\.gla$").match(name).hasMatch());
        ++count;
        const auto [outcome, older, lesson] = VocabularyCodec::decode(bytes, foreign);
        ASSERT_EQ(outcome, Outcome::Ok);
        EXPECT_EQ(VocabularyCodec::encode(lesson, foreign), bytes);
        EXPECT_TRUE(lesson.rows() > 20 && lesson.rows() <= 41);
        for (std::vector<QString> column : {lesson.first, lesson.second}) {
            for (const QString &cell : column) // neither blanks that nobody sees nor letters that no keyboard makes
                EXPECT_TRUE(!cell.isEmpty() && cell == cell.simplified().normalized(QString::NormalizationForm_C));
            std::ranges::sort(column);
            EXPECT_EQ(std::ranges::adjacent_find(column), column.end()) << "two answers";
        }
    }
    EXPECT_GE(count, 6 * 8);
}
