#pragma once

class QString;
class QWidget;

/// What printing and its preview need of the main window.
class PrintHost
{
public:
    virtual ~PrintHost() = default;

    /// The main window: it owns the dialogs, and its drawing is held back during long work.
    virtual QWidget *window() = 0;
    /// The area in which preview pages are placed.
    virtual QWidget *clientArea() = 0;
    /// The height of the toolbars in pixels.
    virtual int toolbarHeight() const = 0;

    /// Shows a text in the first status panel at once, even if no events are handled afterwards.
    virtual void showStatus(const QString &text) = 0;

    /// Shows the preview's toolbar in place of the standard one, empties the first two status panels, and hides every
    /// document window, keeping its place.
    virtual void enterPreview() = 0;
    /// Undoes enterPreview.
    virtual void leavePreview() = 0;
};
