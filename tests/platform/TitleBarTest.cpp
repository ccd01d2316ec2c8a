#include "platform/TitleBar.h"

TEST(TitleBar, HasAQuestionMarkWhereTheDesktopDrawsOne)
{
    const std::pair<const char *, const char *> with[] = {{"xcb", "KDE"}, {"xcb", "ubuntu:KDE"}, {"windows", ""}};
    const std::pair<const char *, const char *> without[] = {{"xcb", "GNOME"}, {"xcb", ""}, {"wayland", "KDE"}};
    for (const auto &[platform, desktop] : with)
        EXPECT_TRUE(TitleBar::hasHelpButton(platform, desktop)) << platform;
    for (const auto &[platform, desktop] : without)
        EXPECT_FALSE(TitleBar::hasHelpButton(platform, desktop)) << platform << desktop;
}
