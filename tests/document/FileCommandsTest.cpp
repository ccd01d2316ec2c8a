#include "support/OpenFiles.h"

const QByteArray Words =
    "Glosaria\r\n3.1.0\r\n\r\n[Font Info]\r\n\"Arial\"\r\n12.5\r\n#TRUE#\r\n#TRUE#\r\n255\r\n\r\n"
    "[Grid Info]\r\n500\r\n3000\r\n2000\r\n2\r\n\r\n[Vocabulary]\r\nEnglish   [0000000285]\r\nGerman\r\n"
    "house   [0000000600]\r\nHaus\r\ntree   [0000000301]\r\nBaum\r\n";

struct FileCommandsTest : ::testing::Test, OpenFiles
{
    QTemporaryDir folder;

    QString path(const QString &name) const { return folder.filePath(name); }
    QString write(const QString &name, const QByteArray &bytes) const { return writeFile(path(name), bytes); }
    frmDoc &load(const QString &file)
    {
        files.LoadVocabulary(file);
        documents.setActive(documents.open().back());
        return *documents.active();
    }
};

TEST_F(FileCommandsTest, ALoadedFileFillsADocumentAndIsSavedAsItWas)
{
    prompts.openPath = write("Words.gla", Words);
    double progress = 0;
    QObject::connect(&files, &FileCommands::opened, [&] {
        const auto *bar = status.findChild<QProgressBar *>();
        progress = double(bar->value()) / bar->maximum();
    });
    files.open();
    EXPECT_EQ(progress, 1.0);
    frmDoc &document = *documents.open().at(0);
    EXPECT_EQ(document.Caption() + document.Rutor()->TextMatrix(1, 2) + status.text(0), "WordsHaus" + resText(506));
    EXPECT_TRUE(document.isVisible() && !document.Dirty() && document.Rutor()->Redraw());
    EXPECT_EQ(recent.File(1), prompts.openPath);
    EXPECT_TRUE(!status.findChild<QProgressBar *>() && alert.shown.empty());

    files.SaveVocabulary(document, path("Copy.gla"));
    EXPECT_EQ(readFile(path("Copy.gla")), Words);
    documents.setActive(&document);
    prompts.openPath.clear();
    files.open();
    files.saveAs();
    EXPECT_EQ(prompts.folder, folder.path());
    EXPECT_EQ(document.Caption(), "Copy");
    const frmDoc &bare = load(write("bare.gla", Words.first(Words.indexOf("English"))));
    EXPECT_EQ(bare.Rutor()->Rows(), 2) << "one can write in it";
    EXPECT_EQ(bare.language(2), resText(502));
}

TEST_F(FileCommandsTest, EveryFailureHasItsMessageAndLeavesNoWindow)
{
    QDir().mkdir(path("x.gla"));
    const auto cannotOpen = [this](const QString &name) -> QString { return resText(712) + path(name); };
    const std::tuple<const char *, QByteArray, QString, int, size_t> cases[] = {
        {"bad.gla", "glosaria\r\n3\r\n", resText(713) + path("bad.gla") + resText(714), 1420, 0},
        {"newer.gla", QByteArray(Words).replace("3.1.0", "4.0.0"), resText(722).replace("%1", "newer"), 1440, 0},
        {"older.gla", "Glosaria\r\n2\r\nA\r\nB\r\none\r\neins\r\n", resText(721).replace("%1", "older"), 1430, 1},
        {"OLDER.gla", {}, resText(710) + path("OLDER.gla") + resText(711), 1410, 0}, // whatever the case of its name
        {"odd.gla", Words + "half\r\n", cannotOpen("odd.gla"), 0, 0},
        {"rows.gla", Words + QByteArray(10000000, '\r'),
         cannotOpen("rows.gla") + "\n\nIt has more than 5,000,000 rows.", 0, 0},
        {"x.gla", {}, cannotOpen("x.gla"), 0, 0},
        {"missing.gla", {}, cannotOpen("missing.gla"), 0, 0},
    };
    for (const auto &[name, bytes, prompt, helpId, opened] : cases) {
        alert.shown.clear();
        if (!bytes.isEmpty())
            write(name, bytes);
        const size_t before = documents.open().size();
        files.LoadVocabulary(path(name));
        EXPECT_EQ(alert.onlyPrompt(), prompt);
        EXPECT_EQ(alert.shown.front().helpId, helpId);
        EXPECT_EQ(alert.shown.front().buttons, helpId ? Alert::OkHelp : Alert::Ok);
        EXPECT_EQ(documents.open().size() - before, opened) << name;
        EXPECT_EQ(status.text(0), resText(506));
    }
    EXPECT_EQ(recent.FileCount(), 1) << "only the older file was opened";
}

