// The text of an update file, made of a data folder: what net/UpdateFile reads back.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "base/DataFolder.h"
#include "net/UpdateFile.h"

namespace sonaro {

// "::HelpURL::" and what it shall be on the installations that take the update.
struct ServiceLine {
  std::string key;
  std::string value;
};

struct UpdateRequest {
  std::string date;  // what the installations keep as "LastUpdate"
  std::vector<ServiceLine> service;
  std::string secretKey;    // 128 hexadecimal digits, or "" for an update that nobody signs
  std::int64_t serial = 0;  // of a signed update: when it is published, in seconds since 1970
  // The files of the guide that this update changes; none: it carries every file whole.
  const std::vector<ReceivedFile>* since = nullptr;
};

struct UpdateText {
  std::string bytes;
  std::vector<std::string> carried;  // names of the files, the station list first
  std::vector<std::string> leftOut;  // files that an update may bring and that are no lines of text
  std::string failure;               // one sentence; "" when `bytes` are an update
};

// True when a section gives the bytes back: lines that are ended by CR LF, and no empty one.
bool FitsInSection(std::string_view name, std::string_view bytes);

// The same folder and request give the same bytes. Tables are left out, since the installation makes its own
// of the list. A folder without a station list, or with one that does not fit, is a failure; so is a key that
// is none, and what an installation would refuse.
UpdateText MakeUpdateText(DataFolder& data, const UpdateRequest& request);

}  // namespace sonaro
