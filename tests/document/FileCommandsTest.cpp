#include "support/OpenFiles.h"

namespace {

const QByteArray Words =
    "Glosaria\r\n3.1.0\r\n\r\n[Font Info]\r\n\"Arial\"\r\n12.5\r\n#TRUE#\r\n#TRUE#\r\n255\r\n\r\n"
    "[Grid Info]\r\n500\r\n3000\r\n2000\r\n2\r\n\r\n[Vocabulary]\r\nEnglish   [0000000285]\r\nGerman\r\n"
    "house   [0000000600]\r\nHaus\r\ntree   [0000000301]\r\nBaum\r\n";

struct FileCommandsTest : ::testing::Test, OpenFiles
{
    QTemporaryDir folder;
    bool isKept = true; ///< in a copy
    QString told;

    bool secure(frmDoc &) override { return isKept; }
    QString path(const QString &name) const { return name.isEmpty() ? name : folder.filePath(name); }
    QString file(const QString &step) const { return path(step.section(' ', 0, 0)); }
    ctlGrid &grid() { return *documents.active()->Rutor(); }
    void activateLast() { documents.setActive(documents.open().empty() ? nullptr : documents.open().back()); }

    /// The documents, their files and whether they are changed (the active one with a ">"); what was told by signals,
    /// file dialogs, boxes and the status bar since the last step.
    QString state()
    {
        QStringList parts;
        for (const frmDoc *document : documents.open()) {
            EXPECT_TRUE(document->isVisible() && document->Rutor()->Redraw());
            parts += (document == documents.active() ? ">" : "") + document->Caption() + '<' + document->DocName() +
                     (document->Dirty() ? ">*" : ">");
        }
        parts += std::exchange(told, {});
        if (const QStringList names = std::exchange(prompts.proposed, {}); !names.isEmpty())
            parts += "asked for " + names.join('|');
        if (const QString place = std::exchange(prompts.folder, {}); !place.isEmpty())
            parts += "in " + place;
        for (const Alert &box : std::exchange(alert.shown, {}))
            parts += '[' + box.prompt + QString(" %1 %2").arg(int(box.buttons)).arg(box.helpId) +
                     (box.sound ? " bell" : "") + (box.exclamation ? " !]" : "]");
        parts += status.text(0) == resText(506) ? "" : status.text(0);
        EXPECT_FALSE(status.findChild<QProgressBar *>());
        parts.removeAll("");
        return parts.join(' ')
            .remove(folder.path() + '/')
            .replace(folder.path(), "the folder")
            .replace("\r\n", "\n")
            .replace('\n', '~')
            .replace('\r', '~');
    }
};

} // namespace

TEST_F(FileCommandsTest, ReadSaveCloseAndTell)
{
    QByteArray older = Words;
    const std::map<QString, QByteArray> contents = {{"words", Words},
                                                    {"other", Words + "river   [0000000285]\r\nFluss\r\n"},
                                                    {"one", Words.first(Words.indexOf("tree"))},
                                                    {"bare", Words.first(Words.indexOf("English"))},
                                                    {"bad", "glosaria\r\n3\r\n"},
                                                    {"newer", older.replace("3.1.0", "4.0.0")},
                                                    {"older", "Glosaria\r\n2\r\nA\r\nB\r\none\r\neins\r\n"},
                                                    {"odd", Words + "half\r\n"},
                                                    {"long", Words + QByteArray(10000000, '\r')}};
    using enum AlertBox::Answer;
    const std::map<QString, AlertBox::Answer> answers = {
        {"yes", AnswerYes}, {"no", AnswerNo}, {"cancel", AnswerCancel}, {"ok", AnswerOk}};
    const std::map<QString, std::function<void(const QString &)>> steps = {
        {"write", [&](const QString &x) { writeFile(file(x), contents.at(x.section(' ', 1))); }},
        {"folder", [&](const QString &x) { QDir().mkdir(path(x)); }},
        {"remove", [&](const QString &x) { QFile::remove(path(x)); }},
        {"compare",
         [&](const QString &x) { told = readFile(file(x)) == contents.at(x.section(' ', 1)) ? "same" : ""; }},
        {"exists", [&](const QString &x) { told = QFileInfo(path(x)).isFile() ? "yes" : "no"; }},
        {"new", [&](const QString &) { QApplication::setActiveWindow(newDocument()); }},
        {"open", [&](const QString &x) { prompts.openPath = path(x), files.open(), activateLast(); }},
        {"load", [&](const QString &x) { files.LoadVocabulary(path(x)), activateLast(); }},
        {"copy", [&](const QString &x) { files.openCopy(path(x)), activateLast(); }},
        {"save", [&](const QString &x) { prompts.savePath = path(x), files.save(); }},
        {"save-as", [&](const QString &x) { prompts.savePath = path(x), files.saveAs(); }},
        {"close", [&](const QString &x) { prompts.savePath = path(x), files.closeActive(); }},
        {"close-all", [&](const QString &) { told += files.closeAll() ? " closed" : " refused"; }},
        {"answer",
         [&](const QString &x) {
             for (const QString &each : x.split(' '))
                 alert.answers.push_back(answers.at(each));
         }},
        {"type", [&](const QString &x) { QTest::keyClicks(QApplication::focusWidget(), x); }},
        {"dirty", [&](const QString &x) { documents.active()->setDirty(x.isEmpty()); }},
        {"rows",
         [&](const QString &x) {
             for (const QString &row : x.split(' '))
                 grid().setTextMatrix(row.toInt(), 2, "Wort");
         }},
        {"again", [&](const QString &) { grid().setRows(2), grid().setRows(30); }},
        {"lose", [&](const QString &) { isKept = false; }},
        {"find", [&](const QString &) { flags.FindMode = true; }},
        {"recent", [&](const QString &) { told = recent.File(1) + ' ' + recent.File(recent.FileCount()); }},
        {"clip", [&](const QString &) {
             grid().Select(1, 1, grid().Rows() - 1, 2);
             told = grid().TextMatrix(0, 1) + '|' + grid().TextMatrix(0, 2) + ' ' + grid().Clip().replace('\t', '|');
         }}};
    QObject::connect(&files, &FileCommands::opened, [&] {
        const auto *bar = status.findChild<QProgressBar *>();
        told += QString(" opened%1").arg(bar ? bar->value() * 100 / bar->maximum() : 0);
    });
    QObject::connect(&files, &FileCommands::saved, [&] { told += " saved"; });
    QObject::connect(&files, &FileCommands::givenUp, [&] { told += " given up"; });
    const QString script = readFile(SOURCE_FOLDER "/tests/document/data/file_commands.txt");
    for (const QString &line : script.split('\n', Qt::SkipEmptyParts)) {
        const QString step = line.section(" -> ", 0, 0);
        steps.at(step.section(' ', 0, 0))(step.section(' ', 1));
        EXPECT_EQ((step + " -> " + state()).toStdString(), line.toStdString());
    }
    EXPECT_TRUE(alert.answers.empty());
}
