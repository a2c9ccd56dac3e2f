#include "cli/failing_memory.h"

#include <atomic>
#include <cstdlib>
#include <limits>
#include <new>

namespace {

constexpr std::size_t none = std::numeric_limits<std::size_t>::max();

thread_local std::size_t requestsLeft = none; ///< up to and with the one that fails; 0: it has failed
std::atomic<std::size_t> failingSize = none;

bool fails(std::size_t size) {
    const bool counted = requestsLeft != none && requestsLeft != 0;
    return size >= failingSize || (counted && --requestsLeft == 0);
}

void* request(std::size_t size) {
    void* const memory = fails(size) ? nullptr : std::malloc(size == 0 ? 1 : size);
    if (memory == nullptr) {
        throw std::bad_alloc();
    }
    return memory;
}

} // namespace

void* operator new(std::size_t size) {
    return request(size);
}

void* operator new[](std::size_t size) {
    return request(size);
}

void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    return fails(size) ? nullptr : std::malloc(size == 0 ? 1 : size);
}

void* operator new[](std::size_t size, const std::nothrow_t&) noexcept {
    return fails(size) ? nullptr : std::malloc(size == 0 ? 1 : size);
}

void operator delete(void* memory) noexcept {
    std::free(memory);
}

void operator delete[](void* memory) noexcept {
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}

void operator delete[](void* memory, std::size_t) noexcept {
    std::free(memory);
}

namespace wb::test {

FailingRequest::FailingRequest(std::size_t number) {
    requestsLeft = number;
}

FailingRequest::~FailingRequest() {
    requestsLeft = none;
}

bool FailingRequest::failed() const {
    return requestsLeft == 0;
}

FailingSize::FailingSize(std::size_t bytes) {
    failingSize = bytes;
}

FailingSize::~FailingSize() {
    failingSize = none;
}

} // namespace wb::test
