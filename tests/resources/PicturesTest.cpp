#include "resources/Pictures.h"
#include "resources/ResourceFiles.h"

namespace {

/// The colours that cover pixels of the image wholly.
QSet<QRgb> colours(const QImage &image)
{
    QSet<QRgb> found;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (qAlpha(image.pixel(x, y)) == 255)
                found.insert(image.pixel(x, y));
    return found;
}

TEST(Pictures, EveryNumberHasItsOwnInTheGivenColoursAndOthersHaveNone)
{
    const QColor line(Qt::black), accent(Qt::red);
    QList<QImage> drawn;
    for (int number = PictureNew; number <= PictureSpeak; ++number) {
        drawn.append(drawPicture(number, 96, line, accent));
        EXPECT_EQ(drawn.indexOf(drawn.last()), number - 1);
        const QSet<QRgb> used = colours(drawn.last());
        EXPECT_FALSE(used.isEmpty()) << "picture " << number;
        if (number >= PictureRight)
            continue; // these have colours of their own
        EXPECT_TRUE(used.contains(line.rgb()) && used.contains(accent.rgb())) << "picture " << number;
        for (const QRgb colour : used)
            EXPECT_TRUE(qGreen(colour) == 0 && qBlue(colour) == 0) << "picture " << number;
    }
    for (const int number : {0, -1, PictureSpeak + 1})
        EXPECT_TRUE(colours(drawPicture(number, 24, line, accent)).isEmpty());
}

TEST(Resources, ErrorSoundIsPlainPcm)
{
    const QByteArray sound = ResourceFiles::contents(ResourceFiles::ErrorSound);
    ASSERT_GT(sound.size(), 44);
    EXPECT_EQ(sound.first(4) + sound.mid(8, 8) + sound.mid(20, 4), QByteArray("RIFFWAVEfmt \1\0\1\0", 16));
}

} // namespace
