#include "quiz/rules/AnswerJudge.h"

namespace {

/// A tolerance by letters: c case, a accents, b blanks and punctuation, k brackets, s one of several.
AnswerTolerance tolerant(const QString &options)
{
    return {options.contains(u'c'), options.contains(u'a'), options.contains(u'b'), options.contains(u'k'),
            options.contains(u's')};
}

/// What a judgement says: "=" for right, "-" for wrong, else what was forgiven.
QString said(const Judgement &judgement)
{
    if (judgement.verdict != Judgement::Verdict::Forgiven)
        return judgement.verdict == Judgement::Verdict::Right ? "=" : "-";
    const AnswerTolerance &forgiven = judgement.forgiven;
    return QString(forgiven.letterCase ? "c" : "") + (forgiven.accents ? "a" : "") +
           (forgiven.blanksAndPunctuation ? "b" : "") + (forgiven.brackets ? "k" : "") +
           (forgiven.oneOfSeveral ? "s" : "");
}

/// Both texts with their differences in brackets: "H[x]s / H[aa]s".
QString marked(QString given, QString expected, const Difference &difference)
{
    for (auto change = difference.changes.rbegin(); change != difference.changes.rend(); ++change) {
        given.insert(change->givenStart + change->givenLength, "]").insert(change->givenStart, "[");
        expected.insert(change->expectedStart + change->expectedLength, "]").insert(change->expectedStart, "[");
    }
    return given + " / " + expected;
}

/// The lines of answers.txt that have so many fields.
QList<QStringList> rows(qsizetype fields)
{
    static const QRegularExpression escape(R"(\\u([0-9a-f]{4}))");
    QList<QStringList> rows;
    for (QString line : QString(readFile(SOURCE_FOLDER "/tests/quiz/rules/answers.txt")).split(u'\n')) {
        for (auto found = escape.match(line); found.hasMatch(); found = escape.match(line))
            line.replace(found.captured(), QChar(found.captured(1).toUShort(nullptr, 16)));
        if (const QStringList parts = line.split(u'|'); !line.startsWith(u'#') && parts.size() == fields)
            rows.append(parts);
    }
    return rows;
}

} // namespace

TEST(AnswerJudge, ForgivesWhatTheOptionsSayAndNothingElse)
{
    AnswerJudge judge;
    for (const QStringList &parts : rows(3)) {
        for (int subset = 0; subset < 32; ++subset) {
            QString options;
            for (int i = 0; i < 5; ++i)
                options += subset & (1 << i) ? QStringLiteral("cabks").mid(i, 1) : QString();
            QStringList possible = parts[2].split(u'/');
            possible.removeIf([&](const QString &each) {
                return std::any_of(each.begin(), each.end(), [&](QChar one) { return !(options + '=').contains(one); });
            });
            const QString judged = said(judge.judge(parts[0], parts[1], tolerant(options)));
            EXPECT_TRUE(possible.isEmpty() ? judged == u"-" : possible.contains(judged))
                << parts.join(u'|').toStdString() << " with " << options.toStdString() << ": " << judged.toStdString();
        }
    }
}

TEST(AnswerJudge, ShowsWhereAWrongAnswerDiffers)
{
    AnswerJudge judge;
    for (const QStringList &parts : rows(4)) {
        const Judgement judgement = judge.judge(parts[0], parts[1], tolerant(parts[2]));
        const QString given = parts[0].normalized(QString::NormalizationForm_C);
        EXPECT_EQ("- " + parts[3].toStdString(),
                  (said(judgement) + u' ' + marked(given, parts[1], judgement.difference)).toStdString());
    }
}

TEST(AnswerJudge, TakesLongTextsInTheirStride)
{
    AnswerJudge judge;
    const QString text = QStringLiteral("a (b), c / é ").repeated(350);
    EXPECT_EQ("-", said(judge.judge(text, text + "x", tolerant("cabks"))).toStdString());
    EXPECT_EQ("c", said(judge.judge(text.toUpper(), text, tolerant("cabks"))).toStdString());
    EXPECT_EQ("-", said(judge.judge(text.toUpper() + text, text + text, tolerant("c"))).toStdString()) << "too long";
    const QString little = "start " + QString(10000, u'x') + " end";
    EXPECT_TRUE(judge.judge(little, QString(little).replace(u'x', u'y'), {}).difference.changes.empty());
    const QString same(2400, u'z'), given = same + 'x' + same, wanted = same + "yy" + same;
    EXPECT_EQ(same + "[x]" + same + " / " + same + "[yy]" + same,
              marked(given, wanted, judge.judge(given, wanted, {}).difference));
}
