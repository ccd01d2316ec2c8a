#pragma once

/// Lets GTK 3, from which the toolkit takes colours and dialogs on GNOME's desktop, begin in dark colours where the
/// user has chosen dark windows there: GTK 3 itself knows only themes. Lives while the application connects to the
/// desktop, and while no other thread reads the environment when it begins and ends.
class DarkWish
{
public:
    DarkWish();
    ~DarkWish();
    DarkWish(const DarkWish &) = delete;
    DarkWish &operator=(const DarkWish &) = delete;

private:
    bool m_isTold = false;
};
