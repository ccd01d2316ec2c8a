#pragma once

#include "platform/Speaker.h"

#include <QObject>
#include <QTextToSpeech>
#include <QTimer>
#include <QVoice>

#include <deque>
#include <memory>

/// Works the toolkit's speech on the thread it lives in, since the desktop's speech service can keep its callers
/// waiting. Owns the engine, which it opens at the first request, and the texts that are still to be read.
class SpeechWorker : public QObject
{
    Q_OBJECT

public:
    /// The engine to use: the one that works the desktop's service, which reads most languages, if that is installed;
    /// empty if there is none.
    static QString engine();

    void open();
    void say(const std::vector<Utterance> &texts);
    void stop();

Q_SIGNALS:
    /// There is a voice for these languages; for none if the service does not answer.
    void opened(const Speaker::Languages &languages);

private:
    void onState(QTextToSpeech::State state);
    void sayNext();
    QList<QVoice> voicesFor(QLocale::Language language);

    std::unique_ptr<QTextToSpeech> m_engine;
    QHash<QLocale::Language, QLocale> m_locales;
    std::deque<Utterance> m_waiting;
    bool m_busy = false; ///< a text was handed to the engine and has not ended
    QTimer m_patience{this};
};
