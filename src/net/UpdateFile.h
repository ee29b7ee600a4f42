// Reads the update file "\update.txt": unpacks the files that it carries to temporary ones beside their
// places, and hands out everything else as values. Changes no setting and no file of the directory: that is
// UpdateInstall's. The file comes from the network and is not trusted.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "net/ServiceUrlTable.h"

namespace sonaro {

class DataFolder;

inline constexpr const char* kUpdateFileName = "\\update.txt";

enum class UpdateFileStatus {
  Read,
  Missing,    // or unreadable
  NotSaved,   // a temporary file could not be written
  NotSigned,  // this installation takes signed updates only, and the file is not signed
  WrongSign   // it is signed by somebody else or was changed, or the installation's key is no key
};

struct UpdateContents {
  UpdateFileStatus status = UpdateFileStatus::Missing;
  std::string received;             // the unpacked files: names, each followed by a TAB
  std::optional<std::string> date;  // of the directory
  std::optional<std::string> version;
  std::vector<ServiceValue> values;  // for the settings, in the order of the file
  std::size_t skippedSections = 0;   // whose name is none that an update may bring
  std::size_t refusedValues = 0;
};

// The temporary file of "\name" is "\t" + name. Unless the status is Read, no temporary file is left.
UpdateContents ReadUpdateFile(DataFolder& data);

// Removes the temporary files of `received`.
void DropReceived(DataFolder& data, const std::string& received);

}  // namespace sonaro
