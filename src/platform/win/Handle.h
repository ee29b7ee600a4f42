// Owning handles of the platform: closed when they go out of scope. A traits type says how a kind of handle
// looks when it is none and how it is closed.
#pragma once

#include <windows.h>

#include <utility>

namespace sonaro {

template <typename Traits>
class Handle {
 public:
  using Value = typename Traits::Value;

  Handle() : value_(Traits::None()) {}
  explicit Handle(Value value) : value_(value) {}
  ~Handle() { Reset(); }
  Handle(Handle&& other) noexcept : value_(std::exchange(other.value_, Traits::None())) {}
  Handle& operator=(Handle&& other) noexcept {
    if (this != &other) Reset(std::exchange(other.value_, Traits::None()));
    return *this;
  }

  explicit operator bool() const { return value_ != Traits::None(); }
  Value Get() const { return value_; }
  // Closes what is held. False when closing reported a failure.
  bool Reset(Value value = Traits::None()) {
    const bool closed = value_ == Traits::None() || Traits::Close(value_);
    value_ = value;
    return closed;
  }
  // For functions that return a handle by address: whatever is held must have been closed before.
  Value* Receive() { return &value_; }

 private:
  Value value_;
};

struct FileHandleTraits {
  using Value = HANDLE;
  static Value None() { return INVALID_HANDLE_VALUE; }
  static bool Close(Value value) { return CloseHandle(value) != 0; }
};
using FileHandle = Handle<FileHandleTraits>;

// Processes, threads, mutexes.
struct KernelHandleTraits {
  using Value = HANDLE;
  static Value None() { return nullptr; }
  static bool Close(Value value) { return CloseHandle(value) != 0; }
};
using KernelHandle = Handle<KernelHandleTraits>;

struct RegistryKeyTraits {
  using Value = HKEY;
  static Value None() { return nullptr; }
  static bool Close(Value value) { return RegCloseKey(value) == ERROR_SUCCESS; }
};
using RegistryKey = Handle<RegistryKeyTraits>;

struct FindHandleTraits {
  using Value = HANDLE;
  static Value None() { return INVALID_HANDLE_VALUE; }
  static bool Close(Value value) { return FindClose(value) != 0; }
};
using FindHandle = Handle<FindHandleTraits>;

}  // namespace sonaro
