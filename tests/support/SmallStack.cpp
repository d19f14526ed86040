// A thread on memory of our own, painted before and looked at afterwards.
#include "tests/support/SmallStack.h"

#include <algorithm>
#include <cstdint>
#include <pthread.h>
#include <stdexcept>
#include <sys/mman.h>

namespace test_support {
namespace {

constexpr std::uint8_t kPaint = 0xa5;

void* Run(void* code) {
    (*static_cast<const std::function<void()>*>(code))();
    return nullptr;
}

} // namespace

std::size_t RunOnStack(std::size_t size, const std::function<void()>& code) {
    void* const memory = mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (memory == MAP_FAILED) {
        throw std::runtime_error("no memory for a stack");
    }
    auto* const bytes = static_cast<std::uint8_t*>(memory);
    std::fill(bytes, bytes + size, kPaint);

    pthread_attr_t attributes;
    pthread_t thread{};
    pthread_attr_init(&attributes);
    if (pthread_attr_setstack(&attributes, memory, size) != 0 ||
        pthread_create(&thread, &attributes, Run, const_cast<std::function<void()>*>(&code)) != 0) {
        throw std::runtime_error("no thread");
    }
    pthread_join(thread, nullptr);
    pthread_attr_destroy(&attributes);

    const auto used = [](std::uint8_t byte) { return byte != kPaint; };
    const std::uint8_t* const lowest = std::find_if(bytes, bytes + size, used);
    const auto count = static_cast<std::size_t>(bytes + size - lowest);
    munmap(memory, size);
    return count;
}

} // namespace test_support
