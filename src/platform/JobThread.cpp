#include "platform/JobThread.h"

#include <system_error>

JobThread::~JobThread()
{
    if (!m_thread.joinable())
        return;
    {
        const std::lock_guard lock(m_mutex);
        m_ends = true;
    }
    m_changed.notify_all();
    m_thread.join();
}

bool JobThread::hasThread()
{
    try {
        if (!m_thread.joinable())
            m_thread = std::thread(&JobThread::work, this);
        return true;
    } catch (const std::system_error &) {
        return false;
    }
}

void JobThread::start(Job job)
{
    if (!hasThread())
        return job();
    {
        const std::lock_guard lock(m_mutex);
        m_jobs.push_back(std::move(job));
    }
    m_changed.notify_all();
}

void JobThread::finish()
{
    std::unique_lock lock(m_mutex);
    m_changed.wait(lock, [this] { return m_jobs.empty(); });
}

void JobThread::work()
{
    std::unique_lock lock(m_mutex);
    for (;;) {
        m_changed.wait(lock, [this] { return m_ends || !m_jobs.empty(); });
        if (m_jobs.empty())
            return;
        const Job job = m_jobs.front();
        lock.unlock();
        job();
        lock.lock();
        m_jobs.pop_front();
        m_changed.notify_all();
    }
}
