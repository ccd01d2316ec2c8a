#pragma once

#include <cstddef>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/syscall.h>

/// A system call, made with all of the flags as its third argument, that is to fail with an error.
struct RefusedCall
{
    int number;
    int error;
    int flags = 0;

    /// From now on it fails in this process, which is to be a child for it.
    bool refuse() const
    {
        sock_filter steps[] = {BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
                               BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, unsigned(number), 0, 4),
                               BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, args[2])),
                               BPF_STMT(BPF_ALU | BPF_AND | BPF_K, unsigned(flags)),
                               BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, unsigned(flags), 0, 1),
                               BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | unsigned(error)),
                               BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW)};
        const sock_fprog program{std::size(steps), steps};
        return ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 && ::prctl(PR_SET_SECCOMP, 2, &program) == 0;
    }
};
