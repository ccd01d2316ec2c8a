#pragma once

#include <QWidget>

/// Has a screen reader say a text at once, wherever the focus is. A changed name or description of what has the focus
/// does not do: the toolkit does not hand the text on. It takes no room and lets the mouse through.
class Announcer : public QWidget
{
    Q_OBJECT

public:
    explicit Announcer(QWidget *parent);

    /// An empty text is not said; the same text is said again.
    void say(const QString &text);
};
