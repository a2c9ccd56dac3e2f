#pragma once

#include <exception>
#include <string_view>

namespace wb {

/// What can go wrong at run time; each kind has one text, which is what the user sees.
enum class FailureKind {
    InvalidCall,
    Overflow,
    DivisionByZero,
    TypeMismatch,
    SubscriptOutOfRange,
    ControlElementMissing,
    FileNotFound,
    InputPastEnd,
    PermissionDenied,
    DiskFull,
    PathFileAccess,
};

/// The text of a failure as its message box shows it.
const char* failureText(FailureKind kind) noexcept;

/// A run-time failure. A procedure's trap catches it, shows `what()` in a box with an OK button and leaves the
/// procedure.
class Failure : public std::exception {
public:
    explicit Failure(FailureKind kind) noexcept : kind_(kind) {}

    FailureKind kind() const noexcept { return kind_; }
    const char* what() const noexcept override { return failureText(kind_); }

private:
    FailureKind kind_;
};

} // namespace wb
