// Captions.
#include "tests/contract/contract_panel.h"

namespace qvn::test {
namespace {

QVN_CONTRACT(Label);

TEST_P(Label, StartsWithTheLayoutsCaption) { EXPECT_EQ(label().Caption(), "Quantità:"); }

TEST_P(Label, WritingTheSameCaptionDoesNothing) {
  label().Change = hears("change");
  label().Caption("Quantità:");
  EXPECT_THAT(heard, IsEmpty());
}

TEST_P(Label, ChangeRunsInsideTheWriteOfAnother) {
  label().Change = [this] { heard.push_back(label().Caption()); };
  label().Caption("1.234,56 €");
  EXPECT_THAT(heard, ElementsAre("1.234,56 €"));
}

TEST_P(Label, NestedWritesHaveRunWhenTheWriteReturns) {
  label().Change = [this] {
    if (label().Caption() == "uno") label().Caption("due");
    heard.push_back(label().Caption());
  };
  label().Caption("uno");
  EXPECT_THAT(heard, ElementsAre("due", "due"));
}

TEST_P(Label, AFailureOfChangePassesToTheWriterAndTheCaptionStays) {
  label().Change = fails("etichetta");
  EXPECT_FAILURE(label().Caption("nuova"), FailureKind::Overflow, "etichetta");
  EXPECT_EQ(label().Caption(), "nuova");
}

TEST_P(Label, BytesThatAreNoCharacterAreReplaced) {
  label().Caption("a\xFFz");
  EXPECT_EQ(label().Caption(), "a\uFFFDz");
  label().Change = hears("change");
  label().Caption("a\xFFz");
  EXPECT_THAT(heard, IsEmpty());
}

TEST_P(Label, AnAmpersandIsACharacter) {
  label().Caption("Rossi & Figli");
  EXPECT_EQ(label().Caption(), "Rossi & Figli");
}

QVN_CONTRACT(Frame);

TEST_P(Frame, ShowsItsCaption) {
  EXPECT_EQ(outer().Caption(), "Dati");
  EXPECT_EQ(inner().Caption(), "");
  outer().Caption("Dati & altro");
  EXPECT_EQ(outer().Caption(), "Dati & altro");
}

TEST_P(Frame, BytesThatAreNoCharacterAreReplaced) {
  outer().Caption("a\xFFz");
  EXPECT_EQ(outer().Caption(), "a\uFFFDz");
}

}  // namespace
}  // namespace qvn::test
