#include "app/WindowArrangement.h"

#include <algorithm>

namespace {

constexpr int DropMargin = 52;

} // namespace

namespace WindowLayout {

std::vector<QRect> tiles(const QRect &area, int count, bool horizontal)
{
    std::vector<QRect> places;
    places.reserve(size_t(count));
    for (int i = 0; i < count; ++i) {
        const int extent = horizontal ? area.height() : area.width();
        const int from = extent * i / count;
        const int to = extent * (i + 1) / count;
        places.push_back(horizontal ? QRect(area.left(), area.top() + from, area.width(), to - from)
                                    : QRect(area.left() + from, area.top(), to - from, area.height()));
    }
    return places;
}

QRect nextPlace(const QRect &area, int number, int step)
{
    const QSize size = area.size() * 3 / 4;
    const int room = std::min(area.width() - size.width(), area.height() - size.height());
    const int offset = number % (room / step + 1) * step;
    return {area.topLeft() + QPoint(offset, offset), size};
}

std::vector<QRect> cascade(const QRect &area, int count, int step)
{
    std::vector<QRect> places;
    places.reserve(size_t(count));
    for (int i = 0; i < count; ++i)
        places.push_back(nextPlace(area, i, step));
    return places;
}

std::vector<QRect> icons(const QRect &area, int count, const QSize &size)
{
    const int perRow = std::max(1, area.width() / std::max(1, size.width()));
    std::vector<QRect> places;
    places.reserve(size_t(count));
    for (int i = 0; i < count; ++i) {
        const QPoint corner(area.left() + i % perRow * size.width(),
                            area.bottom() + 1 - (i / perRow + 1) * size.height());
        places.emplace_back(corner, size);
    }
    return places;
}

bool acceptsDrop(int y, int toolbarHeight, int windowHeight, int statusBarHeight)
{
    return y > toolbarHeight && y < windowHeight - statusBarHeight - DropMargin;
}

} // namespace WindowLayout
