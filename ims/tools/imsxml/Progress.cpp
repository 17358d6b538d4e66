#include "Progress.h"

#include <poll.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <climits>
#include <cmath>

void Progress::Enter(Stage stage) const {
    while (write(m_pipe, &stage, sizeof stage) < 0 && errno == EINTR) {
    }
}

bool WaitForEnd(int pipe, double seconds, Stage& stage) {
    using Clock = std::chrono::steady_clock;
    const auto start = Clock::now();
    for (;;) {
        const double left = seconds - std::chrono::duration<double>(Clock::now() - start).count();
        if (seconds > 0 && left <= 0) return false;
        const double wait = std::min(std::ceil(left * 1000), static_cast<double>(INT_MAX));
        pollfd end = {pipe, POLLIN, 0};
        const int count = poll(&end, 1, seconds > 0 ? static_cast<int>(wait) : -1);
        if (count == 0 || (count < 0 && errno == EINTR)) continue;
        Stage entered{};
        const ssize_t got = count > 0 ? read(pipe, &entered, sizeof entered) : -1;
        if (got == sizeof entered) {
            stage = entered;
        } else if (got == 0 || errno != EINTR) {
            return true;
        }
    }
}
