#include "styleconv/process/Workers.h"

#include <algorithm>
#include <condition_variable>
#include <exception>
#include <mutex>
#include <system_error>
#include <thread>
#include <vector>

namespace styleconv {
namespace {

// The items of one call, of which each thread takes the next that nobody has.
class Queue {
public:
    Queue(std::size_t count, const ItemWork& items) : items_(items), isDone_(count, false), errors_(count) {}
    ~Queue() {
        {
            const std::lock_guard lock(mutex_);
            next_ = isDone_.size();
        }
        for (std::thread& thread : threads_) {
            thread.join();
        }
    }
    Queue(const Queue&) = delete;
    Queue& operator=(const Queue&) = delete;

    void Start(std::size_t threads) {
        threads_.reserve(threads);
        try {
            while (threads_.size() < threads) {
                threads_.emplace_back([this] {
                    while (WorkOnNext()) {
                    }
                });
            }
        } catch (const std::system_error&) {
            // Those that there are do the work.
        }
    }

    void TakeAll() {
        for (std::size_t item = 0; item < isDone_.size(); ++item) {
            while (!IsDone(item)) {
                if (!WorkOnNext()) {
                    Await(item);
                }
            }
            if (errors_[item] != nullptr) {
                std::rethrow_exception(errors_[item]);
            }
            items_.take(item);
        }
    }

private:
    // False when there is none.
    bool WorkOnNext() {
        std::size_t item = 0;
        {
            const std::lock_guard lock(mutex_);
            if (next_ == isDone_.size()) {
                return false;
            }
            item = next_++;
        }
        try {
            items_.work(item);
        } catch (...) {
            errors_[item] = std::current_exception();
        }
        {
            const std::lock_guard lock(mutex_);
            isDone_[item] = true;
        }
        done_.notify_one();
        return true;
    }

    bool IsDone(std::size_t item) {
        const std::lock_guard lock(mutex_);
        return isDone_[item];
    }

    void Await(std::size_t item) {
        items_.waitFor(item);
        std::unique_lock lock(mutex_);
        done_.wait(lock, [this, item] { return isDone_[item]; });
    }

    const ItemWork& items_;
    std::mutex mutex_;
    std::condition_variable done_; // for the calling thread, which alone waits
    std::size_t next_ = 0;
    std::vector<bool> isDone_;
    std::vector<std::exception_ptr> errors_;
    std::vector<std::thread> threads_;
};

} // namespace

std::size_t CoreCount() {
    return std::max(1U, std::thread::hardware_concurrency());
}

void WorkInOrder(std::size_t count, std::size_t threads, const ItemWork& items) {
    Queue queue(count, items);
    const std::size_t workers = std::min(count, threads);
    queue.Start(workers > 0 ? workers - 1 : 0);
    queue.TakeAll();
}

} // namespace styleconv
