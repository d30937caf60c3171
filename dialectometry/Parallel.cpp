#include "dialectometry/Parallel.h"

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

void inParallel(int steps, const std::function<void(int)>& step)
{
    std::atomic<int> next = 0;
    const auto work = [&] {
        for (int i = next++; i < steps; i = next++) {
            step(i);
        }
    };
    std::vector<std::future<void>> threads;
    for (int thread = 1; thread < std::min(workers(), steps); ++thread) {
        threads.push_back(std::async(std::launch::async, work));
    }
    work();
    for (std::future<void>& thread : threads) {
        thread.get();
    }
}
