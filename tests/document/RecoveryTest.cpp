#include "document/GridContent.h"
#include "document/RecoveryKeeper.h"
#include "support/OpenFiles.h"

/// A running program that keeps copies. What it leaves behind is found by another one over the same folder.
struct Program : OpenFiles
{
    explicit Program(const QString &folder)
        : keeper(CodePage(), folder)
    {
        keeper.follow(documents, files);
    }
    bool secure(frmDoc &document) override { return keeper.secure(document); }

    frmDoc *changedDocument(const QString &word)
    {
        newDocument()->Rutor()->setTextMatrix(1, 1, word);
        documents.active()->setDirty(true);
        return documents.active();
    }

    RecoveryKeeper keeper;
};

struct RecoveryTest : ::testing::Test
{
    using Orphans = std::vector<RecoveryFolder::Orphan>;
    QTemporaryDir home;
    QString folder = home.filePath("recovery"), path = home.filePath("words.gla");
    std::unique_ptr<Program> run = std::make_unique<Program>(folder);

    QStringList copies() const
    {
        run->keeper.flush();
        QStringList found;
        for (QDirIterator it(folder, {"*.copy"}, QDir::Files, QDirIterator::Subdirectories); it.hasNext();) {
            found += it.next();
            for (const QString &place : {folder, it.fileInfo().path()})
                EXPECT_FALSE(QFileInfo(place).permissions() & ~QFile::Permissions(0x7700)) << "others can look in";
        }
        return found;
    }
    Orphans restart()
    {
        run.reset();
        run = std::make_unique<Program>(folder);
        return run->keeper.orphans();
    }
    void close(const QString &savePath, const std::deque<AlertBox::Answer> &answers)
    {
        run->prompts.savePath = savePath;
        run->alert.shown.clear();
        run->alert.answers = answers;
        run->files.closeActive();
    }
    void save()
    {
        run->prompts.savePath = path;
        run->files.save();
    }
};

TEST_F(RecoveryTest, WhatDiffersFromTheFileIsKeptAndNothingElse)
{
    using Change = std::function<void(frmDoc &, ctlGrid &)>;
    const std::tuple<const char *, bool, Change> cases[] = {
        {"nothing", false, [](frmDoc &, ctlGrid &) {}},
        {"a word", true, [](frmDoc &, ctlGrid &grid) { grid.setTextMatrix(2, 1, "só 猫"); }},
        {"a language's name", true, [](frmDoc &, ctlGrid &grid) { grid.setTextMatrix(0, 1, "x"); }},
        {"a row's height", true, [](frmDoc &, ctlGrid &grid) { grid.setRowHeight(1, 777); }},
        {"a column's width", true, [](frmDoc &, ctlGrid &grid) { grid.setColWidth(1, 777); }},
        {"the font's size", true, [](frmDoc &, ctlGrid &grid) { grid.setGridFont(QFont("Arial", 33)); }},
        {"the font's name", true, [](frmDoc &, ctlGrid &grid) { grid.setGridFont(QFont("Liberation Serif", 10)); }},
        {"bold", true, [](frmDoc &, ctlGrid &grid) { grid.setGridFont(QFont("Arial", 10, QFont::Bold)); }},
        {"italic", true, [](frmDoc &, ctlGrid &grid) { grid.setGridFont(QFont("Arial", 10, -1, true)); }},
        {"the colour", true, [](frmDoc &, ctlGrid &grid) { grid.setForeColor(0xFF); }},
        {"an inserted row", true, [](frmDoc &, ctlGrid &grid) { grid.insertRows(1, 1); }},
        {"empty rows at the end", false, [](frmDoc &, ctlGrid &grid) { grid.setRows(300); }},
        {"the mark of a change alone", false, [](frmDoc &document, ctlGrid &) { document.setDirty(true); }},
        {"a row taken out again", false, [](frmDoc &, ctlGrid &grid) { grid.insertRows(1, 1), grid.removeRows(1, 1); }},
        {"typing", true, [](frmDoc &, ctlGrid &grid) { grid.setEditMode(true), grid.setSelText("unfinished"); }},
        {"deleting", true,
         [](frmDoc &, ctlGrid &grid) { grid.GridEdit(0), grid.SelectEditText(0, 3), grid.setSelText({}); }},
    };
    for (const auto &[name, kept, change] : cases) {
        frmDoc *document = run->changedDocument("one");
        save();
        EXPECT_TRUE(copies().isEmpty()) << "saved";
        change(*document, *document->Rutor());
        EXPECT_EQ(copies().size(), kept) << name;
        document->setDirty(true);
        close(path, {AlertBox::AnswerNo});
        EXPECT_TRUE(copies().isEmpty()) << "given up";
    }
    run.reset();
    EXPECT_TRUE(QDir(folder).isEmpty());
}

