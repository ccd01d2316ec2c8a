#pragma once

#include <QProcess>
#include <QTemporaryDir>

#include <memory>

struct xcb_connection_t;

/// An X display of the measurement's own, without a window manager, and an empty home for the programs that run on it.
/// Ends the process with a message where Xvfb cannot be started.
class VirtualDisplay
{
public:
    VirtualDisplay();
    ~VirtualDisplay();

    /// Starts a program and returns it once its main window has been drawn.
    std::unique_ptr<QProcess> start(const QString &program, const QStringList &arguments);
    /// Asks a program to end and waits until it has.
    static void end(QProcess &program);

    QString home() const { return m_home.path(); }

private:
    void setUpEnvironment(const QByteArray &displayNumber);
    uint32_t waitForWindow() const;
    void waitForDrawing(uint32_t window) const;

    QTemporaryDir m_home;
    QProcess m_server;
    QProcessEnvironment m_environment;
    xcb_connection_t *m_connection = nullptr;
    uint32_t m_root = 0;
};
