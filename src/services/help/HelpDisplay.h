#pragma once

#include <QPoint>
#include <QString>
#include <QVariant>

class QWidget;

/// What can be asked of the help viewer, with the numbers that callers from outside know.
enum HelpCommand {
    HH_DISPLAY_TOPIC = 0,     ///< a topic by its path in the help file
    HH_DISPLAY_TOC = 1,       ///< the contents
    HH_DISPLAY_INDEX = 2,     ///< the index
    HH_DISPLAY_SEARCH = 3,    ///< the search
    HH_DISPLAY_FAVORITES = 4, ///< the user's favorites
    HH_HELP_CONTEXT = 15      ///< a topic by its context number
};

/// Where help comes from and where it shows.
struct HelpTarget
{
    QString HTMLHelpFile;                                    ///< full path of the compiled help file
    QString ContextHelpFile = QStringLiteral("context.txt"); ///< the file within it that lists the context numbers
    QString HelpWindow = QStringLiteral("Main");             ///< name of the window in which topics open

    /// The program's own help, which comes with the program.
    static HelpTarget ofProgram();
    /// The same in the window for alert boxes.
    static HelpTarget ofAlertBoxes();
};

/// Shows help. Whoever offers help is handed one; the program hands out HelpViewers.
class HelpDisplay
{
public:
    virtual ~HelpDisplay() = default;

    /// data is the path of a topic or a context number, as the command asks. What cannot be shown is told to the user;
    /// false then.
    virtual bool HtmlHelp(const HelpTarget &target, HelpCommand command, const QVariant &data = {}) = 0;

    /// Shows the text with that id of the string table beside a point of the screen (pixels), for a window. It goes
    /// with the next key or click.
    virtual void showPopUp(QWidget *owner, int textId, const QPoint &screenPoint) = 0;
};
