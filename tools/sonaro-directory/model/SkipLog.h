// Counts what was left out of the directory and why, and explains each case when the user asked for that.
// One per command; knows nothing of stations.
#pragma once

#include <cstddef>
#include <iosfwd>
#include <map>
#include <string>
#include <string_view>

namespace sonaro {

class SkipLog {
 public:
  // Explanations go to `explain`, one line a case; null: only count.
  explicit SkipLog(std::ostream* explain) : explain_(explain) {}

  // `place` is "file:line", `what` the entry or address as the list has it, `reason` a clause in lower case.
  void Skip(std::string_view place, std::string_view what, std::string_view reason);

  std::size_t Total() const;
  std::size_t Count(std::string_view reason) const;
  // The reasons with their counts, most frequent first: "3 without a usable address, 1 without a name".
  std::string Summary() const;

 private:
  std::ostream* explain_;
  std::map<std::string, std::size_t, std::less<>> counts_;
};

}  // namespace sonaro
