#include "platform/speech/SpeechWorker.h"

#include <QStandardPaths>

#include <algorithm>

namespace {

/// How long the end of a text that was stopped is waited for, in milliseconds.
constexpr int Patience = 300;

/// Mandarin has a language code that the toolkit does not know, so that its voices stand under no language.
constexpr char Mandarin[] = "Chinese (Mandarin";

/// Services call variants of a voice by its name with something added ("German", "German+whisper"), and take any of
/// them if none is chosen.
QVoice plainest(const QList<QVoice> &voices)
{
    const auto shorter = [](const QVoice &one, const QVoice &other) { return one.name().size() < other.name().size(); };
    const auto found = std::min_element(voices.begin(), voices.end(), shorter);
    return found == voices.end() ? QVoice() : *found;
}

} // namespace

QString SpeechWorker::engine()
{
    QStringList engines = QTextToSpeech::availableEngines();
    engines.removeAll(QStringLiteral("mock")); // for tests of the toolkit, silent
    QString usual = QStringLiteral("speechd");
    const bool isService = engines.removeAll(usual) > 0;
    if (isService && !QStandardPaths::findExecutable(QStringLiteral("speech-dispatcher")).isEmpty())
        return usual;
    return engines.value(0);
}

void SpeechWorker::open()
{
    if (m_engine)
        return;
    m_engine = std::make_unique<QTextToSpeech>(engine());
    m_patience.setSingleShot(true);
    connect(&m_patience, &QTimer::timeout, this, [this] { onState(QTextToSpeech::Ready); });
    connect(m_engine.get(), &QTextToSpeech::stateChanged, this, &SpeechWorker::onState);
    if (m_engine->state() != QTextToSpeech::Error) {
        const QList<QLocale> locales = m_engine->availableLocales();
        for (const QLocale &locale : locales) {
            // the language as it is spoken where most of its speakers live, if there is a choice
            if (!m_locales.contains(locale.language()) || locale == QLocale(locale.language()))
                m_locales.insert(locale.language(), locale);
        }
    }
    if (m_locales.remove(QLocale::C) && !m_locales.contains(QLocale::Chinese) && !voicesFor(QLocale::Chinese).isEmpty())
        m_locales.insert(QLocale::Chinese, QLocale::c());
    const QList<QLocale::Language> languages = m_locales.keys();
    Q_EMIT opened(Speaker::Languages(languages.begin(), languages.end()));
}

/// Has the engine read that language, and returns the voices that it has for it.
QList<QVoice> SpeechWorker::voicesFor(QLocale::Language language)
{
    const QLocale locale = m_locales.value(language, QLocale::c());
    m_engine->setLocale(locale);
    QList<QVoice> voices = m_engine->availableVoices();
    if (locale == QLocale::c())
        voices.removeIf([](const QVoice &voice) { return !voice.name().startsWith(QLatin1String(Mandarin)); });
    return voices;
}

void SpeechWorker::say(const std::vector<Utterance> &texts)
{
    open();
    stop();
    for (const Utterance &each : texts) {
        if (m_locales.contains(each.language))
            m_waiting.push_back(each);
    }
    sayNext();
}

void SpeechWorker::stop()
{
    m_waiting.clear();
    if (!m_busy)
        return;
    m_engine->stop();
    m_patience.start(Patience);
}

void SpeechWorker::onState(QTextToSpeech::State state)
{
    if (state == QTextToSpeech::Speaking || state == QTextToSpeech::Paused)
        return;
    m_patience.stop();
    m_busy = false;
    if (state == QTextToSpeech::Error)
        m_waiting.clear();
    // not from within the engine's own call
    QMetaObject::invokeMethod(this, &SpeechWorker::sayNext, Qt::QueuedConnection);
}

void SpeechWorker::sayNext()
{
    if (m_busy || m_waiting.empty())
        return;
    const Utterance next = m_waiting.front();
    m_waiting.pop_front();
    m_busy = true;
    if (const QVoice voice = plainest(voicesFor(next.language)); !voice.name().isEmpty())
        m_engine->setVoice(voice);
    m_engine->say(next.text);
}
