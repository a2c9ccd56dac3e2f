#pragma once

#include <cstddef>

/// Requests for memory that fail. The program that is linked with this has its own `operator new`, which gives memory
/// as ever where nothing here forbids it.
namespace wb::test {

/// While it lives, the request of that number of this thread fails, counted from 1 on.
class FailingRequest {
public:
    explicit FailingRequest(std::size_t number);
    FailingRequest(const FailingRequest&) = delete;
    FailingRequest& operator=(const FailingRequest&) = delete;
    ~FailingRequest();

    /// Whether it came to that request.
    bool failed() const;
};

/// While it lives, requests of that many bytes and more fail in all threads.
class FailingSize {
public:
    explicit FailingSize(std::size_t bytes);
    FailingSize(const FailingSize&) = delete;
    FailingSize& operator=(const FailingSize&) = delete;
    ~FailingSize();
};

} // namespace wb::test
