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

TEST_F(FittedLabelTest, ALongTextIsCutToTheWidthOfTheMomentAndStandsInTheTooltip)
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
}

TEST_F(FittedLabelTest, LargeTypeShrinksBeforeTheTextIsCut)
{
    label.setContentsMargins(9, 2, 9, 4);
    label.setTypeSizes(3, 0.8);
    label.setFamily("Liberation Serif");
    label.setRoomFor(LongPhrase);
    const double normal = QFontInfo(window.font()).pointSizeF();
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
    EXPECT_EQ(label.font().families().value(0), "Liberation Serif");
}

TEST_F(FittedLabelTest, ARightToLeftTextKeepsItsPunctuationAndItsPlace)
{
    for (const auto side : {Qt::AlignLeft, Qt::AlignRight}) {
        window.setLayoutDirection(side == Qt::AlignLeft ? Qt::LeftToRight : Qt::RightToLeft);
        for (const auto &[text, direction] : {std::pair("שלום!", Qt::RightToLeft), {"peace!", Qt::LeftToRight}}) {
            label.setFullText(text);
            EXPECT_EQ(label.layoutDirection(), direction);
            EXPECT_EQ(label.alignment(), side | Qt::AlignAbsolute | Qt::AlignVCenter);
        }
    }
}

TEST(FittedLabelOrder, WhateverComesFirstTheLabelEndsUpTheSame)
{
    std::array order{0, 1, 2, 3, 4};
    std::set<QString> looks;
    do {
        QWidget window;
        FittedLabel label(&window);
        window.show();
        const std::array<std::function<void()>, 5> steps{
            [&] { label.setFullText("words"); }, [&] { label.setTypeSizes(4, 1); },
            [&] { label.setRoomFor("words that take more room"); }, [&] { label.resize(260, 60); },
            [&] { window.setFont(QFont("Liberation Serif", 13)); }};
        for (const int step : order)
            steps[size_t(step)]();
        const QSize wanted = label.sizeHint();
        EXPECT_GE(wanted.width(), label.fontMetrics().horizontalAdvance("words"));
        EXPECT_EQ(label.minimumSizeHint(), QSize(0, wanted.height()));
        looks.insert(QString("%1 %2 %3").arg(label.text()).arg(label.font().toString()).arg(wanted.height()));
    } while (std::next_permutation(order.begin(), order.end()));
    EXPECT_EQ(looks.size(), 1u) << looks.begin()->toStdString() << " and " << looks.rbegin()->toStdString();
}
