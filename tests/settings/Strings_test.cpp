#include "settings/Strings.h"

#include <gtest/gtest.h>

namespace sonaro {
namespace {

TEST(FillIn, ReplacesOnlyMarksThatHaveAValue) {
  EXPECT_EQ(FillIn("{0} of {1}", {"3", "10"}), "3 of 10");
  EXPECT_EQ(FillIn("{1}{0}{1}", {"a", "b"}), "bab");
  EXPECT_EQ(FillIn("{0} {1} {2}", {"{1}", ""}), "{1}  {2}");  // values are not filled in again
  EXPECT_EQ(FillIn("{ {} {x} {0 {10} }", {"a"}), "{ {} {x} {0 {10} }");
  EXPECT_EQ(FillIn("", {"a"}), "");
  EXPECT_EQ(FillIn("{0}", {}), "{0}");
}

}  // namespace
}  // namespace sonaro
