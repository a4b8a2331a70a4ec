#pragma once

#include <atomic>
#include <thread>

/// Runs @p act again and again in a thread of its own for as long as it lives.
template <typename Act>
class Meanwhile {
public:
    explicit Meanwhile(const Act& act)
        : thread_([this, act] {
              for (; !is_over_; ++times_)
                  act();
          })
    {
    }
    ~Meanwhile()
    {
        is_over_ = true;
        thread_.join();
    }
    Meanwhile(const Meanwhile&) = delete;
    Meanwhile& operator=(const Meanwhile&) = delete;

    /// Whether it was done often enough for both threads to have met.
    bool is_enough() const { return times_ >= 200; }

private:
    std::atomic<bool> is_over_ = false;
    std::atomic<int> times_ = 0;
    std::thread thread_;
};
