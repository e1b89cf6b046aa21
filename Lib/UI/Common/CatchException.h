#pragma once

#include <exception>
#include <optional>
#include <string>
#include <utility>

namespace Zelkor::Vx::UI::Common {

/// Calls a function of the host where no caller could handle an exception: on a worker thread, from the event loop, in
/// a destructor. Returns the message of the exception, or nothing.
template<class Call>
std::optional<std::string> CatchException(Call&& call)
{
    try {
        std::forward<Call>(call)();
    } catch (const std::exception& error) {
        return error.what();
    } catch (...) {
        return "unknown exception";
    }
    return std::nullopt;
}

} // namespace Zelkor::Vx::UI::Common
