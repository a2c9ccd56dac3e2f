#include "core/base/failure.h"

namespace wb {

const char* failureText(FailureKind kind) noexcept {
    switch (kind) {
        case FailureKind::InvalidCall:
            return "Invalid procedure call or argument";
        case FailureKind::Overflow:
            return "Overflow";
        case FailureKind::DivisionByZero:
            return "Division by zero";
        case FailureKind::TypeMismatch:
            return "Type mismatch";
        case FailureKind::SubscriptOutOfRange:
            return "Subscript out of range";
        case FailureKind::ControlElementMissing:
            return "Control array element does not exist";
        case FailureKind::FileNotFound:
            return "File not found";
        case FailureKind::InputPastEnd:
            return "Input past end of file";
        case FailureKind::PermissionDenied:
            return "Permission denied";
        case FailureKind::DiskFull:
            return "Disk full";
        case FailureKind::PathFileAccess:
            return "Path/File access error";
    }
    return "";
}

} // namespace wb
