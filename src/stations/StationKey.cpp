#include "stations/StationKey.h"

#include "base/Numbers.h"

namespace sonaro {

namespace {

constexpr char kDirectory = 'S';
constexpr char kPersonal = 'P';

StationKey Numbered(StationKey::Kind kind, std::string_view number) {
  StationKey key{kind, 0};
  if (number.find(' ') != std::string_view::npos || !ParseStationId(number, key.number)) return {};
  return key.number != 0 ? key : StationKey{};
}

}  // namespace

StationKey StationKey::FromRowKey(std::string_view rowKey) {
  if (rowKey.starts_with(kDirectory)) return Numbered(Kind::Directory, rowKey.substr(1));
  return rowKey.starts_with(kPersonal) ? FromToken(rowKey) : StationKey{};
}

StationKey StationKey::FromToken(std::string_view token) {
  if (!token.starts_with(kPersonal)) return Numbered(Kind::Directory, token);
  const StationKey key = Numbered(Kind::Personal, token.substr(1));
  return key.number > 0 ? key : StationKey{};
}

std::string StationKey::RowKey() const { return kind == Kind::Directory ? kDirectory + Token() : Token(); }

std::string StationKey::Token() const {
  if (kind == Kind::None) return {};
  return kind == Kind::Personal ? kPersonal + std::to_string(number) : std::to_string(number);
}

}  // namespace sonaro
