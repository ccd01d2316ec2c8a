#include "platform/ClipboardOwner.h"

#include "platform/WaylandDesktop.h"

#include <QClipboard>
#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QMimeData>

#include <cstdlib>
#include <poll.h>
#include <xcb/xcb.h>

namespace {

constexpr int Patience = 1000;        // ms
constexpr int ToolkitsPatience = 900; // ms, a little less than the toolkit's

template <typename Reply> using Owned = std::unique_ptr<Reply, decltype(&std::free)>;
template <typename Reply> Owned<Reply> owned(Reply *reply)
{
    return {reply, &std::free};
}

/// On Wayland an owner can only be asked for the content itself, by the toolkit, which takes one that hangs for one
/// that has an empty text. What it was given it keeps.
bool givesText(const QMimeData &offered)
{
    for (const auto *kind : {"text/plain;charset=utf-8", "text/plain"}) {
        if (!offered.hasFormat(QLatin1String(kind)))
            continue;
        QElapsedTimer clock;
        clock.start();
        return !offered.data(QLatin1String(kind)).isEmpty() || clock.elapsed() < ToolkitsPatience;
    }
    return true;
}

} // namespace

/// A connection of its own to the display: that of the toolkit takes the answers itself. It stays, with its window: an
/// owner that answers late must find who has asked, or it may end with what it holds.
class ClipboardOwner::Asker
{
public:
    Asker()
        : m_connection(xcb_connect(nullptr, &m_screen))
    {
        if (isConnected())
            makeWindow();
    }
    ~Asker() { xcb_disconnect(m_connection); }
    Q_DISABLE_COPY_MOVE(Asker)

    bool isConnected() const { return xcb_connection_has_error(m_connection) == 0; }

    bool hasOwner(xcb_atom_t selection) const
    {
        const auto cookie = xcb_get_selection_owner(m_connection, selection);
        const auto reply = owned(xcb_get_selection_owner_reply(m_connection, cookie, nullptr));
        return reply && reply->owner != XCB_NONE;
    }

    xcb_atom_t atom(const QByteArray &name) const
    {
        const auto cookie = xcb_intern_atom(m_connection, 0, uint16_t(name.size()), name.constData());
        const auto reply = owned(xcb_intern_atom_reply(m_connection, cookie, nullptr));
        return reply ? reply->atom : xcb_atom_t(XCB_ATOM_NONE);
    }

    /// Asks the owner for the kinds of its content.
    void ask(xcb_atom_t selection) const
    {
        while (owned(xcb_poll_for_event(m_connection))) { // what is too late
        }
        xcb_convert_selection(m_connection, m_window, selection, atom("TARGETS"), atom("GLOSARIA_TARGETS"),
                              XCB_CURRENT_TIME);
        xcb_flush(m_connection);
    }

    bool isAnswered(const QDeadlineTimer &deadline) const
    {
        for (;;) {
            while (const auto event = owned(xcb_poll_for_event(m_connection))) {
                if ((event->response_type & 0x7f) == XCB_SELECTION_NOTIFY)
                    return true;
            }
            pollfd connection{xcb_get_file_descriptor(m_connection), POLLIN, 0};
            if (!isConnected() || ::poll(&connection, 1, int(deadline.remainingTime())) == 0)
                return false;
        }
    }

private:
    void makeWindow()
    {
        xcb_screen_iterator_t screens = xcb_setup_roots_iterator(xcb_get_setup(m_connection));
        for (int screen = m_screen; screen > 0 && screens.rem > 1; --screen)
            xcb_screen_next(&screens);
        m_window = xcb_generate_id(m_connection);
        xcb_create_window(m_connection, 0, m_window, screens.data->root, 0, 0, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY, 0,
                          0, nullptr);
    }

    int m_screen = 0;
    xcb_connection_t *m_connection;
    xcb_window_t m_window = XCB_NONE;
};

ClipboardOwner::ClipboardOwner() = default;
ClipboardOwner::~ClipboardOwner() = default;

bool ClipboardOwner::answers()
{
    const QClipboard &toolkits = *QGuiApplication::clipboard();
    if (toolkits.ownsClipboard())
        return true;
    if (WaylandDesktop::isHere())
        return !toolkits.mimeData() || givesText(*toolkits.mimeData());
    return QGuiApplication::platformName() != QLatin1String("xcb") || ownerOnX11Answers();
}

bool ClipboardOwner::ownerOnX11Answers()
{
    if (!m_asker)
        m_asker = std::make_unique<Asker>();
    const xcb_atom_t clipboard = m_asker->isConnected() ? m_asker->atom("CLIPBOARD") : xcb_atom_t(XCB_ATOM_NONE);
    if (clipboard == XCB_ATOM_NONE || !m_asker->hasOwner(clipboard))
        return true;
    m_asker->ask(clipboard);
    return m_asker->isAnswered(QDeadlineTimer(Patience));
}
