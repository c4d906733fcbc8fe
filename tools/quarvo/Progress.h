// Progress: one line on stderr, rewritten in place, for work that runs longer than a few
// seconds; short work prints nothing, so that scripts and tests see quiet output.
#pragma once

#include <chrono>
#include <cstddef>
#include <string>

namespace quarvo {

class Progress {
public:
    // what: "Building", "Drawing"...; total: how many items the work has.
    Progress(std::string what, std::size_t total);
    ~Progress();
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    // done items are finished; shows the line once the work has run for the delay.
    void Step(std::size_t done);

    // How long work runs before the line shows, and how often it is rewritten.
    static constexpr std::chrono::milliseconds kDelay{2000};
    static constexpr std::chrono::milliseconds kInterval{500};

private:
    using Clock = std::chrono::steady_clock;
    std::string m_what;
    std::size_t m_total;
    Clock::time_point m_start;
    Clock::time_point m_lastShown;
    bool m_shown = false;
};

}  // namespace quarvo
