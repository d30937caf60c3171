#include "tests/support/FailingStep.h"

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

/// What each step fails with; 0 where it does not.
std::array<int, 2> errors{};

int& errorOfStep(SaveStep step)
{
    return errors.at(static_cast<std::size_t>(step));
}

/// What the system answers, or the error that the step fails with.
template <typename... Arguments>
int answer(SaveStep step, long number, Arguments... arguments)
{
    if (errorOfStep(step) != 0) {
        errno = errorOfStep(step);
        return -1;
    }
    return static_cast<int>(syscall(number, arguments...));
}

} // namespace

FailingStep::FailingStep(SaveStep step, int error) : m_error(errorOfStep(step))
{
    m_error = error;
}

FailingStep::~FailingStep()
{
    m_error = 0;
}

// They take the place of the functions of the system in this program, and in the libraries that it loads. A
// file that had no name yet is put in its place by a link.

extern "C" int fsync(int file)
{
    return answer(SaveStep::Sync, SYS_fsync, file);
}

extern "C" int rename(const char* from, const char* to) noexcept
{
    return answer(SaveStep::Rename, SYS_renameat2, AT_FDCWD, from, AT_FDCWD, to, 0U);
}

extern "C" int renameat2(int fromFolder, const char* from, int toFolder, const char* to,
                         unsigned flags) noexcept
{
    return answer(SaveStep::Rename, SYS_renameat2, fromFolder, from, toFolder, to, flags);
}

extern "C" int linkat(int fromFolder, const char* from, int toFolder, const char* to, int flags) noexcept
{
    return answer(SaveStep::Rename, SYS_linkat, fromFolder, from, toFolder, to, flags);
}
