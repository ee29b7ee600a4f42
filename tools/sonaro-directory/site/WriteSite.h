// Writes the whole web site of the service: what installations fetch under "public", and the configuration of
// a web server for it. Every file is put in place as a whole, the configuration last, so that a site that is
// in use never leads to an update that is not there.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "base/DataFolder.h"

namespace sonaro {

struct SiteOptions {
  std::string date;
  std::string secretKey;    // "" for an update that nobody signs
  std::int64_t serial = 0;  // of a signed update: when it is published, in seconds since 1970
  std::string host;         // told to the installations; "" leaves them with the host that they have
  std::string listen = "80";
};

struct SiteResult {
  std::string failure;  // one sentence, or ""
  std::size_t files = 0;
  std::size_t updateBytes = 0;
  std::size_t changes = 0;           // earlier dates from which changes lead to this guide
  std::vector<std::string> leftOut;  // files of the folder that an update cannot carry
};

// `directory` is a data folder, `site` the folder to write to.
SiteResult WriteSite(DataFolder& directory, DataFolder& site, const SiteOptions& options);

}  // namespace sonaro
