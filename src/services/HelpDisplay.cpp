#include "services/HelpDisplay.h"

#include <QCoreApplication>

HelpTarget HelpTarget::ofProgram()
{
    HelpTarget target;
    target.HTMLHelpFile = QCoreApplication::applicationDirPath() + QStringLiteral("/glhelp.qch");
    return target;
}

HelpTarget HelpTarget::ofAlertBoxes()
{
    HelpTarget target = ofProgram();
    target.HelpWindow = QStringLiteral("MboxHelp");
    return target;
}
