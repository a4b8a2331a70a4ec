#include "command.h"
#include "driver.h"
#include "platform.h"

#include <chrono>
#include <condition_variable>
#include <cstdlib>
#include <cstring>
#include <deque>
#include <mutex>
#include <thread>

/// The engine as a queue of commands, which a thread draws late. A rectangle that does not blend is filled by a unit of
/// its own, at once and without regard to the queue: that is why the toolkit waits before it asks for one.

namespace {

using board::Command;

constexpr std::chrono::microseconds delay{200};

class Queue {
public:
    ~Queue() { end(); }

    void add(const Command& command)
    {
        const std::lock_guard<std::mutex> lock(mutex_);
        if (!thread_.joinable())
            begin();
        commands_.push_back(command);
        changed_.notify_all();
    }

    void wait()
    {
        std::unique_lock<std::mutex> lock(mutex_);
        changed_.wait(lock, [this] { return commands_.empty(); });
    }

    /// Ends the thread when it has drawn everything; the next command starts another one.
    void end()
    {
        if (!thread_.joinable())
            return;
        {
            const std::lock_guard<std::mutex> lock(mutex_);
            is_ending_ = true;
            changed_.notify_all();
        }
        thread_.join();
    }

private:
    void begin()
    {
        is_ending_ = false;
        thread_ = std::thread([this] { run(); });
    }

    void run()
    {
        std::unique_lock<std::mutex> lock(mutex_);
        for (;;) {
            changed_.wait(lock, [this] { return is_ending_ || !commands_.empty(); });
            if (commands_.empty())
                return;
            draw_first(lock);
        }
    }

    /// A command stays in the queue until it is drawn.
    void draw_first(std::unique_lock<std::mutex>& lock)
    {
        const Command& first = commands_.front();
        lock.unlock();
        std::this_thread::sleep_for(delay);
        board::draw(first);
        lock.lock();
        commands_.pop_front();
        changed_.notify_all();
    }

    std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<Command> commands_;
    std::thread thread_;
    bool is_ending_ = false;
};

Queue queue;

/// A test leaves one wait out by naming it in the environment.
bool is_left_out(BoardWait reason)
{
    static const char* const left_out = std::getenv("ZUVO_VIRTUAL_WITHOUT");
    const char* const names[] = {"sync", "idle", "lock", "flip"};
    return left_out && std::strcmp(left_out, names[reason]) == 0;
}

bool is_for_fill_unit(const Command& command)
{
    return command.shape == board::Shape::rectangle && !command.blends && !command.has_pattern;
}

} // namespace

void board_wait(BoardWait reason)
{
    if (!is_left_out(reason))
        queue.wait();
}

namespace board {

void submit(const Command& command)
{
    if (is_for_fill_unit(command))
        draw(command);
    else
        queue.add(command);
}

void wait_until_drawn()
{
    board_wait(BOARD_WAIT_SYNC);
}

void prepare_directfb()
{
    driver_register();
}

void finish_directfb()
{
    queue.end();
}

} // namespace board
