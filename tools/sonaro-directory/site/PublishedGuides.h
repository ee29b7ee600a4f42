// The guides that a site has published, so that the next one can be told apart from each of them. Kept in
// "published.txt" in the site's folder, fields apart by tabs: a line "guide", date and path of the whole
// update for each, the latest first; "changes" and path of each further file of the latest; "left" and path
// of each file that no request leads to since the latest.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/DataFolder.h"

namespace sonaro {

struct PublishedGuide {
  std::string date;
  std::string update;  // path of the whole update on the host
};

class PublishedGuides {
 public:
  // How many dates before the present one an update gives changes from.
  static constexpr std::size_t kKept = 12;

  explicit PublishedGuides(DataFolder& site);

  // The last kKept guides of another date than `date`, the latest first.
  std::vector<PublishedGuide> Before(std::string_view date) const;

  // Makes `guide` the latest, of whose files `others` are the ones besides the whole update. Files that the
  // publication before this one replaced are removed: those that this one replaces may be on their way to
  // somebody still, and stay until the next. False when the list could not be saved.
  [[nodiscard]] bool Add(const PublishedGuide& guide, const std::vector<std::string>& others);

 private:
  DataFolder& site_;
  std::vector<PublishedGuide> guides_;
  std::vector<std::string> others_;  // files of the latest besides the whole updates
  std::vector<std::string> left_;    // replaced by the latest
};

}  // namespace sonaro
