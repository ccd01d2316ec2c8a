#include "quiz/MarkedLabel.h"

#include "quiz/QuizColours.h"
#include "services/desktop/Contrast.h"

using enum MarkedLabel::Mark;

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
    /// Around the runs of more than so many pixels of a colour.
    QRect lineOf(const QImage &image, const QColor &colour, double pixels)
    {
        const QImage mask =
            image.createMaskFromColor(Contrast::readable(colour, label.palette()).rgb(), Qt::MaskOutColor);
        QRect found;
        for (const QRect &run : QRegion(QBitmap::fromImage(mask)))
            found |= run.width() > pixels ? run : QRect();
        return found;
    }

    QWidget window;
    MarkedLabel label{&window};
};

TEST_F(MarkedLabelTest, MarksStandAtTheirLettersAndChangeNothingBeside)
{
    for (const auto &[text, type] : {std::pair(QString("xuxuxu"), 3), {"xuxuxu", 1}, {"سلسبيل سلسبيل", 1}}) {
        label.setTypeSizes(type, 1);
        const QImage plain = shown(text, {});
        const QFontMetricsF metrics(label.font());
        const QRect letters = ink(plain);
        const double part = metrics.horizontalAdvance(text.left(2)), all = metrics.horizontalAdvance(text);
        const auto place = [&](double x) { return text.isRightToLeft() ? all - x : x; };
        EXPECT_LE((letters.center() - QPoint(int(all / 2), 30)).manhattanLength(), 8) << "in the middle of its height";
        for (const MarkedLabel::Mark mark : {Surplus, Exchanged, Right}) {
            const QImage marked = shown(text, {{2, 2, mark}});
            const QRect changed = difference(plain, marked);
            EXPECT_TRUE(!text.isRightToLeft() || (changed.width() > 10 && changed.left() >= all / 3));
            if (text.isRightToLeft())
                continue;
            const QRect line = lineOf(marked, mark == Right ? QuizColours::Right : QuizColours::Wrong, part * 0.9);
            EXPECT_NEAR(line.height(), std::max(2.0, metrics.height() * 0.08), 0.7);
            EXPECT_NEAR(line.left(), part, 1.1);
            EXPECT_NEAR(line.width(), part, 1.6);
            const double below = letters.bottom() + metrics.descent() * 0.5;
            EXPECT_NEAR(mark == Surplus ? line.center().y() : line.top(),
                        mark == Surplus ? letters.center().y() : below, 1.2);
            const QRect around(line.left() - 1, letters.top(), line.width() + 2, letters.height());
            EXPECT_TRUE((around | line).contains(changed));
            EXPECT_TRUE(type == 1 || ink(marked.copy(changed)).width() > ink(plain.copy(changed)).width()) << "bolder";
        }
        for (const int at : {0, text.isRightToLeft() ? 0 : 2, int(text.size())}) {
            const QRect wedge = difference(plain, shown(text, {{at, 0, Gap}}));
            const double side = metrics.descent() * 0.9;
            EXPECT_NEAR(wedge.center().x() + 0.5,
                        std::clamp(place(metrics.horizontalAdvance(text.left(at))), side, 300.0), 1.5);
            EXPECT_NEAR(wedge.width(), 2 * side, 2);
            EXPECT_NEAR(wedge.height(), 1.2 * side, 1.6);
            EXPECT_TRUE(text.isRightToLeft() || std::abs(wedge.top() - letters.bottom()) < 3);
        }
    }
    for (const char *edged : {"Haus ", " Haus"})
        EXPECT_NE(shown("Haus", {}), shown(edged, {})) << "a blank at the edge shows";
    EXPECT_LT(4, difference(shown("a b", {}), shown("a b", {{1, 1, Right}})).height()) << "and one that is marked";
    shown("a b", {{2, 1, Right}});
    QCoreApplication::processEvents();
    const QImage screen = window.screen()->grabWindow(window.winId()).toImage();
    EXPECT_EQ(QRect(), difference(screen.copy(label.geometry()), label.grab().toImage())) << "on the screen, too";
    window.setLayoutDirection(Qt::RightToLeft);
    EXPECT_LT(280, ink(shown("Haus", {})).right());
}

TEST_F(MarkedLabelTest, TwoLinesAreTakenBeforeTheTextEndsInAnEllipsis)
{
    label.setMarkedText("one line", {});
    const int oneLine = label.sizeHint().height();
    const QString two = QString("two lines ").repeated(6).trimmed(), many = QString("many lines ").repeated(900);
    const QImage plain = shown(two, {});
    const int twoLines = label.sizeHint().height();
    EXPECT_EQ(oneLine + label.fontMetrics().height(), twoLines);
    const QRect changed = difference(plain, shown(two, {{0, two.size(), Right}}));
    EXPECT_LT(oneLine, changed.height()) << "both lines are marked";
    const QRect note = difference(shown("word", {}), shown("word", {}, "note"));
    EXPECT_NEAR(note.left(), label.fontMetrics().horizontalAdvance("word  "), 2);
    const QImage cut = shown(many, {}, "a note");
    EXPECT_EQ(cut, shown(many, {{many.size(), 0, Gap}}, "a note")) << "what is marked there does not show";
    EXPECT_LE(ink(cut).height(), 2 * label.fontMetrics().height());
    label.setMarkedText(many, {{5, 1, Surplus}, {9000, 5, Right}}, "a note");
    EXPECT_EQ(twoLines, label.sizeHint().height());
    EXPECT_EQ(many + "\na note", label.toolTip());
    label.setTypeSizes(3, 1);
    for (const int width : {300, 420, 560, 700, 1000}) { // the larger the type may be
        label.resize(width, 60);
        label.setMarkedText(two, {});
        const double lines = QFontMetricsF(label.font()).horizontalAdvance(two) / (width * 0.97);
        const bool isLargest = label.font().pointSizeF() == 3 * window.font().pointSizeF();
        EXPECT_TRUE(lines <= 2.05 && label.toolTip().isEmpty() && (isLargest || lines > 1.5)) << width;
    }
    label.setFullText("one line");
    EXPECT_EQ(oneLine * 3, label.sizeHint().height());
}
