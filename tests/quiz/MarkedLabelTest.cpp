#include "quiz/MarkedLabel.h"

struct MarkedLabelTest : ::testing::Test
{
    MarkedLabelTest()
    {
        label.resize(300, 60);
        window.show();
    }

    QImage shown(const QString &text, std::vector<MarkedLabel::MarkedPart> parts)
    {
        label.setMarkedText(text, std::move(parts));
        return label.grab().toImage();
    }

    /// The pixels from one column to another in which two pictures differ.
    static int differences(const QImage &one, const QImage &other, int from, int end)
    {
        int count = 0;
        for (int y = 0; y < one.height(); ++y) {
            for (int x = from; x < end; ++x)
                count += one.pixel(x, y) != other.pixel(x, y) ? 1 : 0;
        }
        return count;
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
        const int middle = width / 2;
        for (const MarkedLabel::Mark mark : {Surplus, Exchanged, Right}) {
            const QImage marked = shown(text, {{0, 3, mark}});
            const bool fromRight = text.isRightToLeft();
            EXPECT_LT(20, differences(plain, marked, fromRight ? middle : 0, fromRight ? label.width() : middle));
            EXPECT_EQ(0, differences(plain, marked, fromRight ? 0 : middle, fromRight ? middle : label.width()));
        }
        EXPECT_LT(4, differences(plain, shown(text, {{text.size(), 0, Gap}}), 0, label.width()));
    }
    EXPECT_NE(shown("Haus", {}), shown("Haus ", {})) << "a blank at the edge shows";
}

TEST_F(MarkedLabelTest, TwoLinesAreTakenBeforeTheTextEndsInAnEllipsis)
{
    label.setMarkedText("one line", {});
    const int oneLine = label.sizeHint().height();
    const QString two = QString("two lines ").repeated(6).trimmed();
    label.setMarkedText(two, {});
    const int twoLines = label.sizeHint().height();
    EXPECT_LT(oneLine, twoLines);
    EXPECT_EQ(QString(), label.toolTip());
    const QString many = QString("many lines ").repeated(900);
    label.setMarkedText(many, {{5, 1, MarkedLabel::Mark::Surplus}, {9000, 5, MarkedLabel::Mark::Right}}, "a note");
    EXPECT_EQ(twoLines, label.sizeHint().height());
    EXPECT_EQ(many + "\na note", label.toolTip());
    EXPECT_FALSE(label.grab().isNull());
    label.setFullText("one line");
    EXPECT_EQ(oneLine, label.sizeHint().height());
}
