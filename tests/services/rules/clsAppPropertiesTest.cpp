#include "services/rules/clsAppProperties.h"

#include "platform/RegistryTree.h"
#include "services/rules/clsRegistry.h"

#include <QRandomGenerator>

namespace {

const QString Key = QStringLiteral("Software\\Glosaria");
const QString Program = QStringLiteral("/opt/glosaria/glosaria");

/// 0x80 and above stand out, so that each byte tells where it came from.
SettingsRecord telling()
{
    SettingsRecord values;
    values.AppWinState = 2;
    values.AutoCheck = true;
    values.AutoTimerInterval = 0x04030201;
    values.ErrorBeep = false;
    values.ErrorHint = true;
    values.FontBold = true;
    values.FontColor = int(0x80112233);
    values.FontItalic = true;
    values.FontSize = 0x0102;
    values.QuizMode = 5;
    values.WinPosBottom = 0x14131211;
    values.WinPosLeft = -2;
    values.WinPosRight = 0x24232221;
    values.WinPosTop = 0x34333231;
    return values;
}

QByteArray stored(RegistryTree &store)
{
    const auto value = store.value(HKEY_CURRENT_USER, Key, QStringLiteral("Settings"));
    return value ? std::get<QByteArray>(value->data) : QByteArray();
}

void store(RegistryTree &store, const QByteArray &record)
{
    store.setValue(HKEY_CURRENT_USER, Key, QStringLiteral("Settings"), {RegistryType::Binary, record});
}

QString defaultOf(const RegistryTree &store, const QString &key)
{
    const auto value = store.value(HKEY_CLASSES_ROOT, key, QString());
    return value ? std::get<QString>(value->data) : QStringLiteral("none");
}

} // namespace

TEST(SettingsRecord, LayoutByteForByte)
{
    const QByteArray expected = QByteArray::fromHex("0200"
                                                    "01"
                                                    "01"
                                                    "01020304"
                                                    "00"
                                                    "01"
                                                    "01"
                                                    "00"
                                                    "33221180"
                                                    "01"
                                                    "00"
                                                    "0201"
                                                    "0500"
                                                    "0000"
                                                    "11121314"
                                                    "feffffff"
                                                    "21222324"
                                                    "313233");
    EXPECT_EQ(telling().toBytes().toHex(), expected.toHex());
    SettingsRecord back = telling();
    back.WinPosTop &= 0xffffff;
    EXPECT_EQ(SettingsRecord::fromBytes(expected), back);
    EXPECT_EQ(SettingsRecord::fromBytes(QByteArray(expected + "more")), back);
}

TEST(SettingsRecord, FirstOfTheTwoFlagsDecides)
{
    QByteArray bytes = SettingsRecord().toBytes();
    bytes[3] = 1;
    EXPECT_FALSE(SettingsRecord::fromBytes(bytes).AutoCheck);
    bytes[2] = char(0x80);
    bytes[3] = 0;
    EXPECT_TRUE(SettingsRecord::fromBytes(bytes).AutoCheck);
}

TEST(AppProperties, FirstRunSetsDefaultsAndRegistersTheFileType)
{
    RegistryTree store;
    clsAppProperties properties(store, Program);
    properties.ReadProperties();
    EXPECT_TRUE(properties.firstRun());
    EXPECT_EQ(properties.FontName(), QStringLiteral("Arial"));
    EXPECT_EQ(properties.FontSize(), 10);
    EXPECT_EQ(properties.FontColor(), 0);
    EXPECT_EQ(properties.QuizMode(), 1);
    EXPECT_TRUE(properties.ErrorBeep());
    EXPECT_FALSE(properties.ErrorHint() || properties.AutoCheck() || properties.FontBold() || properties.FontItalic());
    EXPECT_EQ(properties.AppWinState(), 0);
    for (int twips :
         {properties.WinPosLeft(), properties.WinPosTop(), properties.WinPosRight(), properties.WinPosBottom()})
        EXPECT_EQ(twips, -1);
    EXPECT_EQ(defaultOf(store, QStringLiteral(".gla")), QStringLiteral("Glosaria.Document"));
    EXPECT_EQ(defaultOf(store, QStringLiteral("Glosaria.Document")), QStringLiteral("Glosaria Document"));
    EXPECT_EQ(defaultOf(store, QStringLiteral("Glosaria.Document\\shell\\open\\command")),
              QStringLiteral("/opt/glosaria/glosaria \"%1\""));
    EXPECT_EQ(defaultOf(store, QStringLiteral("Glosaria.Document\\DefaultIcon")),
              QStringLiteral("/opt/glosaria/glosaria,1"));
}

TEST(AppProperties, SavedSettingsComeBack)
{
    RegistryTree store;
    clsAppProperties saved(store, Program);
    saved.setFontName(QStringLiteral("Noto Sans"));
    saved.setFontColor(0x00ff8000);
    saved.setFontSize(14);
    saved.setQuizMode(4);
    saved.setAutoCheck(true);
    saved.setWinPosTop(1500);
    saved.SaveProperties();
    clsAppProperties read(store, Program);
    read.ReadProperties();
    EXPECT_FALSE(read.firstRun());
    EXPECT_EQ(read.FontName(), QStringLiteral("Noto Sans"));
    EXPECT_EQ(read.FontColor(), 0x00ff8000);
    EXPECT_EQ(read.WinPosTop(), 1500);
    EXPECT_EQ(defaultOf(store, QStringLiteral(".gla")), QStringLiteral("none"));
    const QByteArray before = stored(store);
    read.SaveProperties();
    EXPECT_EQ(stored(store), before);
    EXPECT_EQ(before.size(), 39);
}

TEST(AppProperties, KeyWithoutRecordKeepsTheDefaults)
{
    RegistryTree registry;
    registry.createKey(HKEY_CURRENT_USER, Key + QStringLiteral("\\MRUFiles"));
    clsAppProperties properties(registry, Program);
    properties.ReadProperties();
    EXPECT_FALSE(properties.firstRun());
    EXPECT_TRUE(properties.ErrorBeep());
    EXPECT_EQ(properties.WinPosTop(), -1);
}

TEST(AppProperties, RecordCutShortOrOutOfRangeIsRepaired)
{
    QByteArray wild(39, char(0x80));
    wild[0] = 7;
    QRandomGenerator random(1);
    QByteArrayList records = {QByteArray(), QByteArray("\2", 1), QByteArray(39, '\0'), QByteArray(39, '\xff'), wild};
    for (int i = 0; i < 2000; ++i) {
        QByteArray bytes(random.bounded(45), Qt::Uninitialized);
        std::generate(bytes.begin(), bytes.end(), [&random] { return char(random.generate()); });
        records += bytes;
    }
    for (const QByteArray &record : records) {
        RegistryTree registry;
        store(registry, record);
        registry.setValue(HKEY_CURRENT_USER, Key, QStringLiteral("FontName"),
                          {RegistryType::String, QStringLiteral(" ")});
        clsAppProperties properties(registry, Program);
        properties.ReadProperties();
        EXPECT_TRUE(properties.QuizMode() >= 1 && properties.QuizMode() <= 5) << record.toHex().constData();
        EXPECT_TRUE(properties.FontSize() >= 1 && properties.FontSize() <= clsAppProperties::LargestFontSize);
        EXPECT_GE(properties.AutoTimerInterval(), 0);
        EXPECT_EQ(properties.FontName(), QStringLiteral("Arial"));
        properties.SaveProperties();
        EXPECT_EQ(stored(registry).size(), 39);
    }
}
