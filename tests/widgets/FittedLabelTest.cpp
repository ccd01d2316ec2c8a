#include "widgets/FittedLabel.h"

const QString LongPhrase = "a phrase that is a good deal longer than the label that has to show it";

struct FittedLabelTest : ::testing::Test
{
    FittedLabelTest()
    {
        label.resize(400, 60);
        window.show();
    }

    QWidget window;
    FittedLabel label{&window};
};

TEST_F(FittedLabelTest, ALongTextIsCutToTheWidthOfTheMomentAndEachStandsWhereItIsRead)
{
    label.setFullText("<b>fish & chips</b>");
    EXPECT_EQ("<b>fish & chips</b>", label.text() + label.toolTip());
    const QString markup = "<b>bold</b> " + LongPhrase;
    label.setFullText(markup);
    label.resize(150, 30);
    EXPECT_TRUE(label.text().endsWith(QChar(0x2026)));
    EXPECT_TRUE(markup.startsWith(label.text().chopped(1)));
    EXPECT_LE(QFontMetricsF(label.font()).horizontalAdvance(label.text()), 150 * FittedLabel::UsableWidth);
    EXPECT_EQ(markup, QTextDocumentFragment::fromHtml(label.toolTip()).toPlainText());
    EXPECT_TRUE(label.accessibleName() == markup && label.textFormat() == Qt::PlainText);
    for (const auto side : {Qt::AlignLeft, Qt::AlignRight}) {
        window.setLayoutDirection(side == Qt::AlignLeft ? Qt::LeftToRight : Qt::RightToLeft);
        for (const auto &[text, direction] : {std::pair("שלום!", Qt::RightToLeft), {"peace!", Qt::LeftToRight}}) {
            label.setFullText(text);
            EXPECT_EQ(label.layoutDirection(), direction);
            EXPECT_EQ(label.alignment(), side | Qt::AlignAbsolute | Qt::AlignVCenter);
        }
    }
}

TEST_F(FittedLabelTest, LargeTypeShrinksBeforeTheTextIsCut)
{
    label.setContentsMargins(9, 2, 9, 4);
    label.setFullText("short");
    label.setTypeSizes(3, 0.8);
    EXPECT_NEAR(label.font().pointSizeF(), 3 * QFontInfo(window.font()).pointSizeF(), 0.1);
    window.setFont(QFont("Liberation Mono", 10));
    const double normal = QFontInfo(window.font()).pointSizeF();
    EXPECT_DOUBLE_EQ(label.font().pointSizeF(), 3 * normal);
    label.setRoomFor(LongPhrase);
    EXPECT_LT(label.font().pointSizeF(), 2.9 * normal);
    label.setFamily("Liberation Serif");
    EXPECT_EQ(label.font().families().value(0), "Liberation Serif");
    const auto metrics = [&](double size) {
        QFont font(label.font());
        font.setPointSizeF(normal * size);
        return QFontMetricsF(font);
    };
    for (const QString &text : {LongPhrase, LongPhrase.left(9)}) {
        label.setFullText(text);
        EXPECT_EQ(label.sizeHint(), QSize(int(std::ceil(metrics(3).horizontalAdvance(text) / 0.97)) + 18,
                                          int(std::ceil(metrics(3).height() * 1.2)) + 6));
        for (const int width : {3000, 1000, 700, 500, 20}) {
            label.resize(width, 60);
            const double size = label.font().pointSizeF() / normal, room = (width - 18) * 0.97;
            EXPECT_TRUE(size == 3 || metrics(size / 0.9).horizontalAdvance(LongPhrase) > room) << size;
            EXPECT_TRUE(size < 0.801 || metrics(size).horizontalAdvance(LongPhrase) <= room) << size;
            EXPECT_EQ(label.text() == text, metrics(size).horizontalAdvance(text) <= room);
        }
    }
}
