#include "tools/frmSort.h"

#include "support/OpenDocument.h"
#include "tools/modSorting.h"

#include <QCheckBox>

using Words = OpenDocument::Words;

const QLocale English(QLocale::English);

struct Sorting : ::testing::Test, OpenDocument
{
    Sorting()
        : OpenDocument(Words{{"b", "2"}, {"", "x"}, {"c", "10"}, {"a", "9"}})
    {
    }

    /// What the user does in the dialog that SortVocabulary shows.
    void sortWith(const std::function<void(QDialog &)> &answer)
    {
        QTimer::singleShot(0, qApp, [&answer] {
            auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
            ASSERT_TRUE(dialog && QTest::qWaitForWindowActive(dialog));
            answer(*dialog);
        });
        modSorting::SortVocabulary(document, undo, English, &window);
    }
    static void click(QDialog &dialog, const char *name)
    {
        QTest::mouseClick(dialog.findChild<QAbstractButton *>(QString::fromLatin1(name)), Qt::LeftButton);
    }
};

TEST_F(Sorting, SortsOnlyTheSelectedRows)
{
    select(4, 2, 3, 1);
    sortWith([](QDialog &dialog) {
        click(dialog, "chkSelection");
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    EXPECT_EQ(words(), (Words{{"b", "2"}, {"", "x"}, {"a", "9"}, {"c", "10"}, {}}));
}

TEST_F(Sorting, CancelAndASortedVocabularyAreNoChange)
{
    const Words before = words();
    sortWith([](QDialog &dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    EXPECT_EQ(words(), before);
    EXPECT_EQ(undo.kind(), UndoKind::None);
    setWords({{"a", ""}, {"b", ""}});
    sortWith([](QDialog &dialog) { QTest::keyClick(&dialog, Qt::Key_Return); });
    EXPECT_FALSE(document.Dirty());
    EXPECT_EQ(undo.kind(), UndoKind::Sort);
}
