#include "settings/Strings.h"

#include <gtest/gtest.h>

namespace sonaro {
namespace {

TEST(FormatText, ReplacesOnlyMarksThatHaveAValue) {
  EXPECT_EQ(FormatText("{0} of {1}", {"3", "10"}), "3 of 10");
  EXPECT_EQ(FormatText("{1}{0}{1}", {"a", "b"}), "bab");
  EXPECT_EQ(FormatText("{0} {1} {2}", {"{1}", ""}), "{1}  {2}");  // values are not filled in again
  EXPECT_EQ(FormatText("{ {} {x} {0 {10} }", {"a"}), "{ {} {x} {0 {10} }");
  EXPECT_EQ(FormatText("", {"a"}), "");
  EXPECT_EQ(FormatText("{0}", {}), "{0}");
}

}  // namespace
}  // namespace sonaro
