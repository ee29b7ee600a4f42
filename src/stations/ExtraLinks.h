// Links that the user added to stations of the directory, kept in "\ownlinks.snr": one line each, the
// station's identifier, a name and the link text, separated by TABs. Being beside the directory they survive
// its updates. Owned by Application. Lines that cannot be understood are kept.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "base/OwnFiles.h"
#include "base/UserFile.h"

namespace sonaro {

class DataFolder;

struct ExtraLink {
  static constexpr std::size_t kMaxPerStation = 20;

  std::string name;  // what the play entry says; may be empty
  std::string link;  // link text, see PlayLink and OwnLink
  bool operator==(const ExtraLink&) const = default;
};

class ExtraLinks {
 public:
  explicit ExtraLinks(DataFolder& data) : file_(data, user_file::kLinks) {}

  // Reads the file. False when it is there but could not be read; changes are refused then.
  bool Load();
  // True when a file that could not be read before has been read now.
  bool LoadUnread() { return file_.Unread() && Load(); }

  // The links of a station in the order in which they were added.
  std::vector<ExtraLink> Of(std::int32_t stationId) const;

  // Replaces all links of a station in what the file holds at that moment, and saves; links whose text is
  // empty are left out, texts are cleaned like those of a personal station. False, with nothing changed, when
  // it could not be saved.
  [[nodiscard]] bool Set(std::int32_t stationId, const std::vector<ExtraLink>& links);

 private:
  struct Line {
    std::int32_t stationId = 0;  // 0: a line that is kept as it stands
    ExtraLink link;
    std::string kept;
  };

  static Line ReadLine(std::string_view text);

  void ReadFile();

  UserFile file_;
  std::vector<Line> lines_;
};

}  // namespace sonaro
