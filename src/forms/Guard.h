// The border that no exception crosses: window procedures of the kit run their body through it.
#pragma once

#include <windows.h>

#include <exception>
#include <utility>

namespace sonaro {

// The body's answer; `otherwise` when it threw. What was thrown is told to an attached debugger.
template <class Body>
LRESULT Guarded(LRESULT otherwise, Body&& body) noexcept {
  try {
    return std::forward<Body>(body)();
  } catch (const std::exception& failure) {
    OutputDebugStringA(failure.what());
  } catch (...) {
    OutputDebugStringA("unknown exception in a window procedure");
  }
  return otherwise;
}

}  // namespace sonaro
