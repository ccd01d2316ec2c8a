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
}
