#include "app/rules/Lessons.h"

TEST(Lessons, AreNamedAfterTheirFilesAndFolders)
{
    const QTemporaryDir folder;
    for (const char *file :
         {"spanish/09-numbers.gla", "spanish/00-start.gla", "spanish/10-at-home.gla", "spanish/notes.txt",
          "french/x.gla", "empty/y.txt", "2024.gla", "old_words.gla", "a/b/deep.gla"}) {
        const QFileInfo info(folder.filePath(QLatin1String(file)));
        QDir().mkpath(info.path());
        QFile made(info.filePath());
        ASSERT_TRUE(made.open(QFile::WriteOnly));
    }
    QStringList found;
    for (const Lessons::Group &group : Lessons::in(folder.path())) {
        for (const Lessons::Lesson &lesson : group.lessons) {
            EXPECT_TRUE(QFile::exists(lesson.path));
            found << group.title + u'/' + lesson.title;
        }
    }
    EXPECT_EQ(found, (QStringList{"/2024", "/Old words", "French/X", "Spanish/0 Start", "Spanish/9 Numbers",
                                  "Spanish/10 At home"}));
    EXPECT_TRUE(Lessons::in(folder.filePath("missing")).empty());
}
