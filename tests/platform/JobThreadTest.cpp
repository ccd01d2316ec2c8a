#include "platform/JobThread.h"
#include "platform/FontReader.h"

#include <sys/resource.h>

TEST(JobThread, DoesAllJobsInTheirOrderAlsoWhereNoThreadCanBeHad)
{
    for (const bool threads : {true, false}) {
        EXPECT_TRUE(OrdinaryUser::run([threads] {
            const rlimit none{0, 0};
            if (!threads && ::setrlimit(RLIMIT_NPROC, &none) != 0)
                return false;
            std::vector<int> done;
            JobThread thread;
            const FontReader fonts;
            for (int job = 0; job < 100; ++job)
                thread.start([&done, job] { done.push_back(job); });
            thread.finish();
            return done.size() == 100 && std::is_sorted(done.begin(), done.end());
        })) << threads;
    }
}
