#include "platform/DarkWish.h"
#include "platform/TitleBar.h"

TEST(Desktop, TitleBarHasAQuestionMarkWhereTheDesktopDrawsOne)
{
    const auto has = TitleBar::hasHelpButton;
    EXPECT_TRUE(has("xcb", "KDE") && has("xcb", "ubuntu:KDE") && has("windows", ""));
    EXPECT_FALSE(has("xcb", "GNOME") || has("xcb", "") || has("wayland", "KDE"));
}

TEST(Desktop, DarkWindowsAreWishedForOnGnomeAndLeftToAThemeOfTheUsers)
{
    const QTemporaryDir config;
    ASSERT_EQ(::chmod(qPrintable(config.path()), 0755), 0);
    const std::tuple<const char *, const char *, const char *, const char *> cases[] = {
        {"ubuntu:GNOME", "", "prefer-dark", "Yaru:dark"},
        {"GNOME", "", "default", ""},
        {"KDE", "", "prefer-dark", ""},
        {"GNOME", "Mine", "prefer-dark", "Mine"}};
    for (const auto &[desktop, theme, scheme, meanwhile] : cases) {
        QDir(config.path()).mkpath("glib-2.0/settings");
        writeFile(config.filePath("glib-2.0/settings/keyfile"),
                  QByteArray("[org/gnome/desktop/interface]\ngtk-theme='Yaru'\ncolor-scheme='") + scheme + "'\n");
        EXPECT_TRUE(OrdinaryUser::run([&, desktop = desktop, theme = theme, meanwhile = meanwhile] {
            qputenv("GSETTINGS_BACKEND", "keyfile");
            qputenv("XDG_CONFIG_HOME", config.path().toUtf8());
            qputenv("XDG_DATA_DIRS", "/usr/share");
            qputenv("XDG_CURRENT_DESKTOP", desktop);
            if (*theme)
                qputenv("GTK_THEME", theme);
            auto wish = std::make_unique<DarkWish>();
            const bool right = qgetenv("GTK_THEME") == meanwhile;
            wish.reset();
            return right && qgetenv("GTK_THEME") == theme;
        })) << desktop
            << theme << scheme;
    }
}
