#pragma once

#include <exception>
#include <optional>
#include <string>
#include <utility>

namespace Zelkor::Vx::UI::Common {

/// Makes a call into the host where an exception has no caller to go to: on a thread, in the event loop, in a
/// destructor. Returns what was thrown, nothing after a call that succeeded. Internal.
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
