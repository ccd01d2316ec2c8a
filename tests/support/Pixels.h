#pragma once

/// The smallest rectangle around the pixels in which two pictures of one size differ; empty when they are alike.
inline QRect difference(const QImage &one, const QImage &other)
{
    QRegion differing;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            if (one.pixel(x, y) != other.pixel(x, y))
                differing += QRect(x, y, 1, 1);
        }
    }
    return differing.boundingRect();
}

/// Where something is drawn on a ground of one colour.
inline QRect inkOf(const QImage &image, const QColor &ground)
{
    QImage blank(image);
    blank.fill(ground);
    return difference(image, blank);
}
