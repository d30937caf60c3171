#include "platform/Parallel.h"

#include <algorithm>
#include <atomic>
#include <future>
#include <thread>
#include <vector>

int workers()
{
    constexpr int Most = 16;
    return std::clamp(static_cast<int>(std::thread::hardware_concurrency()), 1, Most);
}

void inParallel(int steps, const std::function<void(int)>& step, int threads)
{
    std::atomic<int> next = 0;
    const auto work = [&] {
        for (int i = next++; i < steps; i = next++) {
            step(i);
        }
    };
    std::vector<std::future<void>> others;
    for (int thread = 1; thread < std::min(threads, steps); ++thread) {
        others.push_back(std::async(std::launch::async, work));
    }
    work();
    for (std::future<void>& other : others) {
        other.get();
    }
}
