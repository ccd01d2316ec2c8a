#include "services/settings/clsAppProperties.h"

#include "platform/registry/RegistryText.h"

const QString Key = "Software\\Glosaria";

struct AppPropertiesTest : ::testing::Test
{
    RegistryTree store;
    clsAppProperties settings{store, "/opt/glosaria/glosaria"};

    void expectStored(const char *file) const
    {
        EXPECT_EQ(RegistryText::write(store), readFile(SOURCE_FOLDER "/tests/services/rules/" + QString(file)));
    }
    void change()
    {
        settings.setFontName("Noto Sans");
        settings.setQuizMode(4);
        settings.setQuizOptions({32767, {true, true, true, true, true}, true, true, false});
        settings.setShowLetters(true);
        settings.setGridZoom(150);
    }
};

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

TEST_F(AppPropertiesTest, AFirstRunRegistersTheFileTypeAndStoresTheDefaults)
{
    change(); // counts no more when the settings are read
    settings.ReadProperties();
    EXPECT_TRUE(settings.firstRun());
    settings.SaveProperties();
    expectStored("firstrun.txt");
}

TEST_F(AppPropertiesTest, WhatWasChangedIsStoredByItsNameAndComesBack)
{
    store.createKey(HKEY_CURRENT_USER, Key + "\\MRUFiles");
    settings.ReadProperties(); // there is a key, but no record in it
    EXPECT_TRUE(settings.ErrorBeep() && !settings.firstRun());
    settings.SaveProperties();
    const RegistryTree before = store;
    change();
    settings.setQuizWindow({-5, 20, 700, 500});
    for (int round = 0; round < 2; ++round) {
        settings.SaveProperties();
        expectStored("changed.txt");
        settings.ReadProperties();
    }
    clsAppProperties(store, "").SaveProperties(); // the defaults
    EXPECT_EQ(store, before);
}

TEST_F(AppPropertiesTest, ValuesThatCannotBeTrustedAreRepaired)
{
    const auto with = [this](const QByteArray &record) {
        store.setValue(HKEY_CURRENT_USER, Key, "Settings", {RegistryType::Binary, record});
        settings.ReadProperties();
        return std::array{settings.FontSize(), settings.QuizMode(), settings.AutoTimerInterval(), +settings.FontBold()};
    };
    EXPECT_EQ(with(QByteArray("\2", 1)), (std::array{10, 1, 0, 0}));
    EXPECT_EQ(with(QByteArray(39, '\xff')), (std::array{10, 1, 0, 1}));
    EXPECT_EQ(with(QByteArray(39, '\x7f')), (std::array{clsAppProperties::LargestFontSize, 1, 0x7f7f7f7f, 1}));
    EXPECT_EQ(with(QByteArray(18, '\0') + QByteArray("\1\0\5\0", 4)), (std::array{1, 5, 0, 0}));
    const RegistryValue text{RegistryType::String, QString(" ")};
    const auto number = [](quint32 value) { return RegistryValue{RegistryType::Number, value}; };
    const std::vector<std::pair<const char *, RegistryValue>> values{
        {"QuizMostWords", number(32768)}, {"ShowLetters", number(2)}, {"QuizRememberAnswers", number(2)},
        {"QuizMostWords", text},          {"FontName", text},         {"QuizMostWords", number(UINT_MAX)},
        {"QuizWindowHeight", number(9)},  {"QuizWindowHeight", text}, {"QuizWindowWidth", number(9)}};
    for (const auto &[name, value] : values) {
        store.setValue(HKEY_CURRENT_USER, Key, name, value);
        settings.ReadProperties();
        EXPECT_EQ(settings.quizOptions(), QuizOptions()) << name;
        EXPECT_TRUE(settings.FontName() == "Arial" && !settings.ShowLetters() && settings.QuizWindow().isEmpty());
    }
    // edges, first of places that a screen can have
    const int edges[][4] = {{0, 1, 0, 1},     {1, 0, 1, 0},      {-32767, -32767, 32767, 32767},
                            {9, 9, 8, 9},     {9, 9, 9, -9},     {-32768, 0, 9, 9},
                            {0, 0, 9, 32768}, {0, 0, INT_MAX, 9}};
    for (int i = 0; i < 8; ++i) {
        const QRect place(QPoint(edges[i][0], edges[i][1]), QPoint(edges[i][2], edges[i][3]));
        settings.setQuizWindow(place);
        settings.SaveProperties();
        settings.ReadProperties();
        EXPECT_EQ(settings.QuizWindow(), i < 3 ? place : QRect());
    }
}
