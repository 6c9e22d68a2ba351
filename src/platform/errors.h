#pragma once

#include <stdexcept>
#include <string>

namespace tarvex {

/// Numbers of the run-time errors that the program can meet, as its users know them from old message boxes.
enum class ErrorCode : int {
    InvalidCall = 5,
    Overflow = 6,
    SubscriptOutOfRange = 9,
    TypeMismatch = 13,
    FileNotFound = 53,
    DeviceInputOutput = 57,
    FileExists = 58,
    DiskFull = 61,
    InputPastEnd = 62,
    BadFileName = 64,
    DeviceUnavailable = 68,
    PermissionDenied = 70,
    PathFileAccess = 75,
    PathNotFound = 76,
    InvalidPropertyValue = 380,
    InvalidPicture = 481,
    PrinterError = 482,
};

/// A statement that failed. `lastDllError` is the operating system's own number, 0 where it had no part in it.
class RuntimeError : public std::runtime_error {
public:
    RuntimeError(ErrorCode code, const std::string& description, int lastDllError = 0)
        : std::runtime_error(description), m_code(code), m_lastDllError(lastDllError)
    {
    }
    ErrorCode code() const { return m_code; }
    int lastDllError() const { return m_lastDllError; }

private:
    ErrorCode m_code;
    int m_lastDllError;
};

} // namespace tarvex
