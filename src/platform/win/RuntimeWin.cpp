// Parts of the compiler's run-time library that the program brings itself, because the library's own cost too
// much: the guard of the stack loads the system's cryptography at every start, and the last words of an
// exception that nobody caught are 45 KB of code for a console that a window program does not have.
#include <windows.h>

#include <cstdint>
#include <cstdlib>

namespace __gnu_cxx {

void __verbose_terminate_handler() { std::abort(); }  // NOLINT: the library's name

}  // namespace __gnu_cxx

extern "C" {

std::uintptr_t __stack_chk_guard;  // NOLINT: the compiler's name

[[noreturn]] void __stack_chk_fail() {  // NOLINT
  // At once and past every handler: the stack is not to be trusted.
  TerminateProcess(GetCurrentProcess(), 0xC0000409);  // the status of a stack buffer overrun
  __builtin_unreachable();
}

// Before the constructors of the program, and without a guard of its own, which it would break. The secret is
// the system's: EncodePointer mixes in a random number that the kernel keeps for each process; the rest
// varies by the start. A zero byte, at the lowest address, stops what copies a text over it.
__attribute__((constructor(101), no_stack_protector)) static void SetStackGuard() {
  LARGE_INTEGER counter{};
  QueryPerformanceCounter(&counter);
  const auto secret = reinterpret_cast<std::uintptr_t>(EncodePointer(&__stack_chk_guard));
  const auto place = reinterpret_cast<std::uintptr_t>(&counter);
  constexpr std::uintptr_t kSpread = 0x9E3779B97F4A7C15;
  const std::uintptr_t mixed =
      (secret ^ (place << 16) ^ (static_cast<std::uintptr_t>(GetCurrentProcessId()) << 32)) * kSpread ^
      static_cast<std::uintptr_t>(counter.QuadPart) * kSpread;
  __stack_chk_guard = (mixed ^ mixed >> 29) << 8;
}

}  // extern "C"
