// Reads the update file "\update.txt" and hands out everything in it as values. Changes no setting and no
// file: that is UpdateInstall's. The file comes from the network and is not trusted; what is read is bounded,
// and the work grows with its length only.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Sliced.h"
#include "net/ServiceUrlTable.h"

namespace sonaro {

class DataFolder;

enum class UpdateFileStatus {
  Read,
  Missing,      // or unreadable
  TooLarge,     // more sections or bytes than an update may have
  NotSigned,    // this installation takes signed updates only, and the file is not signed
  WrongSign,    // it is signed by somebody else or was changed, or the installation's key is no key
  CannotCheck,  // the installation has a key that cannot be read
};

struct ReceivedFile {
  std::string name;  // plain, one that an update may bring
  std::string bytes;
};

struct UpdateContents {
  UpdateFileStatus status = UpdateFileStatus::Missing;
  std::vector<ReceivedFile> files;  // no name twice, whatever its letter case: the last section counts
  std::string changes;              // of further files, for ExpandChanges; "" when there are none
  std::optional<std::string> date;  // of the directory
  std::optional<std::string> version;
  std::vector<ServiceValue> values;  // one for a setting: the last
  // Of an update whose signature was checked, 0 when it has none; nothing when nobody has to check.
  std::optional<std::int64_t> serial;
  std::size_t skippedSections = 0;  // whose name is not on the list of what an update may bring
  std::size_t refusedValues = 0;
};

// Unless the status is Read, there is nothing in the contents.
Sliced<UpdateContents> ReadUpdateFile(DataFolder& data);

// The same of a text whose signature is checked already, or nobody's business: of one's own making.
UpdateContents ReadUpdateText(std::string_view text);

}  // namespace sonaro
