// The entry of one target for libFuzzer; FUZZ_TARGET is its number in kFuzzTargets.
#include <cstddef>
#include <cstdint>

#include "fuzz/Targets.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  sonaro::kFuzzTargets[FUZZ_TARGET].run({reinterpret_cast<const char*>(data), size});
  return 0;
}
