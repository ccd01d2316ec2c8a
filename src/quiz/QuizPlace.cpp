#include "quiz/QuizPlace.h"

#include "services/desktop/ScreenFit.h"
#include "services/settings/clsAppProperties.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

void QuizPlace::restore()
{
    const QRect place = m_settings.QuizWindow();
    if (place.isEmpty())
        return;
    m_window.resize(place.size().boundedTo(ScreenFit::room(m_window).size()));
    const QScreen *screen = QGuiApplication::screenAt(place.center());
    if (screen && screen->availableGeometry().contains(place.topLeft()))
        m_window.move(place.topLeft());
}

void QuizPlace::opened()
{
    if (m_opened.isNull())
        m_opened = place();
}

void QuizPlace::keep()
{
    if (!m_opened.isNull() && !m_window.isMaximized() && place() != m_opened)
        m_settings.setQuizWindow(place());
}

/// As move() and resize() take it: the corner of the frame and the size within.
QRect QuizPlace::place() const
{
    return {m_window.pos(), m_window.size()};
}
