#include "HostProcess.h"

#include <windows.h>

#include <cstdlib>
#include <fstream>
#include <functional>
#include <sstream>

namespace sonaro::desktop {
namespace {

// Calls `visit` with the name of each entry of the folder until it returns true.
void VisitFolder(const std::string& folder, const std::function<bool(const std::string&)>& visit) {
  WIN32_FIND_DATAA entry{};
  const HANDLE find = FindFirstFileA((folder + "\\*").c_str(), &entry);
  if (find == INVALID_HANDLE_VALUE) return;
  while (!visit(entry.cFileName) && FindNextFileA(find, &entry)) {
  }
  FindClose(find);
}

// The number behind a word in a text of lines; 0 when it is not there.
double NumberBehind(const std::string& text, const std::string& word) {
  const auto at = text.find(word);
  return at == std::string::npos ? 0 : std::atof(text.c_str() + at + word.size());
}

bool IsNumber(const std::string& name) { return name[0] >= '1' && name[0] <= '9'; }

// The first number is nanoseconds on a processor.
double ProcessorOf(const std::string& folder) {
  return std::atof(Content(folder + "\\schedstat").c_str()) / 1e6;
}

}  // namespace

std::string Content(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  std::ostringstream text;
  text << file.rdbuf();
  return text.str();
}

HostProcess::HostProcess(const std::string& program, const std::string& arguments) {
  VisitFolder("Z:\\proc", [&](const std::string& name) {
    if (!IsNumber(name)) return false;
    const std::string line = Content("Z:\\proc\\" + name + "\\cmdline");
    if (line.find(program) != 0 || line.find(arguments) == std::string::npos) return false;
    folder_ = "Z:\\proc\\" + name;
    return true;
  });
}

template <typename Figure>
double HostProcess::SumOverThreads(Figure figure) const {
  double sum = 0;
  VisitFolder(folder_ + "\\task", [&](const std::string& name) {
    if (IsNumber(name)) sum += figure(folder_ + "\\task\\" + name);
    return false;
  });
  return sum;
}

double HostProcess::Processor() const { return SumOverThreads(ProcessorOf); }

double HostProcess::FirstThread() const { return ProcessorOf(folder_); }

double HostProcess::PrivateMegabytes() const {
  return NumberBehind(Content(folder_ + "\\smaps_rollup"), "\nPrivate_Dirty:") / 1024;
}

double HostProcess::Wakeups() const {
  return SumOverThreads([](const std::string& thread) {
    return NumberBehind(Content(thread + "\\status"), "\nvoluntary_ctxt_switches:");
  });
}

}  // namespace sonaro::desktop
