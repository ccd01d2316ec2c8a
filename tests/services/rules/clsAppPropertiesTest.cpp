#include "services/settings/clsAppProperties.h"

#include "platform/registry/RegistryTree.h"

namespace {

const QString Key = "Software\\Glosaria";
const QString Program = "/opt/glosaria/glosaria";

QByteArray storedRecord(const RegistryStore &store)
{
    const auto value = store.value(HKEY_CURRENT_USER, Key, "Settings");
    return value ? std::get<QByteArray>(value->data) : QByteArray();
}

std::string defaultOf(const RegistryStore &store, const char *key)
{
    const auto value = store.value(HKEY_CLASSES_ROOT, QString::fromLatin1(key), QString());
    return value ? std::get<QString>(value->data).toStdString() : "none";
}

} // namespace

TEST(SettingsRecord, LayoutByteForByte)
{
    const QByteArray bytes = QByteArray::fromHex("0200 01 01 01020304 00 01 01 00 33221180 01 00 0201 0500 0000"
                                                 "11121314 feffffff 21222324 313233");
    const SettingsRecord record = {2,    true,   0x04030201, false,      true, true,       int(0x80112233),
                                   true, 0x0102, 5,          0x14131211, -2,   0x24232221, 0x34333231};
    EXPECT_EQ(record.toBytes().toHex(), bytes.toHex());
    SettingsRecord back = record;
    back.WinPosTop = 0x00333231;
    EXPECT_EQ(SettingsRecord::fromBytes(bytes), back);
    EXPECT_EQ(SettingsRecord::fromBytes(QByteArray(bytes + "more")), back);
    QByteArray onlySecondFlag = bytes;
    onlySecondFlag[2] = 0;
    EXPECT_FALSE(SettingsRecord::fromBytes(onlySecondFlag).AutoCheck);
}

TEST(AppProperties, FirstRunSetsDefaultsAndRegistersTheFileType)
{
    RegistryTree store;
    clsAppProperties properties(store, Program);
    properties.ReadProperties();
    EXPECT_TRUE(properties.firstRun());
    EXPECT_EQ(properties.FontName(), "Arial");
    properties.SaveProperties();
    EXPECT_EQ(storedRecord(store).toHex(' '), "00 00 00 00 00 00 00 00 01 00 00 00 00 00 00 00 00 00 0a 00 01 00 00 00 "
                                              "ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff");
    EXPECT_EQ(defaultOf(store, ".gla"), "Glosaria.Document");
    EXPECT_EQ(defaultOf(store, "Glosaria.Document"), "Glosaria Document");
    EXPECT_EQ(defaultOf(store, "Glosaria.Document\\shell\\open\\command"), "/opt/glosaria/glosaria \"%1\"");
    EXPECT_EQ(defaultOf(store, "Glosaria.Document\\DefaultIcon"), "/opt/glosaria/glosaria,1");
}

TEST(AppProperties, SavedSettingsComeBack)
{
    RegistryTree store;
    store.createKey(HKEY_CURRENT_USER, Key + "\\MRUFiles");
    clsAppProperties saved(store, Program);
    saved.ReadProperties(); // there is a key, but no record in it
    EXPECT_TRUE(saved.ErrorBeep() && !saved.firstRun());
    saved.setFontName("Noto Sans");
    saved.setQuizMode(4);
    saved.SaveProperties();
    clsAppProperties read(store, Program);
    read.ReadProperties();
    EXPECT_EQ(read.FontName(), "Noto Sans");
    EXPECT_EQ(read.QuizMode(), 4);
    EXPECT_EQ(defaultOf(store, ".gla"), "none");
}

TEST(AppProperties, QuizOptionsAreStoredOneByOneOnceTheyDifferFromTheDefault)
{
    RegistryTree store;
    const QuizOptions changed{.mostWords = 10,
                              .tolerance = {.letterCase = true, .oneOfSeveral = true},
                              .readAnswer = true,
                              .rememberAnswers = false};
    for (const QuizOptions &options : {QuizOptions(), changed, QuizOptions()}) {
        clsAppProperties saved(store, Program);
        saved.setQuizOptions(options);
        saved.SaveProperties();
        clsAppProperties read(store, Program);
        read.ReadProperties();
        EXPECT_EQ(read.quizOptions(), options);
        EXPECT_EQ(store.value(HKEY_CURRENT_USER, Key, "QuizMostWords").has_value(), options.mostWords == 10);
    }
    const std::pair<RegistryValue, int> stored[] = {{{RegistryType::Number, 32767u}, 32767},
                                                    {{RegistryType::Number, 32768u}, 0},
                                                    {{RegistryType::Number, 0xffffffffu}, 0},
                                                    {{RegistryType::String, QString("10")}, 0}};
    for (const auto &[value, words] : stored) {
        store.setValue(HKEY_CURRENT_USER, Key, "QuizMostWords", value);
        store.setValue(HKEY_CURRENT_USER, Key, "QuizRememberAnswers", {RegistryType::Number, 7u});
        clsAppProperties read(store, Program);
        read.ReadProperties();
        EXPECT_EQ(read.quizOptions().mostWords, words);
        EXPECT_TRUE(read.quizOptions().rememberAnswers);
    }
}

TEST(AppProperties, ThePlaceOfTheQuizWindowIsKeptIfAScreenCanHaveIt)
{
    const std::pair<QRect, bool> places[] = {{{-5, 0, 700, 500}, true},
                                             {{10, 20, 0, 500}, false},
                                             {{10, 20, 700, -500}, false},
                                             {{INT_MIN, 0, 700, 500}, false},
                                             {{0, 0, INT_MAX, 500}, false}};
    for (const auto &[place, kept] : places) {
        RegistryTree store;
        clsAppProperties saved(store, Program);
        saved.setQuizWindow(place);
        saved.SaveProperties();
        clsAppProperties read(store, Program);
        read.ReadProperties();
        EXPECT_EQ(read.QuizWindow(), kept ? place : QRect());
    }
}

TEST(AppProperties, ValuesOutOfRangeAreRepaired)
{
    const auto with = [](const QByteArray &record) {
        RegistryTree store;
        store.setValue(HKEY_CURRENT_USER, Key, "Settings", {RegistryType::Binary, record});
        store.setValue(HKEY_CURRENT_USER, Key, "FontName", {RegistryType::String, QString(" ")});
        clsAppProperties properties(store, Program);
        properties.ReadProperties();
        EXPECT_EQ(properties.FontName(), "Arial");
        return std::array{properties.FontSize(), properties.QuizMode(), properties.AutoTimerInterval()};
    };
    EXPECT_EQ(with(QByteArray("\2", 1)), (std::array{10, 1, 0}));
    EXPECT_EQ(with(QByteArray(39, '\xff')), (std::array{10, 1, 0}));
    EXPECT_EQ(with(QByteArray(39, '\x7f')), (std::array{clsAppProperties::LargestFontSize, 1, 0x7f7f7f7f}));
    EXPECT_EQ(with(QByteArray(18, '\0') + QByteArray("\1\0\5\0", 4)), (std::array{1, 5, 0}));
}
