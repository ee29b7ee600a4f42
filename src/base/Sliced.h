// Work that is too long to be done while a window waits, written as one function and done a slice at a time:
// where the function says `co_await NextSlice()`, whoever runs it may see to something else first. A part of
// the work that is such a function itself is awaited as a call: `co_await Part()`. Arguments by reference
// must outlive the work. Destroying it in the middle destroys what it holds; nothing runs to its end then.
#pragma once

#include <coroutine>
#include <exception>
#include <optional>
#include <utility>

namespace sonaro {

using NextSlice = std::suspend_always;

namespace sliced {

// What the functions of one piece of work have in common, whatever they return.
struct Promise {
  Promise* whole = this;            // of the outermost function
  std::coroutine_handle<> caller;   // awaits this one; none: this is the outermost
  std::coroutine_handle<> running;  // of the outermost: where the next slice begins
  std::exception_ptr failure;

  struct BackToCaller {
    bool await_ready() const noexcept { return false; }
    template <typename Derived>
    std::coroutine_handle<> await_suspend(std::coroutine_handle<Derived> ended) const noexcept {
      Promise& promise = ended.promise();
      if (!promise.caller) return std::noop_coroutine();
      promise.whole->running = promise.caller;
      return promise.caller;
    }
    void await_resume() const noexcept {}
  };

  std::suspend_always initial_suspend() const noexcept { return {}; }
  BackToCaller final_suspend() const noexcept { return {}; }
  void unhandled_exception() noexcept { failure = std::current_exception(); }
};

}  // namespace sliced

template <typename Result>
class [[nodiscard]] Sliced {
 public:
  struct promise_type : sliced::Promise {  // NOLINT: the language's name
    std::optional<Result> result;
    Sliced get_return_object() { return Sliced(std::coroutine_handle<promise_type>::from_promise(*this)); }
    void return_value(Result value) { result = std::move(value); }
  };

  Sliced(Sliced&& other) noexcept : work_(std::exchange(other.work_, nullptr)) {}
  Sliced& operator=(Sliced&&) = delete;
  ~Sliced() {
    if (work_) work_.destroy();
  }

  // Does the next slice. False: it was the last.
  [[nodiscard]] bool Step() {
    work_.promise().running.resume();
    return !work_.done();
  }
  // Of work that is done. Throws what the work has thrown.
  Result Take() {
    if (work_.promise().failure) std::rethrow_exception(work_.promise().failure);
    return std::move(*work_.promise().result);
  }
  // Does all that is left, at once.
  Result Finish() {
    while (!work_.done()) (void)Step();
    return Take();
  }

  // As a part of other work.
  bool await_ready() const noexcept { return false; }
  template <typename Caller>
  std::coroutine_handle<> await_suspend(std::coroutine_handle<Caller> caller) noexcept {
    sliced::Promise& promise = work_.promise();
    promise.caller = caller;
    promise.whole = caller.promise().whole;
    promise.whole->running = work_;
    return work_;
  }
  Result await_resume() { return Take(); }

 private:
  explicit Sliced(std::coroutine_handle<promise_type> work) : work_(work) { work_.promise().running = work_; }

  std::coroutine_handle<promise_type> work_;
};

}  // namespace sonaro
