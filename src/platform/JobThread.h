#pragma once

#include <QtGlobal>

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>

/// Does jobs on a thread of its own, one after the other in the order in which they are given. While no thread can be
/// had, whoever gives a job does it. Used by one thread.
class JobThread
{
public:
    using Job = std::function<void()>;

    JobThread() = default;
    /// Waits until all jobs are done.
    ~JobThread();
    Q_DISABLE_COPY_MOVE(JobThread)

    void start(Job job);
    /// Waits until all jobs are done.
    void finish();

private:
    bool hasThread();
    void work();

    std::thread m_thread;
    std::mutex m_mutex;
    std::condition_variable m_changed; ///< what stands below
    std::deque<Job> m_jobs;            ///< the first is being done
    bool m_ends = false;
};
