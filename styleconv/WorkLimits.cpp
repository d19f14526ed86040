#include "styleconv/WorkLimits.h"

#include "styleconv/CommandLine.h"
#include "styleconv/Interruption.h"
#include "styleconv/Messages.h"
#include "styleconv/ProcessMemory.h"
#include "styleconv/Progress.h"
#include "styleconv/TemporaryFile.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <new>

namespace styleconv {
namespace {

// How often time, memory and signals are looked at; within it a process can take some hundred MiB more than
// it may.
constexpr std::chrono::milliseconds kInterval(20);

// A century: more seconds than that would leave the clock's range.
constexpr double kLongestTime = 3e9;

constexpr double kBytesPerMebibyte = 1048576.0;

struct Work {
    std::mutex mutex;
    std::string file = "styleconv";
    std::string item;
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
        Work& work = CurrentWork();
        const std::lock_guard lock(work.mutex);
        Say(work.file, work.item.empty() ? what : work.item + ": " + what);
    } catch (const std::bad_alloc&) {
        std::fputs("styleconv: there is not enough memory\n", stderr);
    }
    TemporaryFile::RemoveAll();
    std::_Exit(kInputFault);
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
    work.file = file;
    work.item.clear();
}

void NowAtItem(std::string_view item) {
    StepStage();
    Work& work = CurrentWork();
    const std::lock_guard lock(work.mutex);
    work.item = item;
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
    while (!ended_.wait_for(lock, kInterval, [this] { return end_; })) {
        if (const int signal = Interruption(); signal != 0) {
            EndInterrupted(signal);
        }
        if (std::chrono::steady_clock::now() >= deadline_) {
            EndProcess("not done within the time limit of " + options_.timeText +
                       " seconds; --time-limit gives it more");
        }
        if (static_cast<double>(ProcessMemory()) > options_.memory * kBytesPerMebibyte) {
            EndProcess("needs more memory than the limit of " + options_.memoryText +
                       " MiB; --memory-limit gives it more");
        }
    }
}

} // namespace styleconv
