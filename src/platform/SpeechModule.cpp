#include "platform/SpeechModule.h"

#include <QLibrary>

#include <utility>

Speaker *SpeechModule::loaded()
{
    const QString file = std::exchange(m_file, QString());
    if (file.isEmpty())
        return m_speaker.get();
    QLibrary module(file);
    if (const auto make = reinterpret_cast<Make>(module.resolve(MakeName)))
        m_speaker.reset(make());
    return m_speaker.get();
}

bool SpeechModule::isThere()
{
    return loaded() && loaded()->isThere();
}

void SpeechModule::askLanguages(QObject *context, const std::function<void(const Languages &)> &tell)
{
    if (loaded())
        loaded()->askLanguages(context, tell);
    else
        tell({});
}

void SpeechModule::say(const std::vector<Utterance> &texts)
{
    if (loaded())
        loaded()->say(texts);
}

void SpeechModule::stop()
{
    if (m_speaker)
        m_speaker->stop();
}
