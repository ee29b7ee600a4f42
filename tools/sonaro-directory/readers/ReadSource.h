// Reads one station list of any known format, plain or gzip. The format is told by the content, never by the
// name. "-" stands for standard input.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "model/SkipLog.h"
#include "model/Sources.h"

namespace sonaro {

enum class SourceFormat { NotAList, JsonLines, JsonArray, M3u, Pls, Opml };

struct SourceResult {
  SourceFormat format = SourceFormat::NotAList;
  std::vector<SourceStation> stations;
  std::string failure;  // one sentence when the source could not be used, otherwise empty
};

// `text` is decoded text. When it is no list, `why` says in a clause what it seems to be.
SourceFormat RecogniseFormat(std::string_view text, std::string& why);

// The bytes of a file, or of standard input for "-". False when it cannot be read.
bool ReadFileBytes(const std::string& path, std::string& bytes);

SourceResult ReadSource(const std::string& path, SkipLog& skips);
// The same from bytes in memory; `name` is used in messages.
SourceResult ReadSourceBytes(const std::string& name, std::string bytes, SkipLog& skips);

}  // namespace sonaro
