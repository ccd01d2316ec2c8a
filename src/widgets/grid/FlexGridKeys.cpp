#include "widgets/grid/FlexGridKeys.h"

#include <QKeyEvent>

#include <array>

namespace {

struct Pair
{
    int key;
    int number;
};

constexpr std::array Numbers{
    Pair{Qt::Key_Backspace, 8}, Pair{Qt::Key_Tab, 9},         Pair{Qt::Key_Backtab, 9}, Pair{Qt::Key_Clear, 12},
    Pair{Qt::Key_Return, 13},   Pair{Qt::Key_Enter, 13},      Pair{Qt::Key_Shift, 16},  Pair{Qt::Key_Control, 17},
    Pair{Qt::Key_Alt, 18},      Pair{Qt::Key_AltGr, 18},      Pair{Qt::Key_Pause, 19},  Pair{Qt::Key_CapsLock, 20},
    Pair{Qt::Key_Escape, 27},   Pair{Qt::Key_Space, 32},      Pair{Qt::Key_PageUp, 33}, Pair{Qt::Key_PageDown, 34},
    Pair{Qt::Key_End, 35},      Pair{Qt::Key_Home, 36},       Pair{Qt::Key_Left, 37},   Pair{Qt::Key_Up, 38},
    Pair{Qt::Key_Right, 39},    Pair{Qt::Key_Down, 40},       Pair{Qt::Key_Print, 44},  Pair{Qt::Key_Insert, 45},
    Pair{Qt::Key_Delete, 46},   Pair{Qt::Key_Help, 47},       Pair{Qt::Key_Meta, 91},   Pair{Qt::Key_Menu, 93},
    Pair{Qt::Key_NumLock, 144}, Pair{Qt::Key_ScrollLock, 145}};

} // namespace

namespace FlexGridKeys {

int virtualKey(const QKeyEvent &event)
{
    const int key = event.key();
    for (const Pair &pair : Numbers) {
        if (pair.key == key)
            return pair.number;
    }
    if (key >= Qt::Key_F1 && key <= Qt::Key_F24)
        return 112 + key - Qt::Key_F1;
    const bool keypad = event.modifiers() & Qt::KeypadModifier;
    if (key >= Qt::Key_0 && key <= Qt::Key_9)
        return (keypad ? 96 : 48) + key - Qt::Key_0;
    return key >= Qt::Key_A && key <= Qt::Key_Z ? key : 0;
}

int shiftBits(Qt::KeyboardModifiers modifiers)
{
    return (modifiers & Qt::ShiftModifier ? 1 : 0) | (modifiers & Qt::ControlModifier ? 2 : 0) |
           (modifiers & Qt::AltModifier ? 4 : 0);
}

int buttonBits(Qt::MouseButtons buttons)
{
    return (buttons & Qt::LeftButton ? 1 : 0) | (buttons & Qt::RightButton ? 2 : 0) |
           (buttons & Qt::MiddleButton ? 4 : 0);
}

bool typesCharacter(const QKeyEvent &event)
{
    const QString text = event.text();
    if (text.isEmpty())
        return false;
    const char16_t first = text.at(0).unicode();
    const Qt::KeyboardModifiers chord = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    const bool typesByAltGr = chord == (Qt::ControlModifier | Qt::AltModifier) && first > 32;
    if (chord && !typesByAltGr)
        return false;
    return first == 8 || first == 13 || first == 27 || (first >= 32 && first != 127);
}

} // namespace FlexGridKeys
