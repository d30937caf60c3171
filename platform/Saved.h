#pragma once

#include <concepts>
#include <optional>
#include <utility>

/// The contents that something had when it was loaded or saved last; of a new one, those of an empty `T`.
/// Whether there is unsaved work is never noted: it is asked by comparing, so an edit that is taken back, in
/// whichever way, leaves nothing unsaved.
template <std::equality_comparable T>
class Saved
{
public:
    /// Notes that `now` was just loaded or saved.
    void keep(T now) { m_contents = std::move(now); }
    /// Notes that nothing is saved, whatever the contents are.
    void forget() { m_contents.reset(); }
    /// Whether `now` is not what was loaded or saved.
    bool differs(const T& now) const { return m_contents != now; }

private:
    std::optional<T> m_contents = T();
};
