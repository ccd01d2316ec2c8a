#include "platform/speech/QtSpeaker.h"

#include "platform/speech/SpeechWorker.h"

#include <utility>

namespace {

constexpr unsigned long LongestWait = 5000; // milliseconds

} // namespace

QtSpeaker::QtSpeaker()
    : m_thread(new QThread)
    , m_worker(new SpeechWorker)
{
    m_worker->moveToThread(m_thread);
    connect(m_thread, &QThread::finished, m_worker, &QObject::deleteLater);
    connect(m_worker, &SpeechWorker::opened, this, &QtSpeaker::onOpened);
}

QtSpeaker::~QtSpeaker()
{
    if (!m_thread->isRunning()) {
        delete m_worker;
        delete m_thread;
        return;
    }
    QtSpeaker::stop();
    QMetaObject::invokeMethod(m_worker, [thread = m_thread] { thread->quit(); });
    if (m_thread->wait(LongestWait))
        delete m_thread;
}

bool QtSpeaker::isThere()
{
    return !SpeechWorker::engine().isEmpty();
}

void QtSpeaker::askLanguages(QObject *context, const std::function<void(const Languages &)> &tell)
{
    if (m_languages) {
        tell(*m_languages);
        return;
    }
    m_waiting.push_back({context, tell});
    if (!m_thread->isRunning())
        m_thread->start();
    QMetaObject::invokeMethod(m_worker, &SpeechWorker::open);
}

void QtSpeaker::onOpened(const Languages &languages)
{
    m_languages = languages;
    for (const Waiting &each : std::exchange(m_waiting, {})) {
        if (each.context)
            each.tell(languages);
    }
}

void QtSpeaker::say(const std::vector<Utterance> &texts)
{
    if (!m_thread->isRunning())
        m_thread->start();
    QMetaObject::invokeMethod(m_worker, [worker = m_worker, texts] { worker->say(texts); });
}

void QtSpeaker::stop()
{
    if (m_thread->isRunning())
        QMetaObject::invokeMethod(m_worker, &SpeechWorker::stop);
}

extern "C" Q_DECL_EXPORT Speaker *glosariaSpeaker()
{
    return new QtSpeaker;
}
