#include "tools/rules/DialogPlace.h"

#include <algorithm>

namespace {

QPoint within(const QRect &screen, const QSize &size, const QPoint &topLeft)
{
    const int left = std::min(topLeft.x(), screen.right() + 1 - size.width());
    const int top = std::min(topLeft.y(), screen.bottom() + 1 - size.height());
    return {std::max(left, screen.left()), std::max(top, screen.top())};
}

qint64 hiddenArea(const QRect &keepFree, const QRect &dialog)
{
    const QRect hidden = keepFree & dialog;
    return qint64(hidden.width()) * hidden.height();
}

} // namespace

namespace DialogPlace {

QPoint topLeft(const Request &request)
{
    const QSize size = request.dialog;
    const int right = request.owner.right() + 1 - size.width();
    const int bottom = request.owner.bottom() + 1 - size.height();
    const QRect &free = request.keepFree;
    QPoint best;
    qint64 least = -1;
    for (const QPoint &wanted :
         {request.preferred, QPoint(right, bottom), QPoint(right, request.owner.top()),
          QPoint(request.owner.left(), bottom), request.owner.topLeft(),
          QPoint(request.preferred.x(), free.bottom() + 1), QPoint(request.preferred.x(), free.top() - size.height()),
          QPoint(free.right() + 1, request.preferred.y()), QPoint(free.left() - size.width(), request.preferred.y())}) {
        const QPoint place = within(request.screen, size, wanted);
        const qint64 hidden = hiddenArea(free, QRect(place, size));
        if (least < 0 || hidden < least) {
            best = place;
            least = hidden;
        }
    }
    return best;
}

} // namespace DialogPlace
