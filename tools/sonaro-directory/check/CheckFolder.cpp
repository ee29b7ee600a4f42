#include "check/CheckFolder.h"

#include "base/Numbers.h"
#include "base/Text.h"
#include "check/Checks.h"
#include "output/DirectoryWriter.h"
#include "text/CleanText.h"

namespace sonaro {

namespace {

std::string_view WithoutBackslash(std::string_view name) {
  return name.starts_with('\\') ? name.substr(1) : name;
}

}  // namespace

// A file that is there and cannot be read is always a finding, whoever needs it.
std::optional<std::string> CheckContext::Read(std::string_view name, Need need) {
  ReadResult file = data.Read(name);
  if (file.status == ReadStatus::Ok) return std::move(file.bytes);
  if (file.status == ReadStatus::Unreadable) Add(name, 0, "cannot be read");
  if (file.status == ReadStatus::Missing && need == Need::Required) Add(name, 0, "is missing");
  return std::nullopt;
}

// Texts from the folder are quoted in findings; CleanText keeps control characters off the terminal.
void CheckContext::Add(std::string_view name, std::size_t line, std::string_view problem) {
  findings.Add(WithoutBackslash(name), line, CleanText(problem));
}

void CheckContext::CheckIds(std::string_view name, std::size_t line, std::string_view list) {
  if (list.empty()) return;
  std::unordered_set<std::int32_t> seen;
  for (const std::string_view token : Split(list, ' ')) {
    std::int32_t id = 0;
    const std::string quoted = "\"" + std::string(TruncateUtf8(token, 40)) + "\"";
    if (token.empty() || !ParseStationId(token, id)) {
      Add(name, line, quoted + " is no station identifier");
    } else if (ids.count(id) == 0) {
      Add(name, line, "station " + std::string(token) + " is not in the station list");
    } else if (!seen.insert(id).second) {
      Add(name, line, "station " + std::string(token) + " stands there twice");
    }
  }
}

// Users' files name stations as "123", or "P7" for the station of their own with index 7.
void CheckContext::CheckTokens(std::string_view name, std::size_t line, std::string_view tokens) {
  for (const std::string_view token : Split(TrimBlanks(tokens), ' ')) {
    if (token.empty()) continue;
    std::int32_t number = 0;
    const bool own = token.starts_with('P');
    if (!ParseStationId(own ? token.substr(1) : token, number)) {
      Add(name, line, "\"" + std::string(TruncateUtf8(token, 40)) + "\" is no station");
    } else if (own ? personal.count(number) == 0 : ids.count(number) == 0) {
      Add(name, line, "station " + std::string(token) + " does not exist");
    }
  }
}

void CheckFolder(DataFolder& data, Findings& findings) {
  CheckContext context{data, findings, BuiltInAlphabets(), {}, {}, {}};
  if (data.Exists(kUnfinishedMark)) context.Add(kUnfinishedMark, 0, "make was cut short here; run it again");
  // The order matters: alphabets are needed to read links, and the station list gives the identifiers against
  // which everything after it is checked.
  CheckAlphabets(context);
  CheckStationList(context);
  CheckStationTable(context);
  CheckEventTables(context);
  CheckCategories(context);
  CheckRankings(context);
  CheckSearchKinds(context);
  CheckUserFiles(context);
  CheckOutlines(context);
}

void Findings::Add(std::string_view file, std::size_t line, std::string_view problem) {
  ++total_;
  // A file in the wrong format has a finding on every line; the first ones tell as much as all.
  if (++perFile_[std::string(file)] > kMaxPerFile) return;
  std::string text(file);
  if (line > 0) text += ":" + std::to_string(line);
  lines_.push_back(text.append(": ").append(problem));
}

std::vector<std::string> Findings::Lines() const {
  std::vector<std::string> lines = lines_;
  for (const auto& [file, count] : perFile_) {
    if (count > kMaxPerFile) lines.push_back(file + ": and " + std::to_string(count - kMaxPerFile) + " more");
  }
  return lines;
}

}  // namespace sonaro