TEST_F(FileCommandsTest, SaveAsksForANameUntilItHasOneAndCommitsTheRunningEdit)
{
    frmDoc &document = *newDocument();
    QApplication::setActiveWindow(&document);
    for (const QString &savePath : {QString(), path("no/such/folder.gla"), path("Numbers.gla")}) {
        EXPECT_EQ(document.DocName() + document.Caption(), "Untitled 1");
        prompts.savePath = savePath;
        QTest::keyClicks(QApplication::focusWidget(), "one");
        files.save();
        EXPECT_EQ(document.Dirty(), savePath != path("Numbers.gla"));
    }
    EXPECT_EQ(document.Caption() + prompts.folder, "Numbers");
    EXPECT_TRUE(readFile(prompts.savePath).contains("one   [0000000285]"));
    flags.FindMode = true; // which holds status texts by id back
    files.save();
    EXPECT_EQ(status.text(0), resText(506));
    EXPECT_EQ(prompts.proposed, QStringList(3, "Untitled 1"));
}

TEST_F(FileCommandsTest, TheClosingQuestionDecides)
{
    const std::tuple<AlertBox::Answer, QString, bool, bool> cases[] = {
        {AlertBox::AnswerCancel, path("a.gla"), false, false},
        {AlertBox::AnswerNo, path("b.gla"), true, false},
        {AlertBox::AnswerYes, path("c.gla"), true, true},
        {AlertBox::AnswerYes, {}, true, false}}; // the dialog is cancelled
    for (const auto &[answer, savePath, closes, saved] : cases) {
        frmDoc *document = newDocument();
        document->setCaption("Words");
        document->setDirty(true);
        prompts.savePath = savePath;
        alert.shown.clear();
        alert.answers = {answer};
        files.closeActive();
        EXPECT_EQ(alert.onlyPrompt(), "The text in [Words] has changed.\r\nDo you want to save the changes?");
        EXPECT_EQ(alert.shown.front().helpId, 1400);
        EXPECT_EQ(documents.open().empty(), closes) << answer;
        EXPECT_EQ(documents.active() == nullptr, closes);
        EXPECT_EQ(QFileInfo(prompts.savePath).isFile(), saved) << answer;
        if (!closes)
            document->setDirty(false);
        files.closeAll();
    }
    // all at once: up to the first refusal
    for (const bool dirty : {false, true, false})
        newDocument()->setDirty(dirty);
    alert.answers = {AlertBox::AnswerCancel, AlertBox::AnswerNo};
    EXPECT_TRUE(!files.closeAll() && documents.open().size() == 2);
    EXPECT_EQ(newDocument()->Caption(), "Untitled 8") << "no number is used twice";
    EXPECT_TRUE(files.closeAll() && alert.answers.empty());
}

TEST_F(FileCommandsTest, WordsBelowTheLastRowWrittenAreToldAndKeepTheDocumentChanged)
{
    const std::pair<std::vector<int>, QString> cases[] = {
        {{}, ""},
        {{2}, "row 2"},
        {{2, 3, 4, 6, 9, 10}, "rows 2-4, 6, 9-10"},
        {{2, 4, 6, 8, 10, 12, 14, 16, 17, 19, 21, 22}, "rows 2, 4, 6, 8, 10, 12, 14, 16-17 and 3 more"},
    };
    frmDoc &document = load(write("100%1.gla", Words.first(Words.indexOf("tree"))));
    for (const auto &[rows, told] : cases) {
        document.Rutor()->setRows(2);
        document.Rutor()->setRows(30);
        for (const int row : rows)
            document.Rutor()->setTextMatrix(row, 2, "Wort");
        document.setDirty(true);
        alert.shown.clear();
        files.save();
        EXPECT_EQ(readFile(document.DocName()).count("Wort"), 0) << "the format has no place for them";
        EXPECT_EQ(document.Dirty(), !told.isEmpty());
        const QString prompt = "The words in " + told + " are not in the file " + document.DocName() +
                               ": a vocabulary file ends with the last row that has a word under [English].\nThey are "
                               "still in the window.";
        EXPECT_TRUE(told.isEmpty() ? alert.shown.empty() : alert.onlyPrompt().startsWith(prompt)) << qPrintable(told);
    }
    alert.answers = {AlertBox::AnswerYes, AlertBox::AnswerOk};
    EXPECT_TRUE(files.closeAll()) << "as whoever asks for it wants it, but not without a word";
    EXPECT_EQ(alert.shown.back().helpId, 1110);
    EXPECT_EQ(alert.shown.size(), 3u);
}

TEST_F(FileCommandsTest, AFileThatAnotherProgramHasChangedIsReplacedOnlyIfWanted)
{
    const QByteArray other = Words + "river   [0000000285]\r\nFluss\r\n";
    const QString file = write("shared.gla", Words);
    load(file).setDirty(true);
    write("shared.gla", other);
    alert.answers = {AlertBox::AnswerNo, AlertBox::AnswerYes, AlertBox::AnswerNo};
    files.save();
    EXPECT_FALSE(files.closeAll());
    EXPECT_EQ(readFile(file), other);
    QFile::remove(file); // what is gone is written without a question
    files.save();
    EXPECT_EQ(alert.shown.size(), 3u);
    write("shared.gla", other);
    documents.active()->setDirty(true);
    alert.answers = {AlertBox::AnswerYes, AlertBox::AnswerYes};
    EXPECT_TRUE(files.closeAll());
    EXPECT_EQ(readFile(file), Words);
}
