#pragma once

#include "arbor_qml_support_export.h"

#include <stdexcept>

/// The exceptions that the library shares with the application. The library itself raises none of them.
namespace Rasterus {

/// A function was given arguments that it does not accept; what() is "invalid arguments".
class ARBOR_QML_SUPPORT_EXPORT InvalidArguments : public std::invalid_argument
{
public:
    InvalidArguments();
    InvalidArguments(const InvalidArguments&) noexcept = default;
    InvalidArguments& operator=(const InvalidArguments&) noexcept = default;
    ~InvalidArguments() override;
};

/// The user ended an operation; what() is "abort".
class ARBOR_QML_SUPPORT_EXPORT AbortException : public std::runtime_error
{
public:
    AbortException();
    AbortException(const AbortException&) noexcept = default;
    AbortException& operator=(const AbortException&) noexcept = default;
    ~AbortException() override;
};

}
