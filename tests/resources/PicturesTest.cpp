#include "resources/Pictures.h"

/// The colours that cover pixels of a picture wholly.
static QSet<QRgb> colours(const QImage &image)
{
    const auto *pixels = reinterpret_cast<const QRgb *>(image.constBits());
    QSet<QRgb> found(pixels, pixels + image.width() * image.height());
    found.removeIf([](QRgb colour) { return qAlpha(colour) < 255; });
    return found;
}

TEST(Pictures, EveryNumberHasItsOwnInTheGivenColoursAndOthersHaveNone)
{
    QList<QImage> drawn;
    for (int number = PictureNew; number <= PictureSpeak; ++number) {
        drawn.append(drawPicture(number, 96, Qt::black, Qt::red));
        EXPECT_TRUE(drawn.indexOf(drawn.last()) == number - 1 && !picture(number).isNull());
        const QSet<QRgb> white = colours(drawPicture(number, 96, Qt::white, Qt::white));
        EXPECT_TRUE(number >= PictureRight // which have colours of their own
                        ? !white.isEmpty()
                        : white == QSet<QRgb>{0xFFFFFFFF} && colours(drawn.last()).contains({0xFF000000, 0xFFFF0000}));
    }
    EXPECT_EQ(inkOf(drawn[PictureMaximize - 1], Qt::transparent), QRect(8, 12, 80, 72));
    for (const int number : {0, -1, PictureSpeak + 1})
        EXPECT_TRUE(picture(number).isNull() && colours(drawPicture(number, 96, Qt::black, Qt::red)).isEmpty());
}

TEST(Pictures, IconsFollowThePaletteAndTheDirectionOfReading)
{
    QPalette palette;
    palette.setColor(QPalette::WindowText, 0x312010U);
    palette.setColor(QPalette::HighlightedText, Qt::yellow);
    palette.setColor(QPalette::Disabled, QPalette::WindowText, Qt::gray);
    QGuiApplication::setPalette(palette);
    const std::tuple<int, Qt::LayoutDirection, QIcon::Mode, int, QColor, QColor> cases[] = {
        {PictureNext, Qt::LeftToRight, QIcon::Normal, PictureNext, 0x312010U, 0x2F86E0U},
        {PictureNext, Qt::RightToLeft, QIcon::Active, PicturePrevious, 0x312010U, 0x305378U},
        {PicturePrevious, Qt::RightToLeft, QIcon::Disabled, PictureNext, Qt::gray, Qt::gray},
        {PictureNew, Qt::RightToLeft, QIcon::Selected, PictureNew, Qt::yellow, Qt::yellow}};
    for (const auto &[number, direction, mode, shown, line, accent] : cases) {
        QGuiApplication::setLayoutDirection(direction);
        EXPECT_EQ(picture(number).pixmap(96, mode).toImage(), drawPicture(shown, 96, line, accent)) << mode;
        EXPECT_EQ(picture(number).pixmap(96).cacheKey(), picture(number).pixmap(96).cacheKey()) << "drawn once";
    }
}
