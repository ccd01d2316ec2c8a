#include "platform/DarkWish.h"

#include <QLibrary>

namespace {

constexpr char ThemeVariable[] = "GTK_THEME"; ///< stands over the desktop's theme

/// What the desktop's settings hold. The library is asked for at run time: other desktops need none.
class DesktopSettings
{
public:
    DesktopSettings()
        : m_gio(QStringLiteral("gio-2.0"), 0)
    {
        const auto source = function<void *()>("g_settings_schema_source_get_default");
        const auto lookUp = function<void *(void *, const char *, int)>("g_settings_schema_source_lookup");
        const auto open = function<void *(const char *)>("g_settings_new");
        if (!source || !lookUp || !open || !source())
            return;
        constexpr char Interface[] = "org.gnome.desktop.interface";
        m_schema = lookUp(source(), Interface, 1);
        if (m_schema)
            m_settings = open(Interface); // which would end the program without a schema
    }

    QByteArray text(const char *key) const
    {
        const auto hasKey = function<int(void *, const char *)>("g_settings_schema_has_key");
        const auto get = function<char *(void *, const char *)>("g_settings_get_string");
        const auto release = function<void(void *)>("g_free");
        if (!m_settings || !hasKey || !get || !release || !hasKey(m_schema, key))
            return {};
        char *value = get(m_settings, key);
        QByteArray text(value);
        release(value);
        return text;
    }

private:
    template <typename Function> Function *function(const char *name) const
    {
        return reinterpret_cast<Function *>(m_gio.resolve(name));
    }

    mutable QLibrary m_gio;
    void *m_schema = nullptr; ///< this and the next live as long as the program, as GTK's own do
    void *m_settings = nullptr;
};

} // namespace

DarkWish::DarkWish()
{
    if (!qgetenv("XDG_CURRENT_DESKTOP").split(':').contains("GNOME") || qEnvironmentVariableIsSet(ThemeVariable))
        return;
    const DesktopSettings settings;
    if (settings.text("color-scheme") == "prefer-dark")
        m_isTold = qputenv(ThemeVariable, settings.text("gtk-theme") + ":dark");
}

/// What the program starts does not inherit it.
DarkWish::~DarkWish()
{
    if (m_isTold)
        qunsetenv(ThemeVariable);
}
