#include "app/RecoveryOffer.h"
#include "MainWindowFixture.h"
#include "document/FileCommands.h"
#include "document/RecoveryKeeper.h"

struct RecoveryOfferTest : MainWindowFixture
{
    std::unique_ptr<RecoveryKeeper> keeper;
    std::unique_ptr<RecoveryOffer> offer;

    void SetUp() override { start(); }
    /// A program over what the one before it has left.
    void start()
    {
        offer.reset();
        keeper.reset();
        window.reset();
        MainWindowFixture::SetUp();
        keeper = std::make_unique<RecoveryKeeper>(codePage, folder.filePath("recovery"));
        keeper->follow(documents(), window->context().files);
        offer = std::make_unique<RecoveryOffer>(*keeper, alert, *window);
    }
    void change(const QString &path)
    {
        window->OpenRequestedFile(path);
        documents().active()->Rutor()->setTextMatrix(1, 1, "changed");
        documents().active()->setDirty(true);
        keeper->flush();
    }
    /// Starts on a file and answers the offer by a button.
    void answer(const QString &file, const QString &button, const std::function<void(QTreeWidget &)> &visitor)
    {
        inNextDialog([&](QDialog &dialog) {
            visitor(*dialog.findChild<QTreeWidget *>());
            dialog.findChild<QPushButton *>(button)->click();
        });
        offer->start(file);
    }
};

TEST_F(RecoveryOfferTest, WhatIsRecoveredCountsAsTheFileThatWasAskedFor)
{
    const QString one = writeVocabulary("one.gla"), two = writeVocabulary("two.gla");
    const QString other = writeVocabulary("other.gla");
    change(one);
    change(two);
    const auto isOpen = [this](const QString &path) { return documents().findByPath(path) != nullptr; };

    start();
    answer(two, "btnLater", [&](QTreeWidget &list) {
        EXPECT_EQ(list.topLevelItem(0)->text(1), resText(14067)) << "it ended unexpectedly";
        EXPECT_FALSE(isOpen(two)) << "it waits for what becomes of its copy";
        offer->open(other);
        EXPECT_TRUE(isOpen(other)) << "others do not";
    });
    EXPECT_EQ(parts()[0], "documents: other | >two");

    start();
    window->OpenRequestedFile(one);
    answer(two, "btnRecover", [&](QTreeWidget &list) {
        offer->open(one); // as by a double click
        ASSERT_EQ(alert.onlyPrompt(), resText(710) + one + resText(711)) << "which it is";
        EXPECT_EQ(list.selectedItems().size(), 2);
    });
    EXPECT_EQ(parts()[0], "documents: one* | >two*") << "each once";
}

TEST_F(RecoveryOfferTest, TakesOnlyWhatIsSelected)
{
    for (const char *name : {"a.gla", "b.gla", "c.gla"})
        change(writeVocabulary(name));
    writeVocabulary("b.gla");
    frmDoc *untitled = newDocument();
    untitled->setCaption(QString(90, 'w'));
    untitled->Rutor()->setTextMatrix(1, 1, "left");
    keeper->flush();
    alert.answers = {AlertBox::AnswerYes};
    untitled->frame()->close();
    start();
    alert.answers = {AlertBox::AnswerYes};
    answer({}, "btnDiscard", [this](QTreeWidget &list) {
        QString table;
        for (int row = -1; row < list.topLevelItemCount(); ++row) {
            const QTreeWidgetItem &item = row < 0 ? *list.headerItem() : *list.topLevelItem(row);
            for (int column = 0; column < list.columnCount(); ++column)
                table += item.text(column) + (column == 3 ? "\n" : " | ");
            EXPECT_EQ(item.toolTip(0) + item.toolTip(3), row < 0 ? "" : item.text(0) + item.text(3));
            table.remove(QRegularExpression("\\d\\d [A-Z].. 20\\d\\d \\d\\d:\\d\\d:\\d\\d"));
        }
        expectAsIn("recovery.txt", table.replace(folder.path(), "@"));
        EXPECT_LE(list.columnWidth(0), list.window()->width() / 3);
        EXPECT_GE(list.columnWidth(2), list.fontMetrics().horizontalAdvance(list.topLevelItem(0)->text(2)));
        list.clearSelection();
        EXPECT_EQ(shown(*list.window()).section(": | ", 1), "? | (&Recover) | (&Discard) | Decide &Later");
        list.selectAll();
        for (const int row : {0, 1})
            list.topLevelItem(row)->setSelected(false);
    });
    EXPECT_EQ(alert.onlyPrompt(), resText(12620).arg(2));
    answer({}, "btnRecover", [](QTreeWidget &list) {
        list.topLevelItem(0)->setSelected(false);
        EXPECT_EQ(list.topLevelItemCount(), 2);
    });
    EXPECT_EQ(parts()[0], "documents: >c*");
    answer({}, "btnDiscard", [](QTreeWidget &) {});
    EXPECT_EQ(alert.told(), ": " + resText(12621).arg(QString(90, 'w')));
}
