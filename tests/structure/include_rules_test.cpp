// The rules of who may include whom hold in this tree, and the check of them finds each way to break one.
#include "tests/structure/include_rules.h"

#include <array>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <string_view>

#include "tests/structure/tree.h"

namespace qvn::structure {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<Source> projectSources() {
  constexpr std::array<std::string_view, 8> folders{"qvn",      "platforms", "component", "hosts",
                                                    "examples", "tests",     "bench",     "fuzz"};
  constexpr std::array<std::string_view, 3> endings{".h", ".cpp", ".c"};
  return filesBelow(folders, endings);
}

/// A source of one line that includes the file.
Source including(std::string path, const std::string& file) {
  return {std::move(path), std::string("#") + "include " + file + "\n"};
}

Source holdingNothing(std::string path) { return {std::move(path), "#pragma once\n"}; }

TEST(IncludeRules, holdInThisTree) {
  const auto tree = projectSources();
  EXPECT_THAT(brokenIncludes(tree), IsEmpty());
}

TEST(IncludeRules, areCheckedOnAllOfThisTree) {
  const auto tree = projectSources();
  for (const auto* file :
       {"qvn/shared/currency.h", "qvn/toolkit/widget.h", "qvn/fields/Gest_SCHEDE.h", "qvn/lookups/QVN_Ricerche.h",
        "qvn/panels/classes.cpp", "platforms/operator.h", "tests/structure/include_rules_test.cpp"}) {
    EXPECT_EQ(1, std::ranges::count(tree, file, &Source::path)) << file;
  }
}

TEST(IncludeRules, noticeOneBadLineInThisTree) {
  auto tree = projectSources();
  const auto source = std::ranges::find(tree, "qvn/shared/currency.h", &Source::path);
  ASSERT_NE(tree.end(), source);
  source->text = std::string("#") + "include \"platforms/operator.h\"\n" + source->text;
  EXPECT_THAT(brokenIncludes(tree),
              testing::Contains("qvn/shared/currency.h:1: platforms/operator.h stands below qvn/shared/"));
}

struct Case {
  std::string_view name;
  std::string_view path;
  std::string_view include;
  std::string_view complaint;  ///< empty where the include is allowed
};

// The names of test cases are read from this table.
void PrintTo(const Case& c, std::ostream* out) { *out << c.path << " includes " << c.include; }

class IncludeRule : public testing::TestWithParam<Case> {};

TEST_P(IncludeRule, isChecked) {
  const auto& [name, path, include, complaint] = GetParam();
  const std::vector<Source> tree{including(std::string(path), std::string(include)),
                                 holdingNothing("qvn/toolkit/widget.h"),
                                 holdingNothing("qvn/shared/names.h"),
                                 holdingNothing("qvn/fields/keys.h"),
                                 holdingNothing("qvn/lookups/lists.h"),
                                 holdingNothing("qvn/panels/amounts.h"),
                                 holdingNothing("qvn/panels/master/ctlA.h"),
                                 holdingNothing("qvn/panels/master/rules.h"),
                                 holdingNothing("qvn/panels/quotas/ctlB.h"),
                                 holdingNothing("platforms/operator.h"),
                                 holdingNothing("platforms/memory/screen.h"),
                                 holdingNothing("platforms/qt/screen.h"),
                                 holdingNothing("platforms/designer/form.h"),
                                 holdingNothing("platforms/sqlite/driver.h"),
                                 holdingNothing("component/object.h"),
                                 holdingNothing("hosts/play/session.h"),
                                 holdingNothing("tests/support/rig.h")};
  if (complaint.empty()) {
    EXPECT_THAT(brokenIncludes(tree), IsEmpty());
  } else {
    EXPECT_THAT(brokenIncludes(tree), ElementsAre(std::string(path) + ":1: " + std::string(complaint)));
  }
}

constexpr std::array kCases{
    Case{"fieldsMayIncludeToolkit", "qvn/fields/a.cpp", R"("qvn/toolkit/widget.h")", ""},
    Case{"toolkitMayIncludeShared", "qvn/toolkit/a.h", R"("qvn/shared/names.h")", ""},
    Case{"sharedMayIncludeToolkit", "qvn/shared/a.h", R"("qvn/toolkit/widget.h")", ""},
    Case{"panelsMayIncludeLookups", "qvn/panels/master/a.cpp", R"("qvn/lookups/lists.h")", ""},
    Case{"panelMayIncludeItself", "qvn/panels/master/ctlA.cpp", R"("qvn/panels/master/ctlA.h")", ""},
    Case{"panelMayIncludeItsRoom", "qvn/panels/master/ctlA.cpp", R"("qvn/panels/master/rules.h")", ""},
    Case{"panelMayIncludeWhatAllShare", "qvn/panels/master/ctlA.cpp", R"("qvn/panels/amounts.h")", ""},
    Case{"registerMayIncludePanels", "qvn/panels/classes.cpp", R"("qvn/panels/master/ctlA.h")", ""},
    Case{"libraryMayIncludeTheStandardLibrary", "qvn/shared/a.h", "<string_view>", ""},
    Case{"platformMayIncludeItsSystem", "platforms/sqlite/a.cpp", "<sqlite3.h>", ""},
    Case{"qtRestsOnMemory", "platforms/qt/a.cpp", R"("platforms/memory/screen.h")", ""},
    Case{"designerRestsOnQt", "platforms/designer/a.cpp", R"("platforms/qt/screen.h")", ""},
    Case{"qtMayIncludeQt", "platforms/qt/a.cpp", "<QWidget>", ""},
    Case{"platformMayIncludeTheLibrary", "platforms/memory/a.cpp", R"("qvn/toolkit/widget.h")", ""},
    Case{"componentMayIncludeAllOfTheLibrary", "component/a.cpp", R"("qvn/panels/master/ctlA.h")", ""},
    Case{"componentMayIncludePlatforms", "component/a.cpp", R"("platforms/memory/screen.h")", ""},
    Case{"examplesMayIncludeTheComponent", "examples/c/a.c", R"("component/object.h")", ""},
    Case{"hostMayIncludePanels", "hosts/play/a.cpp", R"("qvn/panels/master/ctlA.h")", ""},
    Case{"blanksAroundTheDirective", "qvn/fields/a.cpp", R"(   "qvn/toolkit/widget.h"   // why)", ""},

    Case{"sharedIncludesFields", "qvn/shared/a.h", R"("qvn/fields/keys.h")",
         "qvn/fields/keys.h stands below qvn/shared/"},
    Case{"toolkitIncludesFields", "qvn/toolkit/a.h", R"("qvn/fields/keys.h")",
         "qvn/fields/keys.h stands below qvn/toolkit/"},
    Case{"fieldsIncludeLookups", "qvn/fields/a.cpp", R"("qvn/lookups/lists.h")",
         "qvn/lookups/lists.h stands below qvn/fields/"},
    Case{"lookupsIncludePanels", "qvn/lookups/a.cpp", R"("qvn/panels/amounts.h")",
         "qvn/panels/amounts.h stands below qvn/lookups/"},
    Case{"libraryIncludesPlatforms", "qvn/panels/a.cpp", R"("platforms/operator.h")",
         "platforms/operator.h stands below qvn/panels/"},
    Case{"libraryIncludesHosts", "qvn/lookups/a.cpp", R"("hosts/play/session.h")",
         "hosts/play/session.h stands below qvn/lookups/"},
    Case{"libraryIncludesTests", "qvn/shared/a.cpp", R"("tests/support/rig.h")",
         "tests/support/rig.h stands below qvn/shared/"},
    Case{"libraryIncludesTheComponent", "qvn/panels/a.cpp", R"("component/object.h")",
         "component/object.h stands below qvn/panels/"},
    Case{"platformIncludesTheComponent", "platforms/memory/a.cpp", R"("component/object.h")",
         "component/object.h stands below platforms/memory/"},
    Case{"hostIncludesTheComponent", "hosts/play/a.cpp", R"("component/object.h")",
         "component/object.h stands below hosts/"},
    Case{"componentIncludesHosts", "component/a.cpp", R"("hosts/play/session.h")",
         "hosts/play/session.h stands below component/"},
    Case{"platformIncludesHosts", "platforms/memory/a.cpp", R"("hosts/play/session.h")",
         "hosts/play/session.h stands below platforms/memory/"},
    Case{"platformIncludesAnother", "platforms/memory/a.cpp", R"("platforms/sqlite/driver.h")",
         "platforms/sqlite/driver.h lies in another room of the same house"},
    Case{"qtIncludesAnother", "platforms/qt/a.cpp", R"("platforms/sqlite/driver.h")",
         "platforms/sqlite/driver.h lies in another room of the same house"},
    Case{"qtIncludesDesigner", "platforms/qt/a.cpp", R"("platforms/designer/form.h")",
         "platforms/designer/form.h lies in another room of the same house"},
    Case{"playerIncludesQt", "hosts/play/a.cpp", "<QWidget>",
         "QWidget is Qt's, outside platforms/qt/ platforms/designer/ hosts/ufficio/ tests/qt/ tests/designer/ "
         "tests/ufficio/ bench/"},
    Case{"panelsRoomIncludesAnother", "qvn/panels/quotas/a.cpp", R"("qvn/panels/master/rules.h")",
         "qvn/panels/master/rules.h lies in another room of the same house"},
    Case{"panelIncludesPanel", "qvn/panels/master/ctlC.cpp", R"("qvn/panels/master/ctlA.h")",
         "qvn/panels/master/ctlA.h is a panel, known only to its own source and to qvn/panels/classes.cpp"},
    Case{"panelIncludesPanelOfAnotherRoom", "qvn/panels/master/ctlC.cpp", R"("qvn/panels/quotas/ctlB.h")",
         "qvn/panels/quotas/ctlB.h lies in another room of the same house"},
    Case{"whatAllPanelsShareIncludesPanel", "qvn/panels/amounts.cpp", R"("qvn/panels/master/ctlA.h")",
         "qvn/panels/master/ctlA.h is a panel, known only to its own source and to qvn/panels/classes.cpp"},
    Case{"libraryIncludesSystem", "qvn/shared/a.h", "<unistd.h>", "unistd.h is not of the standard library"},
    Case{"libraryIncludesAnotherLibrary", "qvn/shared/a.h", "<fmt/format.h>",
         "fmt/format.h is not of the standard library"},
    Case{"libraryIncludesQt", "qvn/toolkit/a.h", "<QWidget>", "QWidget is not of the standard library"},
    Case{"memoryIncludesDatabase", "platforms/memory/a.cpp", "<sqlite3.h>", "sqlite3.h is not of the standard library"},
    Case{"quotedButNotOurs", "platforms/sqlite/a.cpp", R"("sqlite3.h")", "sqlite3.h is not written from the root"},
    Case{"besideTheFile", "qvn/toolkit/a.h", R"("widget.h")", "widget.h is not written from the root"},
    Case{"upAndDown", "qvn/toolkit/a.h", R"("qvn/shared/../toolkit/widget.h")",
         "qvn/shared/../toolkit/widget.h is not written from the root"},
    Case{"oursInAngles", "qvn/fields/a.h", "<qvn/toolkit/widget.h>",
         "qvn/toolkit/widget.h is the project's own and wants quotes"},
    Case{"missing", "qvn/fields/a.h", R"("qvn/toolkit/gone.h")", "qvn/toolkit/gone.h does not exist"},
    Case{"notWrittenOut", "qvn/fields/a.h", "HEADER", "the included file is not written out: HEADER"},
};

INSTANTIATE_TEST_SUITE_P(Includes, IncludeRule, testing::ValuesIn(kCases),
                         [](const auto& one) { return std::string(one.param.name); });

TEST(IncludeRules, refuseAFileInNoRoom) {
  EXPECT_THAT(brokenIncludes(std::vector{holdingNothing("qvn/loose.h")}),
              ElementsAre("qvn/loose.h:1: stands in no room"));
}

TEST(IncludeRules, tellTheLine) {
  const std::vector<Source> tree{{"qvn/shared/a.h", std::string("#pragma once\n\n#") + "include <unistd.h>\n"}};
  EXPECT_THAT(brokenIncludes(tree), ElementsAre("qvn/shared/a.h:3: unistd.h is not of the standard library"));
}

TEST(IncludeRules, seeThroughBlanksInTheDirective) {
  const std::vector<Source> tree{{"qvn/shared/a.h", std::string("  #  ") + "include<unistd.h>\n"}};
  EXPECT_THAT(brokenIncludes(tree), ElementsAre("qvn/shared/a.h:1: unistd.h is not of the standard library"));
}

TEST(IncludeRules, findACircleOfTwo) {
  const std::vector<Source> tree{including("qvn/shared/a.h", R"("qvn/toolkit/b.h")"),
                                 including("qvn/toolkit/b.h", R"("qvn/shared/a.h")")};
  EXPECT_THAT(brokenIncludes(tree), ElementsAre("circle: qvn/shared/a.h -> qvn/toolkit/b.h -> qvn/shared/a.h"));
}

TEST(IncludeRules, findACircleBehindAWayIn) {
  const std::vector<Source> tree{
      including("qvn/fields/way_in.h", R"("qvn/shared/a.h")"), including("qvn/shared/a.h", R"("qvn/shared/b.h")"),
      including("qvn/shared/b.h", R"("qvn/shared/c.h")"), including("qvn/shared/c.h", R"("qvn/shared/a.h")")};
  EXPECT_THAT(brokenIncludes(tree),
              ElementsAre("circle: qvn/shared/a.h -> qvn/shared/b.h -> qvn/shared/c.h -> qvn/shared/a.h"));
}

TEST(IncludeRules, findAFileThatIncludesItself) {
  EXPECT_THAT(brokenIncludes(std::vector{including("qvn/shared/a.h", R"("qvn/shared/a.h")")}),
              ElementsAre("circle: qvn/shared/a.h -> qvn/shared/a.h"));
}

TEST(IncludeRules, takeTwoWaysToOneFileForNoCircle) {
  const std::vector<Source> tree{
      including("qvn/fields/left.h", R"("qvn/shared/foot.h")"),
      including("qvn/fields/right.h", R"("qvn/shared/foot.h")"),
      holdingNothing("qvn/shared/foot.h"),
      {"qvn/fields/top.h", std::string("#") + "include \"qvn/fields/left.h\"\n#" + "include \"qvn/fields/right.h\"\n"}};
  EXPECT_THAT(brokenIncludes(tree), IsEmpty());
}

}  // namespace

}  // namespace qvn::structure
