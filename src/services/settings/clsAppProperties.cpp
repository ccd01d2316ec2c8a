#include "services/settings/clsAppProperties.h"

#include "services/rules/QuizModes.h"
#include "services/settings/clsRegistry.h"

namespace {

QString defaultFontName()
{
    return QStringLiteral("Arial");
}

clsRegistry settingsKey(RegistryStore &store)
{
    clsRegistry registry(store);
    registry.setClassKey(HKEY_CURRENT_USER);
    registry.setSectionKey(QStringLiteral("Software\\Glosaria"));
    return registry;
}

/// The options that are on or off, by the names under which they are stored.
struct Switch
{
    const char *name;
    bool &(*value)(QuizOptions &options);
};

constexpr Switch Switches[] = {
    {"QuizForgiveCase", [](QuizOptions &options) -> bool & { return options.tolerance.letterCase; }},
    {"QuizForgiveAccents", [](QuizOptions &options) -> bool & { return options.tolerance.accents; }},
    {"QuizForgiveBlanks", [](QuizOptions &options) -> bool & { return options.tolerance.blanksAndPunctuation; }},
    {"QuizForgiveBrackets", [](QuizOptions &options) -> bool & { return options.tolerance.brackets; }},
    {"QuizOneOfSeveral", [](QuizOptions &options) -> bool & { return options.tolerance.oneOfSeveral; }},
    {"QuizReadQuestion", [](QuizOptions &options) -> bool & { return options.readQuestion; }},
    {"QuizReadAnswer", [](QuizOptions &options) -> bool & { return options.readAnswer; }},
    {"QuizRememberAnswers", [](QuizOptions &options) -> bool & { return options.rememberAnswers; }},
};
constexpr char MostWordsName[] = "QuizMostWords";
constexpr char ShowLettersName[] = "ShowLetters";
constexpr char GridZoomName[] = "GridZoom";

/// A stored number; the default where there is none, or something else.
int storedNumber(clsRegistry &registry, const char *name, int byDefault)
{
    registry.setValueKey(QString::fromLatin1(name));
    const QVariant stored = registry.Value();
    return stored.typeId() == QMetaType::Int ? stored.toInt() : byDefault;
}

/// What was never changed stays out of the store.
void storeNumber(clsRegistry &registry, const char *name, int number, int byDefault)
{
    registry.setValueKey(QString::fromLatin1(name));
    registry.setValueType(RegistryType::Number);
    if (number != byDefault)
        registry.setValue(number);
    else if (registry.Value().isValid())
        registry.DeleteValue();
}

QuizOptions readOptions(clsRegistry &registry)
{
    QuizOptions options;
    options.mostWords = storedNumber(registry, MostWordsName, options.mostWords);
    for (const Switch &each : Switches) {
        bool &on = each.value(options);
        const int stored = storedNumber(registry, each.name, on);
        on = stored == 0 || stored == 1 ? stored == 1 : on;
    }
    return options;
}

void saveOptions(clsRegistry &registry, QuizOptions options)
{
    QuizOptions byDefault;
    storeNumber(registry, MostWordsName, options.mostWords, byDefault.mostWords);
    for (const Switch &each : Switches)
        storeNumber(registry, each.name, each.value(options), each.value(byDefault));
}

QRect readPlace(clsRegistry &registry)
{
    return {storedNumber(registry, "QuizWindowLeft", 0), storedNumber(registry, "QuizWindowTop", 0),
            storedNumber(registry, "QuizWindowWidth", 0), storedNumber(registry, "QuizWindowHeight", 0)};
}

void savePlace(clsRegistry &registry, const QRect &place)
{
    storeNumber(registry, "QuizWindowLeft", place.left(), 0);
    storeNumber(registry, "QuizWindowTop", place.top(), 0);
    storeNumber(registry, "QuizWindowWidth", place.width(), 0);
    storeNumber(registry, "QuizWindowHeight", place.height(), 0);
}

} // namespace

clsAppProperties::clsAppProperties(RegistryStore &store, const QString &programPath)
    : m_store(store)
    , m_programPath(programPath)
    , m_fontName(defaultFontName())
{
}

void clsAppProperties::setFontSize(int points)
{
    m_values.FontSize = points > 0 ? qint16(std::min(points, LargestFontSize)) : SettingsRecord().FontSize;
}

void clsAppProperties::setFontName(const QString &name)
{
    m_fontName = name.trimmed().isEmpty() ? defaultFontName() : name;
}

void clsAppProperties::setAutoTimerInterval(int milliseconds)
{
    m_values.AutoTimerInterval = std::max(milliseconds, 0);
}

void clsAppProperties::setQuizMode(int mode)
{
    m_values.QuizMode = QuizModes::exists(mode) ? qint16(mode) : SettingsRecord().QuizMode;
}

void clsAppProperties::setQuizOptions(const QuizOptions &options)
{
    m_quizOptions = options;
    if (options.mostWords < 0 || options.mostWords > QuizOptions::MostWords)
        m_quizOptions.mostWords = 0;
}

void clsAppProperties::setQuizWindow(const QRect &place)
{
    constexpr int Farthest = 32767;
    const QRect screens(QPoint(-Farthest, -Farthest), QPoint(Farthest, Farthest));
    m_quizWindow = !place.isEmpty() && screens.contains(place) ? place : QRect();
}

void clsAppProperties::setFrom(const SettingsRecord &record)
{
    m_values = record;
    setAutoTimerInterval(record.AutoTimerInterval);
    setFontSize(record.FontSize);
    setQuizMode(record.QuizMode);
}

void clsAppProperties::ReadProperties()
{
    clsRegistry registry = settingsKey(m_store);
    m_firstRun = !registry.KeyExists();
    m_values = SettingsRecord();
    m_fontName = defaultFontName();
    m_quizOptions = {};
    m_showLetters = false;
    m_gridZoom = NormalZoom;
    if (m_firstRun) {
        registry.CreateEXEAssociation(m_programPath, QStringLiteral("Glosaria.Document"),
                                      QStringLiteral("Glosaria Document"), QStringLiteral("gla"), 1);
        return;
    }
    // The key can exist without a record (the recent files live below it): then the defaults stay.
    registry.setValueKey(QStringLiteral("Settings"));
    const QVariant record = registry.Value();
    if (record.typeId() == QMetaType::QByteArray)
        setFrom(SettingsRecord::fromBytes(record.toByteArray()));
    registry.setValueKey(QStringLiteral("FontName"));
    setFontName(registry.Value().toString());
    setQuizOptions(readOptions(registry));
    setShowLetters(storedNumber(registry, ShowLettersName, 0) == 1);
    setQuizWindow(readPlace(registry));
    setGridZoom(storedNumber(registry, GridZoomName, NormalZoom));
}

void clsAppProperties::SaveProperties() const
{
    clsRegistry registry = settingsKey(m_store);
    if (!registry.KeyExists())
        registry.CreateKey();
    registry.setValueKey(QStringLiteral("Settings"));
    registry.setValueType(RegistryType::Binary);
    registry.setValue(m_values.toBytes());
    registry.setValueKey(QStringLiteral("FontName"));
    registry.setValueType(RegistryType::String);
    registry.setValue(m_fontName);
    saveOptions(registry, m_quizOptions);
    storeNumber(registry, ShowLettersName, m_showLetters, 0);
    savePlace(registry, m_quizWindow);
    storeNumber(registry, GridZoomName, m_gridZoom, NormalZoom);
}
