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
    const auto open = [&] { return prompts.askOpen("/f"); };
    const auto save = [&] { return prompts.askSave("old", "/f"); };
    const auto import = [&] { return prompts.askImport("/f"); };
    const auto write = [&] { return prompts.askExport("old", "/f"); };
    // what is asked, what the user answers one after the other, what comes of it, and what the last dialog was to offer
    const std::tuple<std::function<QString()>, QStringList, QString, QString> cases[] = {
        {open, {"/f/a.gla"}, "/f/a.gla", "Open Glosaria Document|/f||1 Glosaria Document (*.gla)|exists"},
        {save,
         {"/f/there.x", "/f/b"},
         "/f/b.gla",
         "Save Glosaria Document|/f|/f/there.gla|1 Glosaria Document (*.gla)|"},
        {save, {}, "", "Save Glosaria Document|/f|old.gla|1 Glosaria Document (*.gla)|"},
        {import, {"/f/a.csv"}, "/f/a.csv", "Import List|/f||5 All Files (*)|exists"},
        {import, {}, "", "Import List|/f||5 All Files (*)|exists"},
        {write, {"/f/there", "/f/c.txt"}, "/f/c.txt", "Export List|/f|/f/there.csv|4 Anki Text (*.anki.txt)|"},
        {write, {}, "", "Export List|/f|old|4 Anki Text (*.anki.txt)|"}};
    for (const auto &[ask, chosen, path, offered] : cases) {
        dialogs.chosen = chosen;
        EXPECT_EQ(ask(), path);
        const FileRequest &last = dialogs.file;
        const QString kinds = QStringLiteral("%1 %2").arg(last.nameFilters.size()).arg(last.nameFilters.last());
        const QStringList parts{last.title, last.folder, last.fileName, kinds, last.mustExist ? "exists" : ""};
        EXPECT_EQ(parts.join(u'|').toStdString(), offered.toStdString());
        EXPECT_EQ(last.owner, &owner);
    }
}
