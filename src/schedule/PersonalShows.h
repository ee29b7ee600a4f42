// The user's personal shows: one line each in "\Shows.snr". A show's key identifies it up to the first
// capital X; what follows is its display name. Each operation works on what the file holds at that moment.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/OwnFiles.h"
#include "base/UserFile.h"

namespace sonaro {

class DataFolder;
class MessageBoxView;
class Strings;

class PersonalShows {
 public:
  PersonalShows(DataFolder& data, MessageBoxView& messages, const Strings& strings)
      : file_(data, user_file::kShows), messages_(messages), strings_(strings) {}

  // Adds the show unless one with the same identifying part is there, and tells the user in either case, or
  // that it could not be saved.
  void AddPersonalShow(std::string_view showKey);
  // Whether one of the lines that List() gave is this show.
  static bool Holds(const std::vector<std::string>& lines, std::string_view showKey);
  // Removes the show's line and tells the user, or that it could not be saved.
  void RemovePersonalShow(std::string_view showKey);
  // A removed line back, at the end, without a word. False when it could not be saved.
  [[nodiscard]] bool PutBack(const std::string& line);
  // The whole file, its lines joined by CR LF; "" when it is missing.
  std::string ReadPersonalShows();
  // Writes one line for each piece that ends in CR LF; text after the last CR LF is not written.
  [[nodiscard]] bool WritePersonalShows(std::string_view text);

  // The lines of the file, in order.
  std::vector<std::string> List();
  // The part of a key after its first capital X; the whole key when it has none.
  static std::string_view DisplayName(std::string_view showKey);

 private:
  void Tell(bool saved, const char* key, int text, std::string_view showKey);

  UserFile file_;
  MessageBoxView& messages_;
  const Strings& strings_;
};

}  // namespace sonaro
