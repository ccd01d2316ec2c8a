#include "resources/Pictures.h"
#include "resources/ResourceFiles.h"

#include <gtest/gtest.h>

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

TEST(Pictures, StateCarryingButtonsKeepTheirNumbers)
{
    EXPECT_EQ(PicturePractice, 9);
    EXPECT_EQ(PictureMultipleChoice, 10);
    EXPECT_EQ(PictureQuestionAnswer, 11);
    EXPECT_EQ(PictureMode1, 22 + 1);
    EXPECT_EQ(PictureMode5, 22 + 5);
}

TEST(Pictures, TheFamilyIsDrawnInTheGivenColoursOnly)
{
    const QColor line(Qt::black), accent(Qt::red);
    for (int number = 1; number < PictureRight; ++number) {
        const QSet<QRgb> used = colours(drawPicture(number, 96, line, accent));
        EXPECT_TRUE(used.contains(line.rgb()) && used.contains(accent.rgb())) << "picture " << number;
        for (const QRgb colour : used)
            EXPECT_TRUE(qGreen(colour) == 0 && qBlue(colour) == 0) << "picture " << number;
    }
}

TEST(Pictures, EveryNumberHasItsOwnPictureAndOthersHaveNone)
{
    QList<QImage> drawn;
    for (int number = PictureNew; number <= PictureDocument; ++number) {
        drawn.append(drawPicture(number, 24, Qt::black, Qt::blue));
        EXPECT_EQ(drawn.indexOf(drawn.last()), number - 1);
        EXPECT_FALSE(colours(drawPicture(number, 32, Qt::black, Qt::blue)).isEmpty()) << "picture " << number;
    }
    for (const int number : {0, -1, PictureDocument + 1})
        EXPECT_TRUE(colours(drawPicture(number, 24, Qt::black, Qt::blue)).isEmpty());
}

TEST(Resources, ErrorSoundIsPlainPcm)
{
    const QByteArray sound = ResourceFiles::contents(ResourceFiles::ErrorSound);
    ASSERT_GT(sound.size(), 44);
    EXPECT_LT(sound.size(), 40'000);
    EXPECT_EQ(sound.first(4) + sound.mid(8, 8), "RIFFWAVEfmt ");
    EXPECT_EQ(sound.mid(20, 4), QByteArray("\1\0\1\0", 4)) << "format PCM, one channel";
    EXPECT_EQ(sound.at(34), 16) << "bits a sample";
}

} // namespace
