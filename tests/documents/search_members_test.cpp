// What a host writes into the two search panels, and what it reads back.
#include <gtest/gtest.h>
#include <limits>

#include "tests/documents/search_bench.h"

namespace qvn::test {
namespace {

using testing::IsEmpty;

class SearchMembers : public SearchBench {
 public:
  /// A property that is shown as text.
  struct Shown {
    std::string property;
    std::string label;
  };
  struct Class {
    std::string name;
    std::string date;
    std::vector<Shown> shown;
  };
  static const std::vector<Class>& classes() {
    static const std::vector<Class> all{{"ctlRICERCA",
                                         "DATA_RATA",
                                         {{"CLIENTE", "LblCLIENTE"},
                                          {"PROT", "LblPROT"},
                                          {"QUOTA", "LblQUOTA"},
                                          {"N_POLIZZA", "LblN_POLIZZA"},
                                          {"COD_GR", "LblCOD_GR"},
                                          {"DESC_SRAMO", "LblDESC_SRAMO"},
                                          {"TIPO_RATA", "LblTIPO_RATA"},
                                          {"GRUPPO", "LblGRUPPO"},
                                          {"INT_ASS", "LblINT_ASS"}}},
                                        {"ctlRIC_SINISTRI",
                                         "DATA_SINISTRO",
                                         {{"CLIENTE", "LblCLIENTE"},
                                          {"PROT", "LblPROT"},
                                          {"QUOTA", "LblQUOTA"},
                                          {"DANNO", "LblDANNO"},
                                          {"N_POLIZZA", "LblN_POLIZZA"},
                                          {"COD_GR", "LblCOD_GR"},
                                          {"DESC_SRAMO", "LblDESC_SRAMO"},
                                          {"CONTROPARTE", "LblCONTROPARTE"},
                                          {"INT_ASS", "LblINT_ASS"}}}};
    return all;
  }
  static std::string membersOf(const Panel& panel) {
    std::string members;
    for (const Member& member : panel.members()) {
      members.append(member.name).append(" ").append(nameOf(member.kind)).append(" ").append(member.type).append("\n");
    }
    return members;
  }
  /// Everything that the labels show, by label.
  static std::vector<std::pair<std::string, std::string>> captionsOf(const Panel& panel) {
    std::vector<std::pair<std::string, std::string>> all;
    for (const toolkit::Widget* widget : panel.surface().widgets()) {
      if (widget->Kind() != toolkit::WidgetKind::Label) continue;
      all.emplace_back(widget->Name(), captionOf(panel, widget->Name()));
    }
    return all;
  }
};
QVN_ON_EVERY_PLATFORM(SearchMembers);

TEST_P(SearchMembers, OfThePolicyStandInOrder) {
  EXPECT_EQ(membersOf(*make("ctlRICERCA")),
            "CLIENTE get/let variant\n"
            "Events get clsQVN_Eventi\n"
            "PROT get/let variant\n"
            "QUOTA get/let variant\n"
            "PL get/let currency\n"
            "DATA_RATA get/let variant\n"
            "N_POLIZZA get/let variant\n"
            "COD_GR get/let variant\n"
            "DESC_SRAMO get/let variant\n"
            "TIPO_RATA get/let variant\n"
            "GRUPPO get/let variant\n"
            "STATO get/let variant\n"
            "INT_ASS get/let variant\n");
}

TEST_P(SearchMembers, OfTheClaimStandInOrder) {
  EXPECT_EQ(membersOf(*make("ctlRIC_SINISTRI")),
            "CLIENTE get/let variant\n"
            "Events get clsQVN_Eventi\n"
            "PROT get/let variant\n"
            "QUOTA get/let variant\n"
            "DANNO get/let variant\n"
            "DATA_SINISTRO get/let variant\n"
            "N_POLIZZA get/let variant\n"
            "COD_GR get/let variant\n"
            "DESC_SRAMO get/let variant\n"
            "CONTROPARTE get/let variant\n"
            "STATO get/let variant\n"
            "INT_ASS get/let variant\n"
            "COD_PROD get/let text\n");
}

TEST_P(SearchMembers, HoldNoWayToEnableOrToFreeze) {
  for (const Class& each : classes()) {
    const auto panel = make(each.name);
    EXPECT_FAILURE(callByName(*panel, "Attiva", {}), FailureKind::NoSuchMember, "trovato.Attiva");
    EXPECT_FAILURE(callByName(*panel, "Disattiva", {}), FailureKind::NoSuchMember, "trovato.Disattiva");
  }
}

TEST_P(SearchMembers, GiveTheOneEventObject) {
  for (const Class& each : classes()) {
    const auto panel = make(each.name);
    EXPECT_EQ(getByName(*panel, "Events"), Variant(Globale::Eventi()));
    EXPECT_FAILURE(letByName(*panel, "Events", Empty{}), FailureKind::NoSuchMember, "trovato.Events");
  }
}

TEST_P(SearchMembers, EachShowsInItsOwnLabelAndReadsAsEmpty) {
  for (const Class& each : classes()) {
    for (const Shown& row : each.shown) {
      SCOPED_TRACE(each.name + "." + row.property);
      const auto panel = make(each.name);
      auto expected = captionsOf(*panel);
      for (auto& [name, caption] : expected) {
        if (name == row.label) caption = "12";
      }
      letByName(*panel, row.property, text("12"));
      EXPECT_EQ(captionsOf(*panel), expected);
      EXPECT_EQ(getByName(*panel, row.property), Variant(Empty{}));
    }
  }
  EXPECT_THAT(heard(), IsEmpty());
}

TEST_P(SearchMembers, ShowAnyValueAsText) {
  for (const Class& each : classes()) {
    const auto panel = make(each.name);
    const auto shows = [&](const Variant& value, std::string_view caption) {
      for (const Shown& row : each.shown) {
        if (row.property == "PROT") continue;  // which is looked up
        letByName(*panel, row.property, value);
        EXPECT_EQ(captionOf(*panel, row.label), caption) << each.name << "." << row.property;
      }
    };
    shows(text("Orsù d'Élia"), "Orsù d'Élia");
    shows(Empty{}, "");
    shows(std::int32_t{-5}, "-5");
    shows(12.5, "12,5");
    shows(Currency::fromTenThousandths(12'345'678), "1234,5678");
    shows(true, "True");
    shows(day(5, 3, 2026), "05/03/2026");
    shows(text(""), "");
  }
}

TEST_P(SearchMembers, RefuseANullAndAnArrayNamingTheLabel) {
  for (const Class& each : classes()) {
    const auto panel = make(each.name);
    for (const Shown& row : each.shown) {
      SCOPED_TRACE(each.name + "." + row.property);
      letByName(*panel, row.property, text("3"));
      EXPECT_FAILURE(letByName(*panel, row.property, Null{}), FailureKind::InvalidUseOfNull, row.label);
      EXPECT_FAILURE(letByName(*panel, row.property, CurrencyArray{}), FailureKind::TypeMismatch, row.label);
      EXPECT_EQ(captionOf(*panel, row.label), "3");
    }
  }
}

TEST_P(SearchMembers, TheDateIsShownDayFirstAndReadsAsEmpty) {
  for (const Class& each : classes()) {
    SCOPED_TRACE(each.name);
    const auto panel = make(each.name);
    const std::string label = "Lbl" + each.date;
    const auto shows = [&](const Variant& value, std::string_view caption) {
      letByName(*panel, each.date, text("01/02/2020"));
      EXPECT_EQ(captionOf(*panel, label), "01/02/2020");
      letByName(*panel, each.date, value);
      EXPECT_EQ(captionOf(*panel, label), caption) << kindName(value);
      EXPECT_EQ(getByName(*panel, each.date), Variant(Empty{}));
    };
    shows(day(5, 3, 2026), "05/03/2026");
    shows(day(31, 12, 1999), "31/12/1999");
    shows(text("0.00.00"), "");
    shows(Date(), "");
    shows(Null{}, "");
    shows(Empty{}, "");
    shows(text(""), "");
    shows(text("0.00.0"), "0.00.0");
    shows(text("presto"), "presto");
    EXPECT_FAILURE(letByName(*panel, each.date, CurrencyArray{}), FailureKind::TypeMismatch, label);
    EXPECT_EQ(captionOf(*panel, label), "presto");
  }
}

TEST_P(SearchMembers, PLShowsUnderCurrencyAndReadsAsZero) {
  ctlRICERCA panel(PanelSite{container(), "trovato"});
  panel.PL(Currency::fromTenThousandths(12'345'650));
  EXPECT_EQ(captionOf(panel, "LblPL"), "€ 1.234,57");
  EXPECT_EQ(panel.PL(), Currency());
  panel.PL(Currency::fromTenThousandths(-10'000));
  EXPECT_EQ(captionOf(panel, "LblPL"), "-€ 1,00");
  panel.PL(Currency());
  EXPECT_EQ(captionOf(panel, "LblPL"), "€ 0,00");
  panel.PL(Currency::fromTenThousandths(std::numeric_limits<std::int64_t>::max()));
  EXPECT_EQ(captionOf(panel, "LblPL"), "€ 922.337.203.685.477,58");
  letByName(panel, "PL", text("7,5"));
  EXPECT_EQ(captionOf(panel, "LblPL"), "€ 7,50");
  EXPECT_FAILURE(letByName(panel, "PL", Null{}), FailureKind::InvalidUseOfNull, "trovato.PL");
  EXPECT_EQ(captionOf(panel, "LblPL"), "€ 7,50");
}

TEST_P(SearchMembers, DANNOShowsItsPlainTextWithNoFormat) {
  ctlRIC_SINISTRI panel(PanelSite{container(), "trovato"});
  panel.DANNO(1234.5);
  EXPECT_EQ(captionOf(panel, "LblDANNO"), "1234,5");
  panel.DANNO(text("€ 1.234,50"));
  EXPECT_EQ(captionOf(panel, "LblDANNO"), "€ 1.234,50");
  EXPECT_EQ(panel.DANNO(), Variant(Empty{}));
}

TEST_P(SearchMembers, TheProducerOfAClaimIsGivenAndReadsAsTheEmptyText) {
  ctlRIC_SINISTRI panel(PanelSite{container(), "trovato"});
  panel.COD_PROD("P1");
  EXPECT_EQ(leadsOf(panel), (Strings{"", "", "P1", "ROSSI"}));
  EXPECT_EQ(panel.COD_PROD(), "");
  EXPECT_EQ(getByName(panel, "COD_PROD"), text(""));
  EXPECT_FAILURE(letByName(panel, "COD_PROD", Null{}), FailureKind::InvalidUseOfNull, "COD_PROD");
  panel.COD_PROD("");
  EXPECT_EQ(leadsOf(panel), (Strings{"", "", "", ""}));
}

TEST_P(SearchMembers, NothingIsAnnounced) {
  for (const Class& each : classes()) {
    const auto panel = make(each.name);
    for (const Member& member : panel->members()) {
      if (member.let) letByName(*panel, member.name, std::int32_t{1});
    }
    letByName(*panel, "STATO", text("D"));
    for (toolkit::Widget* widget : panel->surface().widgets()) {
      if (widget->Kind() == toolkit::WidgetKind::CommandButton) hands().click(*widget);
    }
  }
  EXPECT_THAT(heard(), IsEmpty());
}

TEST_P(SearchMembers, AreWrittenOnAHiddenOrDisabledPanelToo) {
  for (const Class& each : classes()) {
    const auto panel = make(each.name);
    panel->surface().Visible(false);
    panel->surface().Enabled(false);
    for (const Shown& row : each.shown) {
      letByName(*panel, row.property, text("7"));
      EXPECT_EQ(captionOf(*panel, row.label), "7");
    }
  }
}

}  // namespace
}  // namespace qvn::test
