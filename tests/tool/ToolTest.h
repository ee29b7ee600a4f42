// What the tests of the directory tool share: the bundled lists, folders for the length of a test, and the
// tool itself as one runs it.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "contract/ScratchFolder.h"
#include "model/Sources.h"

namespace sonaro {

// A file of the project, "data/playlists/iprd_jp.m3u".
std::string ProjectFile(std::string_view name);

struct ToolRun {
  int status = 0;
  std::string out;
  std::string err;
};

// Runs the tool with these words on its command line.
ToolRun RunDirectoryTool(const std::vector<std::string>& words);

// A data folder of these lists (bundled ones by name, others by path), made with these options; the test
// fails when it is not made.
void MakeData(const std::vector<std::string>& lists, const std::string& folder,
              const std::vector<std::string>& options = {});
// The data folder of one bundled list, made once for all tests, which change nothing in it.
inline constexpr const char* kBundledList = "radio-browser_topvote_1-128.json";
const std::string& BundledData();

std::string FileBytes(const std::string& path);
void WriteBytes(const std::string& path, std::string_view bytes);

// The files of a folder and what is in them, to compare folders by.
std::vector<std::pair<std::string, std::string>> FolderContents(const std::string& folder);

// The lines of a data folder's "Station.snr", each cut at its tabs.
std::vector<std::vector<std::string>> StationRows(const std::string& folder);

// A station as a list has it.
SourceStation MakeStation(std::string name, std::vector<std::string> addresses);

// The gzip form of a text.
std::string Gzipped(std::string_view text);

}  // namespace sonaro
