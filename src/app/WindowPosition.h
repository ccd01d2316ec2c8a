#pragma once

#include <QSize>

class QWidget;
class clsAppProperties;

/// Where the main window stood when the program ended, and stands again when it starts.
class WindowPosition
{
public:
    /// Both must outlive the object.
    WindowPosition(QWidget &window, clsAppProperties &settings);

    /// Puts the window where the settings say; over the whole work area when they say nothing that can be used, and the
    /// settings then say so, too.
    void restore();
    /// To be called when the window has been shown, and when it was maximised until now: how thick its frame is can be
    /// told only after the window manager has put it round the window, and what the settings hold includes it.
    void makeRoomForFrame();
    /// Stores the present place and state in the settings.
    void store();

private:
    bool apply();
    void useWorkArea();

    QWidget &m_window;
    clsAppProperties &m_settings;
    QSize m_restoredSize; ///< with the window manager's frame; empty once that was taken off
};
