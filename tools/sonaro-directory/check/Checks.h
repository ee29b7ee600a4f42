// The parts of CheckFolder, one for each group of files.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

#include "base/DataFolder.h"
#include "check/CheckFolder.h"
#include "directory/Scrambling.h"
#include "directory/StationRecord.h"

namespace sonaro {

struct CheckContext {
  DataFolder& data;
  Findings& findings;
  ScramblingAlphabets alphabets;
  std::vector<StationRecord> stations;        // of "\Station.snr", in the order of the identifiers
  std::unordered_set<std::int32_t> ids;       // of these
  std::unordered_set<std::int32_t> personal;  // indexes of the user's own stations

  // A file's text. Nothing when it is not there or cannot be read, which is a finding unless it may be
  // missing.
  enum class Need { Required, Optional };
  std::optional<std::string> Read(std::string_view name, Need need);
  // Adds a finding about a file in the data folder ("\cat.snr").
  void Add(std::string_view name, std::size_t line, std::string_view problem);
  // Checks identifiers with a blank between them: numbers, known, none twice.
  void CheckIds(std::string_view name, std::size_t line, std::string_view ids);
  // Checks tokens of the user's lists: an identifier, or "P" and the index of one of the user's own stations.
  void CheckTokens(std::string_view name, std::size_t line, std::string_view tokens);
};

void CheckAlphabets(CheckContext& context);    // "\alphabet.snr"; must come first
void CheckStationList(CheckContext& context);  // "\Station.snr"; fills stations and ids
void CheckStationTable(CheckContext& context);
void CheckEventTables(CheckContext& context);
void CheckCategories(CheckContext& context);  // "\cat.snr", "\catloc.snr" and the lists that they name
void CheckRankings(CheckContext& context);    // "\fun.snr", "\reliable.snr"
void CheckSearchKinds(CheckContext& context);
void CheckUserFiles(CheckContext& context);  // own stations and links, groups, recent list, schedule, shows
void CheckOutlines(CheckContext& context);   // "\Depot\sshape.pts"

}  // namespace sonaro
