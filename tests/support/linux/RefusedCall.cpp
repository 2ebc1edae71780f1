#include "tests/support/linux/RefusedCall.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <stdexcept>
#include <sys/prctl.h>

namespace marlo::test {

bool CanRefuseCalls() {
    return prctl(PR_GET_SECCOMP, 0, 0, 0, 0) >= 0;
}

void RefuseCall(long number, int error) {
    const auto call = static_cast<std::uint32_t>(number);
    const std::uint32_t refusal = SECCOMP_RET_ERRNO | static_cast<std::uint32_t>(error);
    // The system runs this small program at each call, and does as it answers.
    std::array<sock_filter, 4> instructions = {
        sock_filter BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
        sock_filter BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, call, 0, 1),
        sock_filter BPF_STMT(BPF_RET | BPF_K, refusal),
        sock_filter BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW)};
    const sock_fprog program{.len = static_cast<unsigned short>(instructions.size()),
                             .filter = instructions.data()};
    if (prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) != 0 ||
        prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program) != 0)
        throw std::runtime_error(kNoRefusedCalls);
}

}  // namespace marlo::test