TEST_F(RecoveryTest, EveryLaterChangeReachesTheCopyAndGoesWhenItIsUndone)
{
    frmDoc *document = run->changedDocument("first");
    ctlGrid &grid = *document->Rutor();
    EXPECT_EQ(copies().size(), 1);
    grid.setTextMatrix(1, 2, "second");
    grid.setRowHeight(1, 777);
    grid.setColWidth(2, 555);
    grid.setForeColor(0xFF00);
    grid.setGridFont(QFont("Liberation Serif", 1, QFont::Bold, true));
    const Vocabulary words = GridContent::read(grid);
    EXPECT_EQ(copies().size(), 1);
    const RecoveryFolder::Orphan orphan = restart().at(0);
    EXPECT_EQ(orphan.copy.cause, RecoveryCopy::Cause::Ended);
    run->keeper.recover(orphan);
    const frmDoc &recovered = *run->documents.open().at(0);
    EXPECT_TRUE(recovered.Caption() == "Untitled 1" && recovered.Dirty() && recovered.isVisible());
    EXPECT_EQ(GridContent::read(*recovered.Rutor()), words);

    document = run->newDocument();
    EXPECT_EQ(document->Caption(), "Untitled 2");
    for (const QString word : {"x", ""}) {
        document->Rutor()->setTextMatrix(1, 1, word);
        EXPECT_EQ(copies().size(), 1 + word.size()) << "what was recovered, at least";
    }
}

TEST_F(RecoveryTest, TheCopiesOfRunningProgramsAreNobodyElses)
{
    run->changedDocument("word");
    run->keeper.flush();
    Program second(folder);
    EXPECT_TRUE(run->keeper.orphans().empty() && second.keeper.orphans().empty());
    const Orphans mine = restart(), offered = second.keeper.orphans();
    ASSERT_EQ(offered.size(), 1u);
    run->keeper.recover(mine.at(0));
    second.keeper.recover(offered.front());
    EXPECT_TRUE(second.documents.open().empty()) << "the other program was quicker";
    const Orphans left = restart();
    ASSERT_EQ(left.size(), 1u) << "a second crash loses nothing";
    run->keeper.discard(left.front());
    EXPECT_TRUE(copies().isEmpty());
}

TEST_F(RecoveryTest, AClosedDocumentLeavesTheWordsThatItsFileLacksAndWhy)
{
    using enum RecoveryCopy::Cause;
    using Change = void (*)(ctlGrid &);
    const Change word = [](ctlGrid &grid) { grid.setTextMatrix(1, 2, "eins"); };
    const Change layout = [](ctlGrid &grid) { grid.setColWidth(1, 777); };
    const Change clear = [](ctlGrid &grid) { grid.setTextMatrix(1, 1, QString()); };
    const Change insert = [](ctlGrid &grid) { grid.insertRows(1, 1); };
    const Change below = [](ctlGrid &grid) { grid.setTextMatrix(9, 2, "neun"); };
    enum Saving { Cancelled, Fails, Works };
    // whether there is a file, what changes, whether the user is asked and says Yes, what becomes of that, the boxes
    // that are shown, and why a copy is left
    const std::tuple<const char *, bool, Change, bool, Saving, size_t, std::optional<RecoveryCopy::Cause>> cases[] = {
        {"a first save that is given up", false, word, true, Cancelled, 1, Closed},
        {"the same without any word", false, layout, true, Cancelled, 1, {}},
        {"a first save that fails", false, word, true, Fails, 2, Closed},
        {"a later save that fails", true, clear, true, Fails, 3, Closed},
        {"words below the last row", true, below, true, Works, 2, NotInFile},
        {"words below the last row, not saved", false, below, true, Cancelled, 1, Closed},
        {"a cleared cell", true, clear, false, Works, 0, {}},
        {"an inserted row", true, insert, false, Works, 0, {}},
        {"a size", true, layout, false, Works, 0, {}},
        {"a word that came back by Undo", true, word, false, Works, 0, Closed},
    };
    for (const auto &[name, hasFile, change, asked, saving, boxes, left] : cases) {
        SCOPED_TRACE(name);
        QDir().rmdir(path);
        frmDoc *document = hasFile ? run->changedDocument("one") : run->newDocument();
        if (hasFile)
            save();
        change(*document->Rutor());
        EXPECT_EQ(copies().size(), 1);
        document->setDirty(asked);
        if (saving == Fails) { // where a folder stands
            QFile::remove(path);
            QDir().mkdir(path);
        }
        close(saving == Cancelled ? QString() : path, {AlertBox::AnswerYes, AlertBox::AnswerYes});
        EXPECT_TRUE(run->documents.open().empty());
        EXPECT_EQ(run->alert.shown.size(), boxes);
        const Orphans orphans = restart();
        ASSERT_EQ(orphans.size(), left ? 1u : 0u);
        for (const RecoveryFolder::Orphan &orphan : orphans) {
            EXPECT_EQ(orphan.copy.cause, *left);
            run->keeper.discard(orphan);
        }
    }
}

