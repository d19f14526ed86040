// Work on several threads is taken in order, whatever comes first, and its failures with it.
#include "styleconv/process/Workers.h"

#include <atomic>
#include <gtest/gtest.h>
#include <mutex>
#include <numeric>
#include <set>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

namespace {

using styleconv::ItemWork;
using styleconv::WorkInOrder;

void Nothing(std::size_t /*item*/) {}

std::vector<std::size_t> UpTo(std::size_t count) {
    std::vector<std::size_t> numbers(count);
    std::iota(numbers.begin(), numbers.end(), 0U);
    return numbers;
}

TEST(Workers, TakeEachItemOnceAndInOrder) {
    for (const std::size_t threads : {0, 1, 2, 3, 8}) {
        for (const std::size_t count : {0, 1, 2, 7, 500}) {
            std::vector<int> worked(count);
            std::vector<std::size_t> taken;
            ItemWork items;
            items.work = [&](std::size_t item) { ++worked[item]; };
            items.take = [&](std::size_t item) {
                EXPECT_EQ(worked[item], 1);
                taken.push_back(item);
            };
            items.waitFor = Nothing;
            WorkInOrder(count, threads, items);
            EXPECT_EQ(taken, UpTo(count)) << threads << " threads";
        }
    }
}

// The first of two items ends only when the second one has begun.
TEST(Workers, WorkAtOnce) {
    std::atomic<bool> hasSecondBegun = false;
    std::mutex mutex;
    std::set<std::thread::id> threads;
    ItemWork items;
    items.work = [&](std::size_t item) {
        if (item == 1) {
            hasSecondBegun = true;
            hasSecondBegun.notify_all();
        }
        hasSecondBegun.wait(false);
        const std::lock_guard lock(mutex);
        threads.insert(std::this_thread::get_id());
    };
    std::vector<std::size_t> taken;
    items.take = [&](std::size_t item) { taken.push_back(item); };
    items.waitFor = Nothing;
    WorkInOrder(2, 2, items);
    EXPECT_EQ(threads.size(), 2U);
    EXPECT_TRUE(threads.contains(std::this_thread::get_id())) << "the calling thread works, too";
    EXPECT_EQ(taken, UpTo(2));
}

TEST(Workers, WaitForWhatOthersWorkOnStill) {
    const std::thread::id caller = std::this_thread::get_id();
    std::atomic<bool> isWaitedFor = false;
    std::atomic<std::size_t> ofOther = 0; // the other thread's item, counted from 1
    ItemWork items;
    items.work = [&](std::size_t item) {
        if (std::this_thread::get_id() != caller) {
            ofOther = item + 1;
            ofOther.notify_all();
            isWaitedFor.wait(false);
        } else {
            ofOther.wait(0);
        }
    };
    std::vector<std::size_t> waited;
    items.waitFor = [&](std::size_t item) {
        waited.push_back(item);
        isWaitedFor = true;
        isWaitedFor.notify_all();
    };
    items.take = Nothing;
    WorkInOrder(2, 2, items);
    EXPECT_EQ(waited, std::vector<std::size_t>{ofOther - 1});
}

TEST(Workers, ThrowWhatTheFirstItemThrewWhereItWouldBeTaken) {
    for (const std::size_t threads : {1, 2, 4}) {
        std::vector<std::size_t> taken;
        ItemWork items;
        items.work = [](std::size_t item) {
            if (item == 3 || item == 5) {
                throw std::out_of_range(std::to_string(item));
            }
        };
        items.take = [&](std::size_t item) { taken.push_back(item); };
        items.waitFor = Nothing;
        try {
            WorkInOrder(100, threads, items);
            ADD_FAILURE() << "nothing was thrown";
        } catch (const std::out_of_range& error) {
            EXPECT_STREQ(error.what(), "3");
        }
        EXPECT_EQ(taken, UpTo(3));
    }
}

TEST(Workers, EndWhereTakingThrows) {
    ItemWork items;
    items.work = Nothing;
    items.waitFor = Nothing;
    items.take = [](std::size_t item) {
        if (item == 1) {
            throw std::runtime_error("full");
        }
    };
    EXPECT_THROW(WorkInOrder(100, 4, items), std::runtime_error);
}

} // namespace
