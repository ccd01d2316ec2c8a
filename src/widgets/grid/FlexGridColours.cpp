#include "widgets/grid/FlexGridColours.h"

#include "services/desktop/Contrast.h"
#include "widgets/grid/FlexGridLook.h"

namespace {

QColor rgb(int value)
{
    return {value & 0xFF, (value >> 8) & 0xFF, (value >> 16) & 0xFF};
}

bool isDark(const QColor &ground)
{
    return Contrast::between(ground, Qt::white) > Contrast::between(ground, Qt::black);
}

} // namespace

namespace FlexGridColours {

QColor ground(int value, const QPalette &palette)
{
    if (value >= 0)
        return rgb(value);
    switch (value) {
    case FlexGridLook::WindowColour:
        return palette.base().color();
    case FlexGridLook::WindowTextColour:
        return palette.text().color();
    case FlexGridLook::HighlightColour:
        return palette.highlight().color();
    case FlexGridLook::HighlightTextColour:
        return palette.highlightedText().color();
    case FlexGridLook::ButtonFaceColour:
        return palette.button().color();
    case FlexGridLook::ButtonTextColour:
        return palette.buttonText().color();
    case FlexGridLook::ButtonShadowColour:
        return Contrast::mixed(palette.button().color(), palette.buttonText().color(), 0.25);
    case FlexGridLook::LightLineColour:
        return Contrast::mixed(palette.base().color(), palette.text().color(), 0.18);
    default:
        return palette.window().color();
    }
}

QColor text(int value, const QPalette &palette, const QColor &ground)
{
    switch (value) {
    case FlexGridLook::HighlightTextColour:
        return palette.highlightedText().color();
    case FlexGridLook::ButtonTextColour:
        return palette.buttonText().color();
    default:
        break;
    }
    const QColor windowText = palette.text().color();
    const bool dark = isDark(ground);
    if (value < 0 || (value == 0 && dark))
        return windowText;
    return dark ? Contrast::readable(rgb(value), ground, Qt::white) : rgb(value);
}

} // namespace FlexGridColours
