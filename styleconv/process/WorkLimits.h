// Limits of time and memory: files may ask for work without end.
#pragma once

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <string>
#include <string_view>
#include <thread>

namespace styleconv {

/// As given on the command line.
struct LimitOptions {
    std::string timeText = "60";     // seconds
    std::string memoryText = "4096"; // MiB
    double time = 60.0;
    double memory = 4096.0;
};

/// What the calling thread is at, for the message of a limit: a file's name and, in it, "shape 65" or
/// "pattern BRICK" in words of messages. Each stays until it is set again; a new file is at no item. The
/// message names what the thread is at that has been at its file, or at several of them, for the longest
/// time.
void NowAtFile(std::string_view file);
void NowAtItem(std::string_view item);
void NowAtNoFile();

/// While an object of this class lives, the process ends with status 1 and a message soon after it has taken
/// more time or more memory than it may, and as a signal asks soon after NoteInterruptions noted one.
/// Temporary files are removed; a result that is in place stays. One at a time.
class WorkLimits {
public:
    explicit WorkLimits(const LimitOptions& options);
    ~WorkLimits();
    WorkLimits(const WorkLimits&) = delete;
    WorkLimits& operator=(const WorkLimits&) = delete;

    /// The result is in place: no limit ends the process any more. The caller holds FilesMutex.
    static void Lift();

private:
    void Watch();

    LimitOptions options_;
    std::chrono::steady_clock::time_point deadline_;
    std::mutex mutex_;
    std::condition_variable ended_;
    bool end_ = false;
    std::thread thread_;
};

} // namespace styleconv
