#pragma once

#include <csignal>
#include <sys/resource.h>

/// While it lives, no file can grow beyond `bytes`: writing fails as on a full disk. That goes for the test's
/// own output too, so nothing is asserted meanwhile.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(long long bytes) : m_handler(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limit{static_cast<rlim_t>(bytes), m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

private:
    void (*m_handler)(int);
    rlimit m_before{};
};
