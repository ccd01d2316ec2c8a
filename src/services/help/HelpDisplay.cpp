#include "services/help/HelpDisplay.h"

#include "platform/files/ProgramFiles.h"

HelpTarget HelpTarget::ofProgram()
{
    HelpTarget target;
    target.HTMLHelpFile = ProgramFiles::path(QStringLiteral("glhelp.qch"));
    return target;
}

HelpTarget HelpTarget::ofAlertBoxes()
{
    HelpTarget target = ofProgram();
    target.HelpWindow = QStringLiteral("MboxHelp");
    return target;
}
