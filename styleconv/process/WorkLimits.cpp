#include "styleconv/process/WorkLimits.h"

#include "styleconv/process/Interruption.h"
#include "styleconv/process/Messages.h"
#include "styleconv/process/ProcessMemory.h"
#include "styleconv/process/Progress.h"
#include "styleconv/process/TemporaryFile.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <new>

namespace styleconv {
namespace {

// How often time, memory and signals are looked at; within it a process can take some hundred MiB more than
// it may.
constexpr std::chrono::milliseconds kCheckInterval(20);

// A century: more seconds than that would leave the clock's range.
constexpr double kLongestTime = 3e9;

// As for an input that cannot be converted.
constexpr int kFailed = 1;

constexpr double kBytesPerMebibyte = 1048576.0;

struct ThreadWork {
    std::uint64_t begun = 0; // before those with larger numbers
    std::string file = "styleconv";
    std::string item;
};

struct Work {
    std::mutex mutex;
    std::uint64_t begun = 0;
    std::map<std::thread::id, ThreadWork> threads; // that are at something

    // The caller holds the mutex.
    ThreadWork& OfThisThread() {
        const auto [found, isNew] = threads.try_emplace(std::this_thread::get_id());
        if (isNew) {
            found->second.begun = ++begun;
        }
        return found->second;
    }

    ThreadWork Longest() {
        const std::lock_guard lock(mutex);
        const auto longest =
            std::min_element(threads.begin(), threads.end(), [](const auto& one, const auto& other) {
                return one.second.begun < other.second.begun;
            });
        return longest == threads.end() ? ThreadWork() : longest->second;
    }
};

Work& CurrentWork() {
    static Work work;
    return work;
}

// Guarded by FilesMutex.
bool lifted = false;

// Ends the process, unless the result came first.
void EndProcess(const std::string& what) {
    // Kept locked: nothing is renamed or created from here on.
    FilesMutex().lock();
    if (lifted) {
        FilesMutex().unlock();
        return;
    }
    try {
        const ThreadWork work = CurrentWork().Longest();
        SayError(work.file, what, work.item);
    } catch (const std::bad_alloc&) {
        std::fputs("styleconv: not enough memory\n", stderr);
    }
    TemporaryFile::RemoveAll();
    std::_Exit(kFailed);
}

// Ends the process as a signal asks, and leaves nothing behind.
void EndInterrupted(int signal) {
    FilesMutex().lock();
    ClearProgress();
    TemporaryFile::RemoveAll();
    EndByInterruption(signal);
}

} // namespace

void NowAtFile(std::string_view file) {
    Work& work = CurrentWork();
    const std::lock_guard lock(work.mutex);
    ThreadWork& own = work.OfThisThread();
    own.file = file;
    own.item.clear();
}

void NowAtItem(std::string_view item) {
    StepStage();
    Work& work = CurrentWork();
    const std::lock_guard lock(work.mutex);
    work.OfThisThread().item = item;
}

void NowAtNoFile() {
    Work& work = CurrentWork();
    const std::lock_guard lock(work.mutex);
    work.threads.erase(std::this_thread::get_id());
}

WorkLimits::WorkLimits(const LimitOptions& options)
    : options_(options), deadline_(std::chrono::steady_clock::now() +
                                   std::chrono::duration_cast<std::chrono::steady_clock::duration>(
                                       std::chrono::duration<double>(std::min(options.time, kLongestTime)))),
      thread_([this] { Watch(); }) {}

WorkLimits::~WorkLimits() {
    {
        const std::lock_guard lock(mutex_);
        end_ = true;
    }
    ended_.notify_one();
    thread_.join();
}

void WorkLimits::Lift() {
    lifted = true;
}

void WorkLimits::Watch() {
    std::unique_lock lock(mutex_);
    while (!ended_.wait_for(lock, kCheckInterval, [this] { return end_; })) {
        if (const int signal = Interruption(); signal != 0) {
            EndInterrupted(signal);
        }
        if (std::chrono::steady_clock::now() >= deadline_) {
            EndProcess("time limit of " + options_.timeText +
                       " seconds exceeded; raise it with --time-limit");
        }
        if (static_cast<double>(ProcessMemory()) > options_.memory * kBytesPerMebibyte) {
            EndProcess("memory limit of " + options_.memoryText +
                       " MiB exceeded; raise it with --memory-limit");
        }
    }
}

} // namespace styleconv
