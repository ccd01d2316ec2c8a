// Any two texts, parted by a zero byte, as an answer given and the one expected, with any options: the first byte.

#include "Require.h"

#include "quiz/rules/AnswerJudge.h"

#include <cstdint>

namespace {

void checkDifference(const Difference &difference, const QString &given, const QString &expected)
{
    qsizetype givenEnd = 0;
    qsizetype expectedEnd = 0;
    for (const Difference::Change &change : difference.changes) {
        require(change.givenLength > 0 || change.expectedLength > 0, "a change of something");
        require(change.givenStart >= givenEnd && change.expectedStart >= expectedEnd, "changes in their order");
        givenEnd = change.givenStart + change.givenLength;
        expectedEnd = change.expectedStart + change.expectedLength;
    }
    require(givenEnd <= given.size() && expectedEnd <= expected.size(), "changes within the texts");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (size == 0)
        return 0;
    const auto on = [data](int bit) { return (data[0] & (1 << bit)) != 0; };
    const AnswerTolerance tolerance{on(0), on(1), on(2), on(3), on(4)};
    const QByteArray bytes(reinterpret_cast<const char *>(data) + 1, qsizetype(size) - 1);
    const qsizetype middle = std::max<qsizetype>(bytes.indexOf('\0'), 0);
    const QString given = QString::fromUtf8(bytes.left(middle)).normalized(QString::NormalizationForm_C);
    const QString expected = QString::fromUtf8(bytes.mid(middle + 1)).normalized(QString::NormalizationForm_C);
    static AnswerJudge judge;
    const Judgement judgement = judge.judge(given, expected, tolerance);
    require((judgement.verdict == Judgement::Verdict::Right) == (given == expected), "only the exact text is right");
    checkDifference(judgement.difference, given, expected);
    if (judgement.verdict == Judgement::Verdict::Forgiven)
        require(judge.judge(given, expected, judgement.forgiven).verdict == Judgement::Verdict::Forgiven,
                "what was forgiven is enough");
    return 0;
}