TEST_F(RecoveryTest, AWindowWhoseWordsCanBeKeptNowhereClosesOnlyIfTheUserLetsThemGo)
{
    writeFile(folder, "in the way");
    frmDoc *document = run->changedDocument("word");
    close({}, {AlertBox::AnswerYes, AlertBox::AnswerNo});
    EXPECT_TRUE(run->documents.open().size() == 1 && run->alert.shown.size() == 2);
    QFile::remove(folder);
    EXPECT_EQ(copies().size(), 1) << "it is tried again";
    QDir(folder).removeRecursively();
    document->Rutor()->setTextMatrix(1, 1, "other");
    EXPECT_EQ(copies().size(), 1) << "also when the folder was removed meanwhile";
}

TEST_F(RecoveryTest, WhatIsOverwrittenInPlaceIsInACopyMeanwhile)
{
    frmDoc *document = run->changedDocument("word");
    save();
    EXPECT_TRUE(run->secure(*document));
    EXPECT_EQ(copies().size(), 1) << "although nothing has changed";
    EXPECT_TRUE(restart().empty()) << "the file is whole";
    run->files.LoadVocabulary(path);
    EXPECT_TRUE(run->secure(*run->documents.open().front()));
    writeFile(path, readFile(path).chopped(3));
    EXPECT_TRUE(restart().at(0).copy.isFileChanged());
}

TEST_F(RecoveryTest, StrangeCopiesAreNeitherOfferedNorDeletedAndHoldNobodyUp)
{
    const QString pipe = home.filePath("pipe.gla");
    run->changedDocument("word")->setDocName(pipe);
    run->keeper.flush();
    run.reset();
    ASSERT_EQ(::mkfifo(qPrintable(pipe), 0600), 0);
    const QString copy = restart().at(0).path;
    ASSERT_TRUE(QFile::resize(copy, RecoveryCopy::LargestSize + 1));
    EXPECT_TRUE(run->keeper.orphans().empty());
    EXPECT_EQ(copies().size(), 1);
}

TEST_F(RecoveryTest, AKillWithinSavingMakesTheFileNeitherStrangeNorUnsaved)
{
    frmDoc *document = run->changedDocument("old");
    save();
    document->Rutor()->setTextMatrix(1, 1, "new");
    run->keeper.flush();
    const RecoveryFolder::Orphan orphan = restart().at(0);
    run->keeper.recover(orphan);
    run->documents.setActive(run->documents.open().front());
    const QString copy = copies().at(0);
    const QByteArray bytes = readFile(copy);
    run->files.save();
    EXPECT_TRUE(run->alert.shown.empty()) << "a crash does not make the file another one";
    run->keeper.flush();
    writeFile(copy, bytes); // killed before the copy was removed
    EXPECT_TRUE(restart().empty()) << "all of it is in the file";
    EXPECT_TRUE(copies().isEmpty());
}
