// What a host writes into the title panel, and what it reads back.
#include <gtest/gtest.h>

#include "tests/documents/title_bench.h"

namespace qvn::test {
namespace {

using testing::IsEmpty;

class TitleMembers : public TitlePanel {
 public:
  /// A property that is shown as text and not handed back.
  struct Shown {
    std::string name;
    std::string label;
    Variant (ctlSOSPESI::*get)() const;
    void (ctlSOSPESI::*let)(const Variant&);
  };
  static const std::vector<Shown>& shown() {
    using P = ctlSOSPESI;
    static const std::vector<Shown> all{
        {"CLIENTE", "LblCLIENTE", &P::CLIENTE, &P::CLIENTE},
        {"PROT", "LblPROT", &P::PROT, &P::PROT},
        {"QUOTA", "LblQUOTA", &P::QUOTA, &P::QUOTA},
        {"N_POLIZZA", "LblN_POLIZZA", &P::N_POLIZZA, &P::N_POLIZZA},
        {"COD_GR", "LblCOD_GR", &P::COD_GR, &P::COD_GR},
        {"DESC_SRAMO", "LblDESC_SRAMO", &P::DESC_SRAMO, &P::DESC_SRAMO},
        {"TIPO_DOC", "LblTIPO_DOC", &P::TIPO_DOC, &P::TIPO_DOC},
        {"PROG", "LblPROG", &P::PROG, &P::PROG},
        {"COD_COMP_DEL", "LblCOD_COMP_DEL", &P::COD_COMP_DEL, &P::COD_COMP_DEL},
    };
    return all;
  }
  /// Everything that the labels show.
  Strings captions() {
    Strings all;
    for (toolkit::Widget* widget : surface().widgets()) {
      if (widget->Kind() == toolkit::WidgetKind::Label) all.push_back(caption(widget->Name()));
    }
    return all;
  }
};
QVN_ON_EVERY_PLATFORM(TitleMembers);

TEST_P(TitleMembers, StandInOrder) {
  std::string members;
  for (const Member& member : panel->members()) {
    members.append(member.name).append(" ").append(nameOf(member.kind)).append(" ").append(member.type).append("\n");
  }
  EXPECT_EQ(members,
            "Attiva method \n"
            "Disattiva method \n"
            "CLIENTE get/let variant\n"
            "Events get clsQVN_Eventi\n"
            "PROT get/let variant\n"
            "QUOTA get/let variant\n"
            "PL get/let currency\n"
            "DATA_EC get/let variant\n"
            "N_POLIZZA get/let variant\n"
            "COD_GR get/let variant\n"
            "DESC_SRAMO get/let variant\n"
            "DATA_DOC get/let variant\n"
            "DATA_C get/let variant\n"
            "TIPO_DOC get/let variant\n"
            "STATO get/let variant\n"
            "N_STATO get/let variant\n"
            "PROG get/let variant\n"
            "INT_ASS get/let text\n"
            "COD_COMP_DEL get/let variant\n");
}

TEST_P(TitleMembers, GiveTheOneEventObject) {
  EXPECT_EQ(panel->Events(), Globale::Eventi());
  EXPECT_EQ(another("altro")->Events(), panel->Events());
  EXPECT_FAILURE(letByName(*panel, "Events", Empty{}), FailureKind::NoSuchMember, "titolo.Events");
}

TEST_P(TitleMembers, EachShowsInItsOwnLabelAndReadsAsEmpty) {
  for (const Shown& property : shown()) {
    SCOPED_TRACE(property.name);
    panel = another("titolo");
    Strings expected = captions();
    std::size_t i = 0;
    for (toolkit::Widget* widget : surface().widgets()) {
      if (widget->Kind() != toolkit::WidgetKind::Label) continue;
      if (widget->Name() == property.label) expected[i] = "12";
      ++i;
    }
    (*panel.*property.let)(text("12"));
    EXPECT_EQ(captions(), expected);
    EXPECT_TRUE(isEmpty((*panel.*property.get)()));
    EXPECT_EQ(getByName(*panel, property.name), Variant(Empty{}));
  }
  EXPECT_THAT(heard(), IsEmpty());
}

TEST_P(TitleMembers, ShowAnyValueAsText) {
  for (const Shown& property : shown()) {
    SCOPED_TRACE(property.name);
    (*panel.*property.let)(std::int32_t{-5});
    EXPECT_EQ(caption(property.label), "-5");
    (*panel.*property.let)(Empty{});
    EXPECT_EQ(caption(property.label), "");
  }
  panel->CLIENTE(12.5);
  EXPECT_EQ(caption("LblCLIENTE"), "12,5");
  panel->CLIENTE(day(5, 3, 2026));
  EXPECT_EQ(caption("LblCLIENTE"), "05/03/2026");
  panel->CLIENTE(true);
  EXPECT_EQ(caption("LblCLIENTE"), "True");
  panel->CLIENTE(text("Orsù d'Élia"));
  EXPECT_EQ(caption("LblCLIENTE"), "Orsù d'Élia");
}

TEST_P(TitleMembers, RefuseANullAndAnArrayNamingTheLabel) {
  for (const Shown& property : shown()) {
    SCOPED_TRACE(property.name);
    (*panel.*property.let)(text("3"));
    EXPECT_FAILURE((*panel.*property.let)(Null{}), FailureKind::InvalidUseOfNull, property.label);
    EXPECT_FAILURE((*panel.*property.let)(CurrencyArray{}), FailureKind::TypeMismatch, property.label);
    EXPECT_EQ(caption(property.label), "3");
  }
}

TEST_P(TitleMembers, PLShowsUnderCurrencyAndReadsAsZero) {
  panel->PL(Currency::fromTenThousandths(12'345'650));
  EXPECT_EQ(caption("LblPL"), "€ 1.234,57");
  EXPECT_EQ(panel->PL(), Currency());
  panel->PL(Currency::fromTenThousandths(-10'000));
  EXPECT_EQ(caption("LblPL"), "-€ 1,00");
  letByName(*panel, "PL", text("7,5"));
  EXPECT_EQ(caption("LblPL"), "€ 7,50");
  EXPECT_FAILURE(letByName(*panel, "PL", Null{}), FailureKind::InvalidUseOfNull, "titolo.PL");
  EXPECT_EQ(caption("LblPL"), "€ 7,50");
}

TEST_P(TitleMembers, INT_ASSShowsItsTextAndReadsAsTheEmptyOne) {
  panel->INT_ASS("Autovettura targata ZA123BC");
  EXPECT_EQ(caption("LblINT_ASS"), "Autovettura targata ZA123BC");
  EXPECT_EQ(panel->INT_ASS(), "");
  panel->INT_ASS("");
  EXPECT_EQ(caption("LblINT_ASS"), "");
  EXPECT_FAILURE(letByName(*panel, "INT_ASS", Null{}), FailureKind::InvalidUseOfNull, "INT_ASS");
}

TEST_P(TitleMembers, AnnounceNothingThatTheHostAloneOwns) {
  for (const Shown& property : shown()) (*panel.*property.let)(text("1"));
  panel->PL(Currency::fromTenThousandths(1));
  panel->INT_ASS("x");
  panel->DATA_EC(day(1, 2, 2026));
  panel->STATO(text("S"));
  EXPECT_THAT(heard(), IsEmpty());
}

TEST_P(TitleMembers, STATOReadsAsEmpty) {
  panel->STATO(text("A"));
  EXPECT_TRUE(isEmpty(panel->STATO()));
  EXPECT_TRUE(isEmpty(panel->DATA_EC()));
}

}  // namespace
}  // namespace qvn::test
