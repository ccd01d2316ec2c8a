#include "quiz/MarkedLabel.h"

#include "quiz/QuizColours.h"
#include "services/desktop/Contrast.h"

struct MarkedLabelTest : ::testing::Test
{
    MarkedLabelTest()
    {
        label.resize(300, 60);
        window.show();
    }

    QImage shown(const QString &text, std::vector<MarkedLabel::MarkedPart> parts, const QString &note = {})
    {
        label.setMarkedText(text, std::move(parts), note);
        return label.grab().toImage();
    }
    QRect ink(const QImage &image) { return inkOf(image, label.palette().color(QPalette::Window)); }
    bool has(const QImage &image, const QColor &colour)
    {
        const auto *pixels = reinterpret_cast<const QRgb *>(image.constBits());
        const QRgb wanted = Contrast::readable(colour, label.palette()).rgb();
        return std::count(pixels, pixels + image.sizeInBytes() / 4, wanted) > 4;
    }

    QWidget window;
    MarkedLabel label{&window};
};

TEST_F(MarkedLabelTest, MarksChangeNothingBesideTheMarkedLetters)
{
    using enum MarkedLabel::Mark;
    for (const QString &text : {QStringLiteral("Guten Morgen"), QStringLiteral("سلسبيل سلسبيل")}) {
        const QImage plain = shown(text, {});
        const int width = QFontMetrics(label.font()).horizontalAdvance(text);
        EXPECT_LE((ink(plain).center() - QPoint(width / 2, 30)).manhattanLength(), 8) << "in the middle of its height";
        for (const MarkedLabel::Mark mark : {Surplus, Exchanged, Right}) {
            const QImage marked = shown(text, {{0, 3, mark}});
            const QRect changed = difference(plain, marked);
            EXPECT_LT(10, changed.width());
            EXPECT_TRUE(text.isRightToLeft() ? changed.left() >= width / 2 : changed.right() < width / 2);
            EXPECT_TRUE(has(marked, QuizColours::Right) == (mark == Right) &&
                        has(marked, QuizColours::Wrong) != (mark == Right));
        }
        const auto bottom = [&](auto mark) { return difference(plain, shown(text, {{0, 3, mark}})).bottom(); };
        EXPECT_TRUE(text.isRightToLeft() || bottom(Surplus) < bottom(Exchanged)) << "struck out, or underlined";
        const QRect wedge = difference(plain, shown(text, {{text.size(), 0, Gap}}));
        EXPECT_NEAR(text.isRightToLeft() ? 0 : width, wedge.center().x(), 6);
    }
    EXPECT_NE(shown("Haus", {}), shown("Haus ", {})) << "a blank at the edge shows";
    EXPECT_LT(4, difference(shown("a b", {}), shown("a b", {{1, 1, Right}})).height()) << "and one that is marked";
    window.setLayoutDirection(Qt::RightToLeft);
    EXPECT_LT(280, ink(shown("Haus", {})).right());
}

TEST_F(MarkedLabelTest, TwoLinesAreTakenBeforeTheTextEndsInAnEllipsis)
{
    using enum MarkedLabel::Mark;
    label.setMarkedText("one line", {});
    const int oneLine = label.sizeHint().height();
    const QString two = QString("two lines ").repeated(6).trimmed();
    const QImage plain = shown(two, {});
    const int twoLines = label.sizeHint().height();
    EXPECT_LT(oneLine, twoLines);
    EXPECT_EQ(QString(), label.toolTip());
    const QRect changed = difference(plain, shown(two, {{0, two.size(), Right}}));
    EXPECT_LT(oneLine, changed.height()) << "both lines are marked";
    EXPECT_NE(QRect(), difference(plain, shown(two, {}, "a note")));
    const QString many = QString("many lines ").repeated(900);
    const QImage cut = shown(many, {}, "a note");
    EXPECT_EQ(cut, shown(many, {{many.size(), 0, Gap}}, "a note")) << "what is marked there does not show";
    label.setMarkedText(many, {{5, 1, Surplus}, {9000, 5, Right}}, "a note");
    EXPECT_EQ(twoLines, label.sizeHint().height());
    EXPECT_EQ(many + "\na note", label.toolTip());
    label.setFullText("one line");
    EXPECT_EQ(oneLine, label.sizeHint().height());
    EXPECT_LT(20, ink(label.grab().toImage()).width());
}
