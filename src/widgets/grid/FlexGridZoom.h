#pragma once

#include <QFont>

/// How large a grid is shown: the one place where its twips become pixels of the screen and its font the one that is
/// seen. A view only; nothing that is stored or printed knows of it.
class FlexGridZoom
{
public:
    static constexpr int Smallest = 50; ///< percent, like the others
    static constexpr int Normal = 100;
    static constexpr int Largest = 400;

    /// The percentage that so many steps up (or down, if negative) lead to, within the limits.
    static int stepped(int percent, int steps);

    int percent() const { return m_percent; }
    /// What is out of range becomes the nearest limit.
    void setPercent(int percent);
    double factor() const { return m_percent / 100.0; }

    /// A length that shows at the normal size shows at every other one.
    int toPixelsX(int twips) const;
    int toPixelsY(int twips) const;
    int fromPixelsX(int pixels) const;
    int fromPixelsY(int pixels) const;
    /// So many pixels of the normal size, rounded up.
    int scaled(int pixels) const;
    QFont scaled(const QFont &font) const;

private:
    int m_percent = Normal;
};
