#include "platform/TitleBar.h"

TEST(TitleBar, HasAQuestionMarkWhereTheDesktopDrawsOne)
{
    for (const auto &[platform, desktop, has] : {std::tuple("xcb", "KDE", true),
                                                 {"xcb", "ubuntu:KDE", true},
                                                 {"windows", "", true},
                                                 {"xcb", "GNOME", false},
                                                 {"xcb", "", false},
                                                 {"wayland", "KDE", false}})
        EXPECT_EQ(TitleBar::hasHelpButton(platform, desktop), has) << platform << desktop;
}
