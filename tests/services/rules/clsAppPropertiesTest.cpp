#include "services/settings/clsAppProperties.h"

#include "platform/registry/RegistryText.h"

const QString Key = "Software\\Glosaria";

struct AppPropertiesTest : ::testing::Test
{
    RegistryTree store;
    clsAppProperties settings{store, "/opt/glosaria/glosaria"};

    std::string stored() const { return RegistryText::write(store).simplified().toStdString(); }
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
    settings.setGridZoom(150);
    settings.setShowLetters(true);
    settings.setFontName("Noto Sans");
    settings.ReadProperties();
    EXPECT_TRUE(settings.firstRun());
    settings.SaveProperties();
    EXPECT_EQ(
        stored(),
        R"(Glosaria registry 1 HKEY_CLASSES_ROOT ".gla" "" = string "Glosaria.Document" HKEY_CLASSES_ROOT )"
        R"("Glosaria.Document" "" = string "Glosaria Document" HKEY_CLASSES_ROOT "Glosaria.Document\\DefaultIcon" )"
        R"("" = string "/opt/glosaria/glosaria,1" HKEY_CLASSES_ROOT "Glosaria.Document\\shell" HKEY_CLASSES_ROOT )"
        R"("Glosaria.Document\\shell\\open" HKEY_CLASSES_ROOT "Glosaria.Document\\shell\\open\\command" "" = )"
        R"(string "/opt/glosaria/glosaria \"%1\"" HKEY_CURRENT_USER "Software" HKEY_CURRENT_USER )"
        R"("Software\\Glosaria" "FontName" = string "Arial" "Settings" = binary 00 00 00 00 00 00 00 00 01 00 00 )"
        R"(00 00 00 00 00 00 00 0a 00 01 00 00 00 ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff end)");
}

TEST_F(AppPropertiesTest, WhatWasChangedIsStoredByItsNameAndComesBack)
{
    store.createKey(HKEY_CURRENT_USER, Key + "\\MRUFiles");
    settings.ReadProperties(); // there is a key, but no record in it
    EXPECT_TRUE(settings.ErrorBeep() && !settings.firstRun());
    settings.SaveProperties();
    const std::string before = stored();
    settings.setFontName("Noto Sans");
    settings.setQuizMode(4);
    settings.setQuizOptions({32767, {true, true, true, true, true}, true, true, false});
    settings.setQuizWindow({-5, 20, 700, 500});
    settings.setShowLetters(true);
    settings.setGridZoom(150);
    for (int round = 0; round < 2; ++round) {
        settings.SaveProperties();
        EXPECT_EQ(
            stored(),
            R"(Glosaria registry 1 HKEY_CURRENT_USER "Software" HKEY_CURRENT_USER "Software\\Glosaria" "FontName" = )"
            R"(string "Noto Sans" "GridZoom" = number 150 "QuizForgiveAccents" = number 1 "QuizForgiveBlanks" = number )"
            R"(1 "QuizForgiveBrackets" = number 1 "QuizForgiveCase" = number 1 "QuizMostWords" = number 32767 )"
            R"("QuizOneOfSeveral" = number 1 "QuizReadAnswer" = number 1 "QuizReadQuestion" = number 1 )"
            R"("QuizRememberAnswers" = number 0 "QuizWindowHeight" = number 500 "QuizWindowLeft" = number 4294967291 )"
            R"("QuizWindowTop" = number 20 "QuizWindowWidth" = number 700 "Settings" = binary 00 00 00 00 00 00 00 00 )"
            R"(01 00 00 00 00 00 00 00 00 00 0a 00 04 00 00 00 ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff )"
            R"("ShowLetters" = number 1 HKEY_CURRENT_USER "Software\\Glosaria\\MRUFiles" end)");
        settings.ReadProperties();
    }
    clsAppProperties(store, "").SaveProperties(); // the defaults
    EXPECT_EQ(stored(), before);
}

TEST_F(AppPropertiesTest, ValuesThatCannotBeTrustedAreRepaired)
{
    const auto with = [this](const QByteArray &record) {
        store.setValue(HKEY_CURRENT_USER, Key, "Settings", {RegistryType::Binary, record});
        settings.ReadProperties();
        return std::array{settings.FontSize(), settings.QuizMode(), settings.AutoTimerInterval()};
    };
    EXPECT_EQ(with(QByteArray("\2", 1)), (std::array{10, 1, 0}));
    EXPECT_EQ(with(QByteArray(39, '\xff')), (std::array{10, 1, 0}));
    EXPECT_EQ(with(QByteArray(39, '\x7f')), (std::array{clsAppProperties::LargestFontSize, 1, 0x7f7f7f7f}));
    EXPECT_EQ(with(QByteArray(18, '\0') + QByteArray("\1\0\5\0", 4)), (std::array{1, 5, 0}));
    const RegistryValue tooMany{RegistryType::Number, 32768u}, text{RegistryType::String, QString(" ")};
    const std::vector<std::pair<const char *, RegistryValue>> values{
        {"QuizMostWords", tooMany}, {"ShowLetters", tooMany}, {"QuizRememberAnswers", tooMany},
        {"QuizMostWords", text},    {"FontName", text},       {"QuizMostWords", {RegistryType::Number, 0xffffffffu}}};
    for (const auto &[name, value] : values) {
        store.setValue(HKEY_CURRENT_USER, Key, name, value);
        settings.ReadProperties();
        EXPECT_EQ(settings.quizOptions(), QuizOptions()) << name;
        EXPECT_TRUE(settings.FontName() == "Arial" && !settings.ShowLetters()) << name;
    }
    for (const QRect place :
         {QRect(9, 9, 0, 9), QRect(9, 9, 9, -9), QRect(INT_MIN, 0, 9, 9), QRect(0, 0, INT_MAX, 9)}) {
        settings.setQuizWindow(place);
        EXPECT_EQ(settings.QuizWindow(), QRect());
    }
}
