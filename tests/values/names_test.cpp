#include "qvn/shared/names.h"

#include <gtest/gtest.h>

namespace qvn {
namespace {

TEST(Names, AreComparedWithoutRegardToTheCaseOfAsciiLetters) {
  EXPECT_TRUE(sameName("", ""));
  EXPECT_TRUE(sameName("COD_PROD", "cod_prod"));
  EXPECT_TRUE(sameName("R_Acc", "R_ACC"));
  EXPECT_FALSE(sameName("COD_PROD", "COD_PRO"));
  EXPECT_FALSE(sameName("COD_PRO", "COD_PROD"));
  EXPECT_FALSE(sameName("A", "B"));
  // Neighbours of the letters, and letters beyond ASCII.
  EXPECT_FALSE(sameName("@", "`"));
  EXPECT_FALSE(sameName("[", "{"));
  EXPECT_FALSE(sameName("QUALITÀ", "QUALITà"));
  EXPECT_TRUE(sameName("qualitÀ", "QUALITÀ"));
}

}  // namespace
}  // namespace qvn
