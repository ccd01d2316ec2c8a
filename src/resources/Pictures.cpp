#include "resources/Pictures.h"

#include "resources/ResourceFiles.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>
#include <QSvgRenderer>

#include <algorithm>
#include <array>

namespace {

/// The pictures' files, by number from 1 on.
// clang-format off
constexpr std::array Files = {
    "new", "open", "save", "saveas", "close", "pagesetup", "preview", "print", "practice", "multiplechoice",
    "questionanswer", "exit", "undo", "cut", "copy", "paste", "clear", "insert", "delete", "find", "replace",
    "languages", "mode1", "mode2", "mode3", "mode4", "mode5", "rowheight", "columnwidth", "font", "sort", "cascade",
    "tilehorizontally", "tilevertically", "arrangeicons", "helptopics", "whatsthis", "about", "previous", "next",
    "weblink", "maillink", "home", "navigation", "zoomin", "zoomout", "zoomnormal", "right", "wrong", "gridcursor",
    "glosaria", "document", "more", "minimize", "maximize", "restore",
    "checked",
    "choices",
    "speak",
};
// clang-format on

/// The colour that the files give to what stands out; it reads on light and on dark grounds.
constexpr QLatin1String Accent("#2f86e0");

bool isPicture(int number)
{
    return number >= 1 && number <= int(Files.size());
}

/// Arrows point the way that the eye goes, and windows stand as they do: mirrored where lines begin at the right.
bool followsReading(int number)
{
    constexpr std::array Following = {PictureUndo,       PictureCascade, PicturePrevious,      PictureNext,
                                      PictureNavigation, PictureMore,    PictureMultipleChoice};
    return std::find(Following.begin(), Following.end(), number) != Following.end();
}

QByteArray pictureSource(int number)
{
    const QByteArray name = QByteArray("pictures/") + Files[size_t(number - 1)] + ".svg";
    return ResourceFiles::contents(QLatin1String(name));
}

QColor mixed(const QColor &one, const QColor &other)
{
    return QColor::fromRgbF((one.redF() + other.redF()) / 2, (one.greenF() + other.greenF()) / 2,
                            (one.blueF() + other.blueF()) / 2);
}

/// Draws one picture in the palette's colours of the moment. Under the pointer the accent moves towards the text
/// colour, so that it stands out from the highlight of a menu as well.
class PictureEngine : public QIconEngine
{
public:
    explicit PictureEngine(int number)
        : m_number(number)
        , m_mirrored(QGuiApplication::isRightToLeft() && followsReading(number))
    {
    }

    QIconEngine *clone() const override { return new PictureEngine(*this); }
    bool isNull() override { return false; }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override
    {
        const QSize size = rect.size() * painter->device()->devicePixelRatio();
        painter->drawPixmap(rect, pixmap(size, mode, state));
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State) override
    {
        const auto [line, accent] = colours(mode);
        const int pixels = std::min(size.width(), size.height());
        const QString key = QStringLiteral("picture %1 %2 %3 %4 %5")
                                .arg(m_number)
                                .arg(pixels)
                                .arg(m_mirrored)
                                .arg(line.name(QColor::HexArgb), accent.name(QColor::HexArgb));
        QPixmap drawn;
        if (!QPixmapCache::find(key, &drawn)) {
            drawn = QPixmap::fromImage(drawPicture(m_number, pixels, line, accent).mirrored(m_mirrored, false));
            QPixmapCache::insert(key, drawn);
        }
        return drawn;
    }

private:
    static std::pair<QColor, QColor> colours(QIcon::Mode mode)
    {
        const QPalette palette = QGuiApplication::palette();
        const QColor accent((QString(Accent)));
        const QColor text = palette.color(QPalette::Active, QPalette::WindowText);
        switch (mode) {
        case QIcon::Disabled: {
            const QColor grey = palette.color(QPalette::Disabled, QPalette::WindowText);
            return {grey, grey};
        }
        case QIcon::Selected: {
            const QColor selected = palette.color(QPalette::Active, QPalette::HighlightedText);
            return {selected, selected};
        }
        case QIcon::Active:
            return {text, mixed(accent, text)};
        case QIcon::Normal:
            break;
        }
        return {text, accent};
    }

    int m_number;
    bool m_mirrored;
};

} // namespace

QIcon picture(int number)
{
    return isPicture(number) ? QIcon(new PictureEngine(number)) : QIcon();
}

QImage drawPicture(int number, int pixels, const QColor &line, const QColor &accent)
{
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    if (!isPicture(number))
        return image;
    QByteArray source = pictureSource(number);
    source.replace("currentColor", line.name().toLatin1());
    source.replace(QByteArray(Accent.data(), Accent.size()), accent.name().toLatin1());
    QSvgRenderer renderer(source);
    QPainter painter(&image);
    renderer.render(&painter, QRectF(0, 0, pixels, pixels));
    return image;
}
