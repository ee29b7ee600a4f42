// The user's personal shows: one line each in "\Shows.snr". A show's key identifies it up to the first
// capital X; what follows is its display name. The file is read and written afresh by each operation.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace sonaro {

class DataFolder;
class MessageBoxView;
class Strings;

class PersonalShows {
 public:
  PersonalShows(DataFolder& data, MessageBoxView& messages, const Strings& strings)
      : data_(data), messages_(messages), strings_(strings) {}

  // Adds the show unless one with the same identifying part is there, and tells the user in either case.
  void AddPersonalShow(std::string_view showKey);
  bool Contains(std::string_view showKey);
  // Removes the show's line and tells the user.
  void RemovePersonalShow(std::string_view showKey);
  // The whole file, its lines joined by CR LF; "" when it is missing.
  std::string ReadPersonalShows();
  // Writes one line for each piece that ends in CR LF; text after the last CR LF is not written.
  bool WritePersonalShows(std::string_view text);

  // The lines of the file, in order.
  std::vector<std::string> List();
  // The part of a key after its first capital X; the whole key when it has none.
  static std::string_view DisplayName(std::string_view showKey);

 private:
  void Tell(const char* key, const std::string& text);

  DataFolder& data_;
  MessageBoxView& messages_;
  const Strings& strings_;
};

}  // namespace sonaro
