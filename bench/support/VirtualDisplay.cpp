#include "support/VirtualDisplay.h"

#include <QDir>
#include <QThread>

#include <xcb/xcb.h>

#include <cstdlib>
#include <cstring>

namespace {

constexpr int Patience = 30000;         // milliseconds
constexpr int SmallestMainWindow = 300; // pixels

template <typename T> using Owned = std::unique_ptr<T, decltype(&std::free)>;

Owned<xcb_generic_event_t> nextEvent(xcb_connection_t *connection)
{
    xcb_flush(connection);
    Owned<xcb_generic_event_t> event(xcb_wait_for_event(connection), &std::free);
    if (!event)
        qFatal("The display is gone");
    return event;
}

int kind(const xcb_generic_event_t &event)
{
    constexpr int SentByAClient = 0x80;
    return event.response_type & ~SentByAClient;
}

} // namespace

VirtualDisplay::VirtualDisplay()
{
    m_server.start(QStringLiteral("Xvfb"),
                   {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"), QStringLiteral("0"),
                    QStringLiteral("1280x800x24"), QStringLiteral("-nolisten"), QStringLiteral("tcp")});
    if (!m_server.waitForReadyRead(Patience))
        qFatal("Xvfb does not start");
    setUpEnvironment(m_server.readLine().trimmed());

    m_connection = xcb_connect(qPrintable(m_environment.value(QStringLiteral("DISPLAY"))), nullptr);
    if (xcb_connection_has_error(m_connection))
        qFatal("Xvfb does not answer");
    m_root = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data->root;
    const uint32_t wanted = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
    xcb_change_window_attributes(m_connection, m_root, XCB_CW_EVENT_MASK, &wanted);
}

VirtualDisplay::~VirtualDisplay()
{
    xcb_disconnect(m_connection);
    end(m_server);
}

void VirtualDisplay::setUpEnvironment(const QByteArray &displayNumber)
{
    m_environment.insert(QStringLiteral("PATH"), qEnvironmentVariable("PATH"));
    m_environment.insert(QStringLiteral("LANG"), QStringLiteral("C.UTF-8"));
    m_environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
    m_environment.insert(QStringLiteral("DISPLAY"), QLatin1Char(':') + QString::fromLatin1(displayNumber));
    for (const char *folder :
         {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR"}) {
        const QString name = QString::fromLatin1(folder);
        QDir(home()).mkdir(name);
        QFile::setPermissions(home() + QLatin1Char('/') + name, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        m_environment.insert(name, home() + QLatin1Char('/') + name);
    }
}

std::unique_ptr<QProcess> VirtualDisplay::start(const QString &program, const QStringList &arguments)
{
    auto process = std::make_unique<QProcess>();
    process->setProcessEnvironment(m_environment);
    process->setProcessChannelMode(QProcess::ForwardedChannels);
    process->start(program, arguments);
    if (!process->waitForStarted(Patience))
        qFatal("%s does not start", qPrintable(program));
    waitForDrawing(waitForWindow());
    return process;
}

void VirtualDisplay::end(QProcess &program)
{
    program.terminate();
    if (!program.waitForFinished(Patience))
        qFatal("%s does not end", qPrintable(program.program()));
}

uint32_t VirtualDisplay::waitForWindow() const
{
    while (true) {
        const auto event = nextEvent(m_connection);
        if (kind(*event) != XCB_MAP_NOTIFY)
            continue;
        const uint32_t window = reinterpret_cast<const xcb_map_notify_event_t &>(*event).window;
        const auto request = xcb_get_geometry(m_connection, window);
        const Owned<xcb_get_geometry_reply_t> shape(xcb_get_geometry_reply(m_connection, request, nullptr), &std::free);
        if (shape && shape->width > SmallestMainWindow)
            return window;
    }
}

void VirtualDisplay::waitForDrawing(uint32_t window) const
{
    constexpr int16_t Inside = 250; // pixels from the upper left corner, below menus and toolbars
    while (true) {
        const auto request = xcb_get_image(m_connection, XCB_IMAGE_FORMAT_Z_PIXMAP, window, Inside, Inside, 1, 1, ~0U);
        const Owned<xcb_get_image_reply_t> image(xcb_get_image_reply(m_connection, request, nullptr), &std::free);
        if (!image)
            qFatal("The window went away");
        constexpr uint8_t Black[3] = {};
        if (std::memcmp(xcb_get_image_data(image.get()), Black, sizeof Black) != 0)
            return;
        QThread::usleep(200);
    }
}
