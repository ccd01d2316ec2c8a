#include "widgets/grid/FlexGridColours.h"

#include "widgets/grid/FlexGridLook.h"

namespace {

constexpr double ReadableContrast = 3.0;

QColor rgb(int value)
{
    return {value & 0xFF, (value >> 8) & 0xFF, (value >> 16) & 0xFF};
}

QColor mixed(const QColor &a, const QColor &b, double share)
{
    const auto mix = [share](double x, double y) { return float(x + (y - x) * share); };
    return QColor::fromRgbF(mix(a.redF(), b.redF()), mix(a.greenF(), b.greenF()), mix(a.blueF(), b.blueF()));
}

double brightness(const QColor &colour)
{
    return 0.2126 * colour.redF() + 0.7152 * colour.greenF() + 0.0722 * colour.blueF();
}

double contrast(const QColor &a, const QColor &b)
{
    const double x = brightness(a) * brightness(a);
    const double y = brightness(b) * brightness(b);
    return x > y ? (x + 0.05) / (y + 0.05) : (y + 0.05) / (x + 0.05);
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
        return mixed(palette.button().color(), palette.buttonText().color(), 0.25);
    case FlexGridLook::LightLineColour:
        return mixed(palette.base().color(), palette.text().color(), 0.18);
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
    const bool dark = brightness(ground) < 0.5;
    if (value < 0 || (value == 0 && dark))
        return windowText;
    QColor colour = rgb(value);
    for (double share = 0.2; dark && share <= 1.0 && contrast(colour, ground) < ReadableContrast; share += 0.2)
        colour = mixed(rgb(value), QColor(Qt::white), share);
    return colour;
}

} // namespace FlexGridColours
