// Sources are told apart by what is in them, never by the ending of their names: lists come from a pipe, as
// "download", or as ".txt". The tests go from the most to the least certain; M3U comes last because any text
// with an address in its first line passes for one.
#include "readers/ReadSource.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <system_error>

#include "base/Text.h"
#include "readers/Readers.h"
#include "text/CleanText.h"

namespace sonaro {
namespace {

// Unpacked: a guard against files made to fill the memory, far above any real list.
constexpr std::size_t kMaxSourceSize = std::size_t{1} << 30;
constexpr int kMaxLayers = 2;  // gzip inside gzip happens; more is an attack

// The first line that is neither empty nor a comment.
std::string_view FirstPlainLine(std::string_view text) {
  while (!text.empty()) {
    const std::string_view line = TrimBlanks(NextField(text, '\n'));
    if (!line.empty() && line != "\r" && !line.starts_with('#')) return line;
  }
  return {};
}

// A scheme of letters. Longer ones than eight are no schemes of streams but words before a colon.
bool LooksLikeAddress(std::string_view line) {
  const std::size_t scheme = line.find("://");
  return scheme != std::string_view::npos && scheme > 0 && scheme <= 8 &&
         line.substr(0, scheme).find_first_not_of("abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ") ==
             std::string_view::npos;
}

SourceFormat RecogniseMarkup(std::string_view text, std::string& why) {
  constexpr std::size_t kHead = 4096;
  const std::string head = FoldCase(text.substr(0, kHead));
  if (head.find("<opml") != std::string::npos) return SourceFormat::Opml;
  why = head.find("<html") != std::string::npos || head.find("<!doctype html") != std::string::npos
            ? "it is a web page"
            : "it is XML, but not OPML";
  return SourceFormat::NotAList;
}

// The same ending and the same first line serve for the pieces of one HLS stream, where every "address" is
// ten seconds of sound.
SourceFormat RecogniseM3u(std::string_view text, std::string& why) {
  if (text.find("#EXT-X-TARGETDURATION") != std::string_view::npos ||
      text.find("#EXT-X-STREAM-INF") != std::string_view::npos) {
    why = "it is one HLS stream, not a list of stations";
    return SourceFormat::NotAList;
  }
  return SourceFormat::M3u;
}

}  // namespace

SourceFormat RecogniseFormat(std::string_view text, std::string& why) {
  const std::size_t start = text.find_first_not_of(" \t\r\n");
  if (start == std::string_view::npos) {
    why = "it is empty";
    return SourceFormat::NotAList;
  }
  text.remove_prefix(start);
  if (text.front() == '<') return RecogniseMarkup(text, why);
  if (text.front() == '{') return SourceFormat::JsonLines;
  if (StartsWithIgnoringCase(text.substr(0, 64), "[playlist]")) return SourceFormat::Pls;
  // "[playlist]" has been ruled out; a JSON array begins with an object, or is empty.
  if (text.front() == '[') {
    const std::size_t next = text.find_first_not_of(" \t\r\n", 1);
    if (next != std::string_view::npos && (text[next] == '{' || text[next] == ']'))
      return SourceFormat::JsonArray;
  }
  if (StartsWithIgnoringCase(text.substr(0, 64), "#EXTM3U") || LooksLikeAddress(FirstPlainLine(text))) {
    return RecogniseM3u(text, why);
  }
  why = "it is none of JSON, M3U, PLS and OPML";
  return SourceFormat::NotAList;
}

bool ReadFileBytes(const std::string& path, std::string& bytes) {
  if (path == "-") {
    bytes.assign(std::istreambuf_iterator<char>(std::cin), {});
    return !std::cin.bad();
  }
  std::error_code error;
  // On Linux a folder can be opened as a file and reads as empty, which would be taken for an empty list.
  if (std::filesystem::is_directory(path, error)) return false;
  std::ifstream file(path, std::ios::binary);
  if (!file) return false;
  bytes.assign(std::istreambuf_iterator<char>(file), {});
  return !file.bad();
}

SourceResult ReadSource(const std::string& path, SkipLog& skips) {
  SourceResult result;
  const std::string name = path == "-" ? "standard input" : std::filesystem::path(path).filename().string();
  std::string bytes;
  if (!ReadFileBytes(path, bytes)) {
    result.failure = "Cannot read " + (path == "-" ? name : "\"" + path + "\"") + ".";
    return result;
  }
  return ReadSourceBytes(name, std::move(bytes), skips);
}

SourceResult ReadSourceBytes(const std::string& name, std::string bytes, SkipLog& skips) {
  SourceResult result;
  for (int layer = 0; layer < kMaxLayers && IsGzip(bytes); ++layer) {
    std::string unpacked;
    const GunzipStatus status = Gunzip(bytes, kMaxSourceSize, unpacked);
    if (status != GunzipStatus::Ok) {
      result.failure = "\"" + name + "\" " +
                       (status == GunzipStatus::TooLarge ? "unpacks to more than 1 GB."
                                                         : "is damaged: its gzip data is not complete.");
      return result;
    }
    bytes = std::move(unpacked);
  }
  const std::string text = DecodeFileText(bytes);
  // All readers take UTF-8; DecodeFileText has made it of whatever the file was in.
  std::string why;
  result.format = RecogniseFormat(text, why);
  const SourceText source{name, text};
  switch (result.format) {
    case SourceFormat::JsonLines:
      ReadJsonLines(source, result.stations, skips);
      break;
    case SourceFormat::JsonArray:
      ReadJsonArray(source, result.stations, skips);
      break;
    case SourceFormat::M3u:
      ReadM3u(source, result.stations, skips);
      break;
    case SourceFormat::Pls:
      ReadPls(source, result.stations, skips);
      break;
    case SourceFormat::Opml:
      ReadOpml(source, result.stations, skips);
      break;
    case SourceFormat::NotAList:
      result.failure = "\"" + name + "\" is not a station list: " + why + ".";
      break;
  }
  return result;
}

}  // namespace sonaro
