#include "tool/ToolTest.h"

#include <gtest/gtest.h>
#include <zlib.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <sstream>

#include "base/Text.h"
#include "commands/Commands.h"

namespace sonaro {

std::string ProjectFile(std::string_view name) { return SONARO_PROJECT_FOLDER "/" + std::string(name); }

ToolRun RunDirectoryTool(const std::vector<std::string>& words) {
  std::ostringstream out;
  std::ostringstream err;
  Console console{out, err, /*progress=*/false};
  ToolRun run;
  run.status = RunTool(words, console);
  run.out = out.str();
  run.err = err.str();
  return run;
}

void MakeData(const std::vector<std::string>& lists, const std::string& folder,
              const std::vector<std::string>& options) {
  std::vector<std::string> words = {"make", "--out", folder};
  for (const std::string& list : lists)
    words.push_back(list.starts_with('/') ? list : ProjectFile("data/playlists/" + list));
  words.insert(words.end(), options.begin(), options.end());
  const ToolRun made = RunDirectoryTool(words);
  ASSERT_EQ(made.status, 0) << made.err;
}

const std::string& BundledData() {
  static const ScratchFolder scratch;
  static const std::string folder = [] {
    MakeData({kBundledList}, scratch.Path());
    return scratch.Path();
  }();
  return folder;
}

std::string FileBytes(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(file), {});
}

void WriteBytes(const std::string& path, std::string_view bytes) {
  std::ofstream(path, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

std::vector<std::pair<std::string, std::string>> FolderContents(const std::string& folder) {
  std::vector<std::pair<std::string, std::string>> contents;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    if (!entry.is_regular_file()) continue;
    contents.emplace_back(entry.path().filename().string(), FileBytes(entry.path().string()));
  }
  std::sort(contents.begin(), contents.end());
  return contents;
}

std::vector<std::vector<std::string>> StationRows(const std::string& folder) {
  const std::string text = FileBytes(folder + "/Station.snr");
  std::vector<std::vector<std::string>> rows;
  for (const std::string_view line : SplitLines(text)) {
    const std::vector<std::string_view> columns = Split(line, '\t');
    rows.emplace_back(columns.begin(), columns.end());
  }
  return rows;
}

SourceStation MakeStation(std::string name, std::vector<std::string> addresses) {
  SourceStation station;
  station.name = std::move(name);
  station.addresses = std::move(addresses);
  station.place = "list:1";
  return station;
}

std::string Gzipped(std::string_view text) {
  z_stream stream{};
  deflateInit2(&stream, Z_BEST_SPEED, Z_DEFLATED, 15 + 16, 8, Z_DEFAULT_STRATEGY);
  std::string packed(deflateBound(&stream, static_cast<uLong>(text.size())), '\0');
  stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(text.data()));
  stream.avail_in = static_cast<uInt>(text.size());
  stream.next_out = reinterpret_cast<Bytef*>(packed.data());
  stream.avail_out = static_cast<uInt>(packed.size());
  deflate(&stream, Z_FINISH);
  packed.resize(stream.total_out);
  deflateEnd(&stream);
  return packed;
}

}  // namespace sonaro
