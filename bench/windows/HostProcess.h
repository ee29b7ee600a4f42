// A process as the host of Wine accounts for it: finer than what Wine tells of another process. It is read
// from the host's /proc, which Wine shows as Z:\proc; on Windows itself there is none.
#pragma once

#include <string>

namespace sonaro::desktop {

class HostProcess {
 public:
  // The first process that runs this program with these arguments ("" = any).
  HostProcess(const std::string& program, const std::string& arguments);

  bool Found() const { return !folder_.empty(); }
  double Processor() const;         // milliseconds, of all threads
  double FirstThread() const;       // milliseconds of processor, of the one that has the windows
  double PrivateMegabytes() const;  // written pages that are nobody else's
  double Wakeups() const;           // so far: how often a thread has gone to sleep

 private:
  template <typename Figure>
  double SumOverThreads(Figure figure) const;

  std::string folder_;
};

// Of a whole file; "" when it cannot be read.
std::string Content(const std::string& path);

}  // namespace sonaro::desktop
