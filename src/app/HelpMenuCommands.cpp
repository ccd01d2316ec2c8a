#include "app/AppCommands.h"
#include "app/AppContext.h"
#include "app/CommandTable.h"
#include "app/MainHelp.h"
#include "app/frmApp.h"
#include "quiz/frmSplash.h"
#include "resources/Pictures.h"
#include "services/status/modSBFunc.h"

#include <QApplication>
#include <QWhatsThis>

namespace {

using enum AppState;

constexpr StateSet Always(StateDocument, StateNoDocument, StateEditing, StatePreview);

void showAbout(const AppContext &context)
{
    modSBFunc &status = context.status;
    frmSplash about(QVersionNumber::fromString(QApplication::applicationVersion()), &context.window);
    about.setLoadStatus(frmSplash::About);
    about.Form_Load();
    QObject::connect(&about, &frmSplash::statusRequested, &status, &modSBFunc::ShowStatus);
    QObject::connect(&about, &frmSplash::linkHovered, &status, &modSBFunc::showText);
    status.ShowStatus(modSBFunc::DialogOpen);
    about.exec();
    status.ShowStatus(modSBFunc::Ready);
}

} // namespace

void AppCommands::addHelpCommands(CommandTable &table, const AppContext &context)
{
    table.add({"mnuHelpTopic", 455, "", 56, PictureHelpTopics, Always, [&context] { context.help.ShowContents(); }});
    table.add({"mnuHelpAbout", 457, "", 58, PictureAbout, Always, [&context] { showAbout(context); }});
    table.add({"Help", 1017, "Shift+F1", 224, PictureWhatsThis, Always, [] { QWhatsThis::enterWhatsThisMode(); }});
}
