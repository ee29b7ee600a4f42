#include "base/http/HttpRequest.h"

#include <gtest/gtest.h>

namespace sonaro {
namespace {

TEST(UrlEncoding, EveryByteHasOneOfFourOutcomes) {
  const std::string kept = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789$-_.+!*'()";
  for (int code = 0; code < 256; ++code) {
    const std::string text(1, static_cast<char>(code));
    std::string expected;
    if (kept.find(text) != std::string::npos) {
      expected = text;
    } else if (code == 32 || code == 9 || code == 13) {
      expected = "+";
    } else if (code != 10) {
      char buffer[8];
      snprintf(buffer, sizeof buffer, "%%%X", static_cast<unsigned>(code));
      expected = buffer;
    }
    EXPECT_EQ(UrlEncodeQuery(text), expected) << "code " << code;
  }
}

TEST(UrlEncoding, WorksOnTheBytesOfAText) {
  EXPECT_EQ(UrlEncodeQuery("rock & roll\r\n50%"), "rock+%26+roll+50%25");
  EXPECT_EQ(UrlEncodeQuery("caf\xC3\xA9\x05"), "caf%C3%A9%5");
  EXPECT_EQ(UrlEncodeQuery(""), "");
}

}  // namespace
}  // namespace sonaro
