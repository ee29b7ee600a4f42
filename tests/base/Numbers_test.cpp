#include "base/Numbers.h"

#include <gtest/gtest.h>

#include <cstdint>

namespace sonaro {
namespace {

TEST(NumberValue, TakesTheNumberAtTheStart) {
  const struct {
    const char* text;
    std::int64_t value;
  } cases[] = {
      {"", 0},
      {"  42", 42},
      {"-7x", -7},
      {"+5", 5},
      {"12.9", 12},
      {"1,000", 1},
      {"abc", 0},
      {"- 5", 0},
      {"+-5", 0},
      {"-+5", 0},
      {"0x10", 0},
      {"\t5", 0},
      {"007", 7},
      {"5 6", 5},
      {"9223372036854775807", INT64_MAX},
      {"99999999999999999999", INT64_MAX},
      {"-99999999999999999999z", INT64_MIN},
  };
  for (const auto& c : cases) EXPECT_EQ(NumberValue(c.text), c.value) << c.text;
}

TEST(IsNumeric, OneNumberAndNothingElse) {
  for (const char* text : {"0", " 80 ", "-1", "+2.5", "8.0"}) EXPECT_TRUE(IsNumeric(text)) << text;
  for (const char* text : {"", " ", "-", "8o", "80 81", "1.", ".5", "1.2.3", "1e5", "8,5", "\t8"}) {
    EXPECT_FALSE(IsNumeric(text)) << text;
  }
}

TEST(ParseStationId, WholeTextInThirtyTwoBits) {
  const struct {
    const char* text;
    std::int32_t id;
  } good[] = {
      {"1", 1}, {" 22 ", 22}, {"-3", -3}, {"+4", 4}, {"2147483647", INT32_MAX}, {"-2147483648", INT32_MIN}};
  for (const auto& c : good) {
    std::int32_t id = 99;
    EXPECT_TRUE(ParseStationId(c.text, id)) << c.text;
    EXPECT_EQ(id, c.id);
  }
  for (const char* text :
       {"", "-", "S1", "1 2", "1.0", "2147483648", "-2147483649", "99999999999999999999"}) {
    std::int32_t id = 99;
    EXPECT_FALSE(ParseStationId(text, id)) << text;
    EXPECT_EQ(id, 99);
  }
}

}  // namespace
}  // namespace sonaro
