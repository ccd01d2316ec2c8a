#pragma once

#include <QRect>

class QWidget;
class clsAppProperties;

/// Remembers where on the screen the user likes the quiz window and how large. What the user has not changed since the
/// window opened is not stored.
class QuizPlace
{
public:
    /// Both outlive this object.
    QuizPlace(QWidget &window, clsAppProperties &settings)
        : m_window(window)
        , m_settings(settings)
    {
    }

    /// Gives the window its remembered place, as far as the screens of today have it.
    void restore();
    /// The window is on the screen, where the desktop has put it.
    void opened();
    /// Stores the place, if the user has changed it.
    void keep();

private:
    QRect place() const;

    QWidget &m_window;
    clsAppProperties &m_settings;
    QRect m_opened;
};
