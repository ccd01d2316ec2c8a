#include "tools/frmSort.h"

#include "support/OpenDocument.h"
#include "tools/modSorting.h"

using Words = OpenDocument::Words;

struct Sorting : ::testing::Test, OpenDocument
{
    Sorting()
        : OpenDocument(Words{{"b", "2"}, {"", "x"}, {"c", "10"}, {"a", "9"}})
    {
    }

    /// Clicks on controls of the dialog that SortVocabulary shows, then presses a key.
    void sortWith(const QStringList &clicked, Qt::Key key)
    {
        QTimer::singleShot(0, qApp, [&] {
            auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
            ASSERT_TRUE(dialog && QTest::qWaitForWindowActive(dialog));
            for (const QString &name : clicked)
                QTest::mouseClick(dialog->findChild<QAbstractButton *>(name), Qt::LeftButton);
            QTest::keyClick(dialog, key);
        });
        modSorting::SortVocabulary(document, undo, QLocale(QLocale::English), &window);
    }
};

TEST_F(Sorting, OrdersByTheChosenLanguageAndOrderWhatWasChosen)
{
    // what is clicked, the columns that are selected in rows 3 and 4, and the words of language 1 afterwards
    const std::tuple<QStringList, int, QString> cases[] = {
        {{}, 2, "a,b,c,,"},
        {{"optOrder1"}, 2, "c,b,a,,"},
        {{"optLang1"}, 2, "b,a,c,,"},
        {{"optLang1", "optOrder1"}, 2, ",c,a,b,"},
        {{"optLang1", "optLang0", "optOrder1", "optOrder0"}, 2, "a,b,c,,"},
        {{"chkSelection"}, 2, "b,,a,c,"},
        {{"chkSelection"}, 1, "a,b,c,,"}, // disabled
    };
    for (const auto &[clicked, columns, sorted] : cases) {
        setWords({{"b", "2"}, {"", "x"}, {"c", "10"}, {"a", "9"}});
        select(4, 2, 3, 3 - columns);
        sortWith(clicked, Qt::Key_Return);
        QStringList first;
        for (const auto &row : words())
            first += row[0];
        EXPECT_EQ(first.join(u','), sorted) << clicked.join(u' ').toStdString();
    }
}

TEST_F(Sorting, CancelAndASortedVocabularyAreNoChange)
{
    const Words before = words();
    sortWith({}, Qt::Key_Escape);
    EXPECT_EQ(words(), before);
    EXPECT_EQ(undo.kind(), UndoKind::None);
    setWords({{"a", ""}, {"b", ""}});
    sortWith({}, Qt::Key_Return);
    EXPECT_FALSE(document.Dirty());
    EXPECT_EQ(undo.kind(), UndoKind::Sort);
}
