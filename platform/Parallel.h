#pragma once

#include <functional>

/// How many threads work at once.
int workers();

/// Does the steps 0 to `steps` - 1, each once, by `threads` threads, the calling one among them. The first
/// error that a step raises is raised when all threads have ended.
void inParallel(int steps, const std::function<void(int)>& step, int threads = workers());
