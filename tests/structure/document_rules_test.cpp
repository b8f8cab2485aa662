// The documents lead nowhere that is not there and show no code that is not compiled; and the check of that finds both.
#include "tests/structure/document_rules.h"

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

std::vector<Source> projectDocuments() {
  constexpr std::array<std::string_view, 1> folders{"docs"};
  constexpr std::array<std::string_view, 1> endings{".md"};
  auto documents = filesBelow(folders, endings);
  for (const auto* file : {"README.md", "CHANGELOG.md"}) documents.push_back({file, textOf(root() / file)});
  return documents;
}

std::vector<std::string> wrongIn(std::string text, std::string path = "README.md") {
  return wrongInDocument({std::move(path), std::move(text)}, root());
}

TEST(Documents, ofThisProjectAreRight) {
  for (const auto& document : projectDocuments()) EXPECT_THAT(wrongInDocument(document, root()), IsEmpty());
}

TEST(DocumentRules, acceptLinksThatLeadSomewhere) {
  EXPECT_THAT(wrongIn("[a](LICENSE) and [b](docs/) and [c](docs/glossary.md#people)\n"), IsEmpty());
  EXPECT_THAT(wrongIn("[a](https://example.org/gone) [b](mailto:office@example.org)\n"), IsEmpty());
  EXPECT_THAT(wrongIn("[up](../LICENSE) [beside](building.md)\n", "docs/architecture.md"), IsEmpty());
  EXPECT_THAT(wrongIn("# A heading, told\n\n[here](#a-heading-told)\n"), IsEmpty());
}

TEST(DocumentRules, refuseLinksThatLeadNowhere) {
  EXPECT_THAT(wrongIn("fine\n[a](GONE.md)\n"), ElementsAre("README.md:2: GONE.md leads nowhere"));
  EXPECT_THAT(wrongIn("[a](LICENSE)\n", "docs/architecture.md"),
              ElementsAre("docs/architecture.md:1: LICENSE leads nowhere"));
  EXPECT_THAT(wrongIn("[a](docs/glossary.md#nobody)\n"),
              ElementsAre("README.md:1: docs/glossary.md#nobody leads to no heading"));
  EXPECT_THAT(wrongIn("# A heading\n[a](#another)\n"), ElementsAre("README.md:2: #another leads to no heading"));
}

TEST(DocumentRules, findEveryLinkOfALine) {
  EXPECT_THAT(wrongIn("[a](X.md), [b](LICENSE), [c](Y.md)\n"),
              ElementsAre("README.md:1: X.md leads nowhere", "README.md:1: Y.md leads nowhere"));
}

TEST(DocumentRules, leaveBlocksOfTextAlone) {
  EXPECT_THAT(wrongIn("```text\n[a](GONE.md)\n```\n[b](GONE.md)\n"), ElementsAre("README.md:4: GONE.md leads nowhere"));
}

TEST(DocumentRules, acceptCodeThatIsASample) {
  EXPECT_THAT(wrongIn("<!-- sample readme/host.cpp -->\n```cpp\nint main() {}\n```\n"), IsEmpty());
  EXPECT_THAT(wrongIn("<!-- sample c/host.c -->\n```c\nint main(void) {}\n```\n"), IsEmpty());
}

TEST(DocumentRules, acceptCodeThatStandsInItsFile) {
  EXPECT_THAT(wrongIn("<!-- LICENSE -->\n```cpp\nMIT License\n```\n"), IsEmpty());
}

TEST(DocumentRules, refuseCodeThatIsNeither) {
  EXPECT_THAT(wrongIn("<!-- LICENSE -->\n```cpp\nMIT  License\n```\n"),
              ElementsAre("README.md:2: the code does not stand like this in LICENSE"));
  EXPECT_THAT(wrongIn("<!-- GONE.cpp -->\n```cpp\nMIT License\n```\n"),
              ElementsAre("README.md:2: the code names GONE.cpp, which is not there"));
  constexpr auto wrong = "README.md:2: the code is no sample and names no file that it is taken from";
  EXPECT_THAT(wrongIn("A host:\n```cpp\nint main() {}\n```\n"), ElementsAre(wrong));
  EXPECT_THAT(wrongIn("A host:\n```c\nint main(void) {}\n```\n"), ElementsAre(wrong));
}

TEST(DocumentRules, refuseCodeThatStandsInNoBlock) {
  EXPECT_THAT(wrongIn("A value:\n\n    qvn_value rate = {0};\n"),
              ElementsAre("README.md:3: the code stands in no block"));
  EXPECT_THAT(wrongIn("Commands:\n\n    ./dev test\n\nand this; and that;\n"), IsEmpty());
}

TEST(DocumentRules, refuseABlockWithoutAnEnd) {
  EXPECT_THAT(wrongIn("fine\n```text\nand so on\n"), ElementsAre("README.md:2: the block does not end"));
}

}  // namespace

}  // namespace qvn::structure
