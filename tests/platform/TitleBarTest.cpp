#include "platform/TitleBar.h"

TEST(TitleBar, HasAQuestionMarkWhereTheDesktopDrawsOne)
{
    const auto has = TitleBar::hasHelpButton;
    EXPECT_TRUE(has("xcb", "KDE") && has("xcb", "ubuntu:KDE") && has("windows", ""));
    EXPECT_FALSE(has("xcb", "GNOME") || has("xcb", "") || has("wayland", "KDE"));
}
