// What a module without exceptions does where one would be thrown, or memory is at its end: it ends, and the
// page starts another. The library's own "new" would return null.
#include <cstddef>
#include <cstdlib>
#include <new>

namespace {

void* OrEnd(void* memory) {
    if (memory == nullptr) {
        __builtin_trap();
    }
    return memory;
}

void* Aligned(std::size_t size, std::align_val_t alignment) {
    const auto multiple = static_cast<std::size_t>(alignment);
    return std::aligned_alloc(multiple, (size + multiple - 1) / multiple * multiple);
}

} // namespace

void* operator new(std::size_t size) {
    return OrEnd(std::malloc(size > 0 ? size : 1));
}

void* operator new[](std::size_t size) {
    return operator new(size);
}

void* operator new(std::size_t size, const std::nothrow_t& /*tag*/) noexcept {
    return std::malloc(size > 0 ? size : 1);
}

void* operator new[](std::size_t size, const std::nothrow_t& tag) noexcept {
    return operator new(size, tag);
}

void* operator new(std::size_t size, std::align_val_t alignment) {
    return OrEnd(Aligned(size, alignment));
}

void* operator new[](std::size_t size, std::align_val_t alignment) {
    return operator new(size, alignment);
}

extern "C" {

void* __cxa_allocate_exception(std::size_t /*size*/) {
    __builtin_trap();
}

void __cxa_throw(void* /*exception*/, void* /*type*/, void (* /*destructor*/)(void*)) {
    __builtin_trap();
}
}
