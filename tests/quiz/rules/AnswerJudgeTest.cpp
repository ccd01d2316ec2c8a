#include "quiz/rules/AnswerJudge.h"

namespace {

/// A tolerance by letters: c case, a accents, b blanks and punctuation, k brackets, s one of several.
AnswerTolerance tolerant(const QString &options)
{
    return {options.contains(u'c'), options.contains(u'a'), options.contains(u'b'), options.contains(u'k'),
            options.contains(u's')};
}

QString optionsOf(int subset)
{
    QString options;
    for (int i = 0; i < 5; ++i)
        options += subset & (1 << i) ? QStringLiteral("cabks").mid(i, 1) : QString();
    return options;
}

/// What a judgement says: "=" for right, "-" for wrong, else what was forgiven.
QString said(const Judgement &judgement)
{
    if (judgement.verdict != Judgement::Verdict::Forgiven)
        return judgement.verdict == Judgement::Verdict::Right ? "=" : "-";
    for (int subset = 1; subset < 32; ++subset) {
        if (judgement.forgiven == tolerant(optionsOf(subset)))
            return optionsOf(subset);
    }
    return "nothing";
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

} // namespace

/// Every row: what is given, what is expected, and the options that it takes to count as right ("=": none, "-": not
/// even all, "b/k": one of them). It is judged with each of the 32 sets of options.
TEST(AnswerJudge, ForgivesWhatTheOptionsSayAndNothingElse)
{
    const QStringList rows = {
        // Latin
        "Haus|Haus|=", "haus|Haus|c", "HAUS|Haus|c", "Haus |Haus|b", "  Haus|Haus|b", "haus |Haus|cb", "Hau|Haus|-",
        "|Haus|-", " |Haus|-", "Haus|haus|c", "guten  Morgen|guten Morgen|b", "gutenMorgen|guten Morgen|-",
        "guten Morgen|gutenMorgen|-", "How are you|How are you?|b", "how are you|How are you?|cb", "dont|don't|b",
        "don’t|don't|b", "don`t|don't|b", "well known|well-known|b", "wellknown|well-known|b", "que tal|¿Qué tal?|cab",
        "?|!|-", "|?|-", "C|C++|-", "100|100 %|b",
        // Accents of Latin letters
        "ete|été|a", "été|ete|-", "èté|été|-", "éte|été|a", "e\u0301te\u0301|été|=", "ETE|été|ca", "Cafe|café|ca",
        "ano|año|a", "Angstrom|Ångström|a", "dobry den|dobrý den|a", "zlty kon|žltý kôň|a", "smorrebrod|smørrebrød|a",
        "lodz|Łódź|ca", "Dordevic|Đorđević|a", "thorn|þorn|a", "naive|naïve|a", "o|ő|a", "ö|ő|-",
        // German
        "Strasse|Straße|a", "Straße|Strasse|-", "STRASSE|Straße|ca", "Baer|Bär|a", "Bar|Bär|a", "Bär|Baer|-",
        "Gruesse|Grüße|a", "Gru\u00dfe|Grüße|a", "Oel|Öl|a", "OEL|Öl|ca", "OEl|Öl|a", "uber|Über|ca", "Strase|Straße|-",
        "Aepfel, Birnen|Äpfel, Birnen|a", "Ku he|Kühe|-",
        // French ligatures
        "oeuf|œuf|a", "Oeuvre|Œuvre|a", "oeuvre|Œuvre|ca", "œuf|oeuf|-", "ex aequo|ex æquo|a",
        "coeur brise|cœur brisé|a", "office|o\ufb03ce|a", "leau|l’eau|b",
        // Turkish: I belongs to ı, İ to i, and both letters stay apart
        "ISPARTA|ısparta|c", "ısparta|ISPARTA|c", "istanbul|İstanbul|c", "İSTANBUL|istanbul|c", "isik|ışık|a",
        "ISIK|ışık|ca", "ışık|isik|-", "Istanbul|İstanbul|a",
        // Greek
        "λόγος|λόγος|=", "λόγοσ|λόγος|c", "ΛΌΓΟΣ|λόγος|c", "λογος|λόγος|a", "ΛΟΓΟΣ|λόγος|ca", "αθηνα|Αθήνα|ca",
        // Cyrillic: й and и are two letters, е stands for ё
        "елка|ёлка|a", "ЕЛКА|ёлка|ca", "ёлка|елка|-", "мои|мой|-", "Москва|москва|c", "замо́к|замок|-", "замок|замо́к|a",
        // Arabic and Hebrew, with and without vowel signs
        "كتاب|كِتَاب|a", "كِتاب|كِتَاب|a", "كِتَاب|كتاب|-", "كُتاب|كِتَاب|-", "كيف حالك|كيف حالك؟|b", "بيت|بيتي|-", "שלום|שָׁלוֹם|a",
        "שָלום|שָׁלוֹם|a", "שָׁלוֹם|שלום|-", "צהל|צה״ל|b",
        // Vietnamese, Thai, Hindi
        "tieng Viet|tiếng Việt|a", "tiêng Viêt|tiếng Việt|a", "duong|đường|a", "tiéng|tiếng|a", "tiềng|tiếng|-",
        "ไม|ไม้|a", "มา|มี|-", "हिंदी|हिन्दी|-", "क|कि|-",
        // Hangul by syllables and by letters, Japanese, Chinese
        "\u1112\u1161\u11ab\u1100\u116e\u11a8|한국|=", "한구|한국|-", "한 국|한국|-", "か|が|-", "カ|か|-",
        "か\u3099|が|=", "ｶﾞﾑ|ガム|c", "ＣＤ|CD|c", "ｃｄ|CD|c", "こんにちは|こんにちは。|b", "日本|日本人|-",
        "東京　大阪|東京 大阪|b",
        // Emoji
        "👍|👍🏽|-", "👍🏽|👍🏽|=", "❤|❤️|a", "👩‍🚀|👩‍🚀|=", "👩|👩‍🚀|-",
        // Brackets
        "die Bank|die Bank (Geld)|k", "die Bank (Geld)|die Bank (Geld)|=", "die Bank Geld|die Bank (Geld)|b/k",
        "die bank|die Bank (Geld)|ck", "Bank|(die) Bank|k", "to go|to (be) go|k", "Freund|Freund(in)|k",
        "Freundin|Freund(in)|b/k", "Freundi|Freund(in)|-", "Geld|(Geld)|b/k", "|(Geld)|-", "Bank|Bank (Geld|-",
        "abc|a(b[c])|b", "食べる|食べる（たべる）|k", "a d|a (b) (c) d|k", "a|a (b) (c) (d) (e)|k",
        // Several answers
        "die Bank (Geld)|die Bank (Geld), das Geldinstitut / Kreditinstitut|s",
        "Kreditinstitut|die Bank (Geld), das Geldinstitut / Kreditinstitut|s",
        "Kreditinstitut, das Geldinstitut|die Bank (Geld), das Geldinstitut / Kreditinstitut|s",
        "kreditinstitut; die Bank|die Bank (Geld), das Geldinstitut / Kreditinstitut|cks",
        "das Geldinstitut, das Haus|die Bank (Geld), das Geldinstitut / Kreditinstitut|-",
        "Geld|die Bank (Geld), das Geldinstitut / Kreditinstitut|-", "eat, eat|eat, feed|-", "feed, eat|eat, feed|s",
        "Bank|Bank (Geld, Sitz)|k", "Sitz|Bank (Geld, Sitz)|-", "rosa|rosa;pink|s", "3|3,50|-", "50|3/50|-",
        "是|是、对|s", "لا|نعم، لا|s", "eat feed|eat, feed|b", "AB, b|ab, b|c", "b, ab|ab/ab/b|s", "a|,,a|b"};
    AnswerJudge judge;
    for (const QString &row : rows) {
        const QStringList parts = row.split(u'|');
        for (int subset = 0; subset < 32; ++subset) {
            const QString options = optionsOf(subset);
            QStringList possible = parts[2].split(u'/');
            possible.removeIf([&](const QString &each) {
                return std::any_of(each.begin(), each.end(), [&](QChar one) { return !(options + '=').contains(one); });
            });
            const QString judged = said(judge.judge(parts[0], parts[1], tolerant(options)));
            EXPECT_TRUE(possible.isEmpty() ? judged == u"-" : possible.contains(judged))
                << row.toStdString() << " with " << options.toStdString() << ": " << judged.toStdString();
        }
    }
}

TEST(AnswerJudge, ShowsWhereAWrongAnswerDiffers)
{
    // given, expected, options, and both with their differences in brackets
    const QStringList rows = {
        "Has|Haus||Ha[]s / Ha[u]s",
        "Haus |Haus||Haus[ ] / Haus[]",
        "Hsau|Haus||H[s]au[] / H[]au[s]",
        "Hous|Haus||H[o]us / H[a]us",
        "haus|Haus||[h]aus / [H]aus",
        "haos|Haus|c|ha[o]s / Ha[u]s",
        "ein Hous!|Haus|b|[ein ]H[o]us! / []H[a]us",
        "Guten|Guten Morgen||Guten[] / Guten[ Morgen]",
        "Gutenmorgen|Guten Morgen|c|Guten[]morgen / Guten[ ]Morgen",
        "Katze|Hund||Katze / Hund",
        "Stuhl|table||Stuhl / table",
        "|Haus|| / Haus",
        "Strase|Straße|a|Stra[s]e / Stra[ß]e",
        "Grusse an ale|Grüße an alle|a|Grusse an a[]le / Grüße an a[l]le",
        "das Geldinstitut|die Bank, das Geldinstitut||[]das Geldinstitut / [die Bank, ]das Geldinstitut",
        "ein Haus Haus|ein Haus||ein [Haus ]Haus / ein []Haus",
        "Baerchn|Bärchen|a|Baerch[]n / Bärch[e]n",
        "die Bonk|die Bank (Geld)|k|die B[o]nk / die B[a]nk (Geld)",
        "die Bonk|die Bank (Geld)||die B[o]nk[] / die B[a]nk[ (Geld)]",
        "das Haos|die Bank, das Haus|s|das Ha[o]s / die Bank, das Ha[u]s",
        "كتب|كِتَاب|a|كت[]ب / كِتَ[ا]ب",
        "한극|한국||한[극] / 한[국]",
        "e\u0301ta|été||ét[a] / ét[é]",
        "👍🏽a|👍a||[👍🏽]a / [👍]a",
    };
    AnswerJudge judge;
    for (const QString &row : rows) {
        const QStringList parts = row.split(u'|');
        const Judgement judgement = judge.judge(parts[0], parts[1], tolerant(parts[2]));
        EXPECT_EQ("-", said(judgement).toStdString());
        const QString given = parts[0].normalized(QString::NormalizationForm_C);
        EXPECT_EQ(parts[3].toStdString(), marked(given, parts[1], judgement.difference).toStdString());
    }
}

TEST(AnswerJudge, TakesLongTextsInTheirStride)
{
    AnswerJudge judge;
    const QString text = QStringLiteral("a (b), c / é ").repeated(800);
    EXPECT_EQ("-", said(judge.judge(text, text + "x", tolerant("cabks"))).toStdString());
    EXPECT_EQ("c", said(judge.judge(text.toUpper(), text, tolerant("cabks"))).toStdString());
    const Judgement judgement =
        judge.judge("start " + QString(10000, u'x') + " end", "start " + QString(600, u'y') + " end", {});
    EXPECT_EQ(0U, judgement.difference.changes.size()) << "too little in common";
    const QString same(3000, u'z');
    EXPECT_EQ(marked(same + "[x]" + same, same + "[yy]" + same, {}),
              marked(same + "x" + same, same + "yy" + same,
                     judge.judge(same + "x" + same, same + "yy" + same, {}).difference));
}
