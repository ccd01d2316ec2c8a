#pragma once

#include "platform/Speaker.h"

#include <QObject>
#include <QPointer>
#include <QThread>

#include <optional>

class SpeechWorker;

/// The speaker of the speech module: hands everything on to a worker on a thread of its own.
class QtSpeaker : public QObject, public Speaker
{
    Q_OBJECT

public:
    QtSpeaker();
    /// Ends what is being read. A service that hangs is waited for no longer than some seconds.
    ~QtSpeaker() override;

    bool isThere() override;
    void askLanguages(QObject *context, const std::function<void(const Languages &)> &tell) override;
    void say(const std::vector<Utterance> &texts) override;
    void stop() override;

private:
    struct Waiting
    {
        QPointer<QObject> context;
        std::function<void(const Languages &)> tell;
    };
    void onOpened(const Languages &languages);

    QThread *m_thread;
    SpeechWorker *m_worker;
    std::optional<Languages> m_languages;
    std::vector<Waiting> m_waiting;
};
