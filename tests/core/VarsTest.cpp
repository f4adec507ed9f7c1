#include "core/Vars.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace wheelwright::testing {
namespace {

TEST(VarsTest, ASessionStartsWithoutAFileAndWithNothingPending) {
  const Vars vars;
  EXPECT_EQ(vars.CurrentFile, "");
  EXPECT_EQ(vars.CurrentFileType, 0);
  EXPECT_EQ(vars.CurrentCar, 0);
  EXPECT_EQ(vars.CurrentIde, 0);
  EXPECT_EQ(vars.CurrentCarColor, 0);
  EXPECT_TRUE(vars.IsSaved);
}

TEST(VarsTest, TheLanguageTableHas221EmptyEntries) {
  const Vars vars;
  EXPECT_EQ(vars.Lang.size(), 221U);
  EXPECT_TRUE(std::all_of(vars.Lang.begin(), vars.Lang.end(),
                          [](const std::string& entry) { return entry.empty(); }));
}

TEST(VarsTest, AllTablesStartUnallocated) {
  const Vars vars;
  EXPECT_FALSE(vars.Cars.IsAllocated() || vars.Kopie_Cars.IsAllocated());
  EXPECT_FALSE(vars.Ides.IsAllocated() || vars.Kopie_Ides.IsAllocated());
  EXPECT_FALSE(vars.Colors.IsAllocated() || vars.Kopie_Colors.IsAllocated());
  EXPECT_FALSE(vars.CarColors.IsAllocated() || vars.Kopie_CarColors.IsAllocated());
}

}  // namespace
}  // namespace wheelwright::testing
