#include "platform/ClipboardOwner.h"

#include <thread>
#include <xcb/xcb.h>

/// Another program on the display, which the clipboard belongs to.
struct OtherProgram
{
    template <class Type> using Owned = std::unique_ptr<Type, decltype(&std::free)>;

    OtherProgram()
    {
        const Owned<xcb_intern_atom_reply_t> clipboard(
            xcb_intern_atom_reply(connection, xcb_intern_atom(connection, 0, 9, "CLIPBOARD"), nullptr), &std::free);
        const xcb_screen_t &screen = *xcb_setup_roots_iterator(xcb_get_setup(connection)).data;
        xcb_create_window(connection, 0, window, screen.root, 0, 0, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY, 0, 0,
                          nullptr);
        xcb_set_selection_owner(connection, window, clipboard->atom, XCB_CURRENT_TIME);
        finish();
    }
    ~OtherProgram() { xcb_disconnect(connection); }
    /// Waits until the display has done what it was told.
    void finish() { std::free(xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr)); }
    /// Waits for the next question and, after some thought, answers it.
    void answer()
    {
        const Owned<xcb_generic_event_t> event(xcb_wait_for_event(connection), &std::free);
        const auto &asked = reinterpret_cast<const xcb_selection_request_event_t &>(*event);
        QThread::msleep(30);
        hasAnswered = true;
        const xcb_selection_notify_event_t answer{
            XCB_SELECTION_NOTIFY, 0, 0, asked.time, asked.requestor, asked.selection, asked.target, asked.property};
        xcb_send_event(connection, 0, asked.requestor, 0, reinterpret_cast<const char *>(&answer));
        finish();
    }

    xcb_connection_t *connection = xcb_connect(nullptr, nullptr);
    xcb_window_t window = xcb_generate_id(connection);
    std::atomic<bool> hasAnswered = false;
};

TEST(ClipboardOwner, IsGivenASecondOnX11)
{
    QProcess display;
    display.start("Xvfb", {"-displayfd", "1", "-nolisten", "tcp"});
    ASSERT_TRUE(display.waitForReadyRead());
    EXPECT_TRUE(OrdinaryUser::run([number = display.readAll().trimmed()] {
        qputenv("DISPLAY", ':' + number);
        qputenv("QT_QPA_PLATFORM", "xcb");
        int count = 1;
        char name[] = "asker", *arguments[] = {name};
        const QGuiApplication application(count, arguments);
        ClipboardOwner owner;
        EXPECT_TRUE(owner.answers()) << "nobody";
        OtherProgram other;
        QElapsedTimer clock;
        clock.start();
        EXPECT_TRUE(!owner.answers() && clock.elapsed() >= 1000 && clock.elapsed() < 3000);
        other.answer(); // too late
        other.hasAnswered = false;
        std::thread thread([&other] { other.answer(); });
        EXPECT_TRUE(owner.answers() && other.hasAnswered);
        thread.join();
        QGuiApplication::clipboard()->setText("mine");
        EXPECT_TRUE(owner.answers());
        return !::testing::Test::HasFailure();
    }));
    display.kill();
    display.waitForFinished();
}
