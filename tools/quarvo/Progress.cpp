// Progress: a line on stderr for long work.
#include "Progress.h"

#include <cstdio>

namespace quarvo {

Progress::Progress(std::string what, std::size_t total)
    : m_what(std::move(what)), m_total(total), m_start(Clock::now()), m_lastShown(m_start)
{}

Progress::~Progress()
{
    if (m_shown)
        std::fprintf(stderr, "\r%s: %zu of %zu, done.\n", m_what.c_str(), m_total, m_total);
}

void Progress::Step(std::size_t done)
{
    const Clock::time_point now = Clock::now();
    if (now - m_start < kDelay || (m_shown && now - m_lastShown < kInterval))
        return;
    const int percent = m_total > 0 ? static_cast<int>(done * 100 / m_total) : 100;
    std::fprintf(stderr, "\r%s: %zu of %zu (%d%%)", m_what.c_str(), done, m_total, percent);
    std::fflush(stderr);
    m_shown = true;
    m_lastShown = now;
}

}  // namespace quarvo
