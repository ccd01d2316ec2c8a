#pragma once

#include <cstddef>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/syscall.h>

/// A system call that is to fail with an error.
struct RefusedCall
{
    int number;
    int error;

    /// From now on it fails in this process, which is to be a child for it.
    void refuse() const
    {
        sock_filter steps[] = {BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
                               BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, unsigned(number), 0, 1),
                               BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | unsigned(error)),
                               BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW)};
        const sock_fprog program{std::size(steps), steps};
        EXPECT_EQ(::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0), 0);
        EXPECT_EQ(::prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program), 0);
    }
};
