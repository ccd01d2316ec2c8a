#include "app/CommonFilePrompts.h"

#include "support/ScriptedAlertBox.h"
#include "support/ScriptedDialogs.h"

/// Two files are there already, and not to be replaced.
struct FullFolder : ScriptedDialogs
{
    bool fileExists(const QString &path) override { return path == "/f/there.gla" || path == "/f/there.csv"; }
};

TEST(CommonFilePromptsTest, EachAsksForItsKindOfFile)
{
    FullFolder dialogs;
    ScriptedAlertBox alert;
    QWidget owner;
    CommonFilePrompts prompts(dialogs, alert);
    prompts.setOwner(&owner);
    const std::map<QString, std::function<QString()>> kinds{{"open", [&] { return prompts.askOpen("/f"); }},
                                                            {"save", [&] { return prompts.askSave("old", "/f"); }},
                                                            {"import", [&] { return prompts.askImport("/f"); }},
                                                            {"export", [&] { return prompts.askExport("old", "/f"); }}};
    // what is asked, what the user answers one after the other, what comes of it, and what the last dialog was to offer
    QString found;
    for (const char *each : {"open /f/a.gla", "save /f/there.x /f/b", "save", "import /f/a.csv", "import",
                             "export /f/there.csv /f/c", "export /f/c.txt", "export"}) {
        const QStringList words = QString(each).split(' ');
        dialogs.chosen = words.mid(1);
        dialogs.filter = words[0] == "export" ? 2 : 0;
        found += each + (" -> " + kinds.at(words[0])());
        const FileRequest &last = dialogs.file;
        for (const QString &part : {last.title, last.folder, last.fileName, last.nameFilters.join(','),
                                    QString::number(last.filterIndex), QString(last.mustExist ? "exists" : "any")})
            found += " | " + part;
        found += '\n';
        EXPECT_EQ(last.owner, &owner);
    }
    EXPECT_EQ(found.toStdString(), readFile(SOURCE_FOLDER "/tests/app/data/prompts.txt").toStdString());
}
