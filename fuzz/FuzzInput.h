#pragma once

#include "platform/RunTimeError.h"

#include <QByteArray>

#include <cstddef>
#include <cstdint>
#include <cstdlib>

/// What a fuzzing program is fed with.
inline QByteArray inputOf(const std::uint8_t* data, std::size_t size)
{
    return {reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)};
}

/// Runs `work`; an error of the run-time is an answer, whatever else ends it is a fault.
template <typename Work>
void expectAnswer(Work work)
{
    try {
        work();
    } catch (const RunTimeError&) {
    }
}

/// Ends the program with a fault unless `holds`.
inline void require(bool holds)
{
    if (!holds) {
        std::abort();
    }
}
