#pragma once

#include <QTemporaryDir>

/// Gives a test program a home of its own: every XDG folder points into a temporary one that goes with the object,
/// and Qt draws on the offscreen platform. Create it before the application object.
class TestEnvironment
{
public:
    TestEnvironment();
    bool isValid() const { return m_home.isValid(); }

private:
    QTemporaryDir m_home;
};
