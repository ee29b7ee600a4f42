#include "forms/Menu.h"

#include <gtest/gtest.h>

namespace sonaro {
namespace {

std::string Repeat(std::string_view text, std::size_t times) {
  std::string out;
  for (std::size_t i = 0; i < times; ++i) out += text;
  return out;
}

TEST(MenuText, StaysOnTheScreenAndInWholeCharacters) {
  const std::pair<std::string, std::string> cases[] = {
      {"Rock & Roll\tLive", "Rock && Roll Live"},  {Repeat("a", 60), Repeat("a", 60)},
      {Repeat("a", 61), Repeat("a", 60) + "..."},  {"a" + Repeat("東", 20), "a" + Repeat("東", 19) + "..."},
      {Repeat("&", 61), Repeat("&&", 60) + "..."},
  };
  for (const auto& [name, shown] : cases) EXPECT_EQ(MenuText(name), shown);
}

}  // namespace
}  // namespace sonaro
