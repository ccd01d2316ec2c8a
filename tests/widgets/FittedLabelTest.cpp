#include "widgets/FittedLabel.h"

#include <QTextDocumentFragment>

namespace {

const QString LongPhrase = QStringLiteral("a phrase that is a good deal longer than the label that has to show it");

} // namespace

TEST(FittedLabelTest, ATextThatFitsStandsWholeWithoutTooltip)
{
    FittedLabel label;
    label.resize(400, 30);
    label.setFullText(QStringLiteral("<b>fish & chips</b>"));
    EXPECT_EQ(u"<b>fish & chips</b>", label.text());
    EXPECT_EQ(QString(), label.toolTip());
}

TEST(FittedLabelTest, ALongTextIsCutToTheWidthOfTheMomentAndStandsInTheTooltip)
{
    QWidget window;
    FittedLabel label(&window);
    window.show();
    label.setFullText(LongPhrase);
    label.resize(1200, 30);
    EXPECT_EQ(LongPhrase, label.text());
    EXPECT_EQ(QString(), label.toolTip());
    label.resize(150, 30);
    EXPECT_TRUE(label.text().endsWith(QChar(0x2026)));
    EXPECT_TRUE(LongPhrase.startsWith(label.text().chopped(1)));
    EXPECT_LE(QFontMetricsF(label.font()).horizontalAdvance(label.text()), 150 * FittedLabel::UsableWidth);
    EXPECT_EQ(LongPhrase, label.toolTip());
    EXPECT_EQ(LongPhrase, label.accessibleName());

    const QString markup = QStringLiteral("<b>bold</b> ") + LongPhrase;
    label.setFullText(markup);
    EXPECT_EQ(markup, QTextDocumentFragment::fromHtml(label.toolTip()).toPlainText());
}

TEST(FittedLabelTest, TheUsableWidthIsExact)
{
    QWidget window;
    FittedLabel label(&window);
    window.show();
    label.setFullText(QStringLiteral("vocabulary"));
    const double width = QFontMetricsF(label.font()).horizontalAdvance(label.FullText());
    label.resize(int(std::ceil(width / FittedLabel::UsableWidth)), 30);
    EXPECT_EQ(QString(), label.toolTip());
    label.resize(int(std::floor(width / FittedLabel::UsableWidth)) - 1, 30);
    EXPECT_EQ(u"vocabulary", label.toolTip());
}

TEST(FittedLabelTest, LargeTypeShrinksBeforeTheTextIsCut)
{
    QWidget window;
    FittedLabel label(&window);
    window.show();
    label.setTypeSizes(3, 1);
    label.setFullText(QStringLiteral("word"));
    label.resize(1000, 60);
    const double normal = QFontInfo(window.font()).pointSizeF();
    EXPECT_NEAR(3 * normal, label.font().pointSizeF(), 0.1);

    label.setFullText(LongPhrase);
    label.resize(int(QFontMetricsF(window.font()).horizontalAdvance(LongPhrase) * 1.5), 60);
    EXPECT_EQ(LongPhrase, label.text());
    EXPECT_LT(label.font().pointSizeF(), 3 * normal);
    EXPECT_GT(label.font().pointSizeF(), normal);

    const double forPhrase = label.font().pointSizeF();
    label.setRoomFor(LongPhrase);
    label.setFullText(LongPhrase.left(1));
    EXPECT_DOUBLE_EQ(forPhrase, label.font().pointSizeF());
}

TEST(FittedLabelTest, ARightToLeftTextKeepsItsPunctuationAndItsPlace)
{
    QWidget window;
    FittedLabel label(&window);
    label.resize(400, 30);
    label.setFullText(QStringLiteral("שלום!"));
    EXPECT_EQ(Qt::RightToLeft, label.layoutDirection());
    EXPECT_TRUE(label.alignment() & Qt::AlignLeft);
    EXPECT_TRUE(label.alignment() & Qt::AlignAbsolute);
    label.setFullText(QStringLiteral("peace!"));
    EXPECT_EQ(Qt::LeftToRight, label.layoutDirection());
}
