#pragma once

#include <boost/exception/all.hpp>

#include <exception>
#include <string>

namespace Vorlan
{

// The platform's exception. Error information travels with it as boost::error_info: a message, the
// call stack and the place of the throw (boost::throw_function, throw_file, throw_line).
class Exception : public virtual boost::exception, public virtual std::exception
{
public:
    Exception() = default;
    Exception(const Exception&) = default;
    ~Exception() override = default;

    // The attached message, empty when there is none.
    const char* what() const noexcept override;
};

using ExceptionMessage = boost::error_info<struct ExceptionMessageTag, std::string>;
using ExceptionCallStack = boost::error_info<struct ExceptionCallStackTag, std::string>;

// The caller's stack as text, one frame per line.
std::string GetCallStack();

namespace Core
{

// Records an exception for the maker: one line of JSON appended to "exceptions.jsonl" in the
// product's log folder, with the time, the type's name and the text. Never throws; a line that
// cannot be written is only logged.
void TrackException(const std::string& type, const std::string& message) noexcept;

// The same for a caught exception, under its type's readable name.
void TrackException(const std::exception& exception) noexcept;

} // namespace Core

} // namespace Vorlan
