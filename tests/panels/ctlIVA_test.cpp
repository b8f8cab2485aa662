// The VAT code panel, loaded by a host and typed by an operator.
#include "qvn/panels/master/ctlIVA.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "qvn/shared/names.h"
#include "tests/failure_matchers.h"
#include "tests/on_platform.h"

namespace qvn::test {
namespace {

using toolkit::Align;
using toolkit::WidgetKind;

class VatCodePanel : public OnPlatform {
 public:
  ctlIVA panel{PanelSite{container(), "iva"}};

  toolkit::Surface& surface() { return panel.surface(); }
  toolkit::TextBox& box(std::string_view name) { return surface().textBox(name); }
  toolkit::TextBox& code = box("TxtCodice");
  toolkit::TextBox& description = box("txtDescrizione");
  toolkit::TextBox& rate = box("TxtIVA");
  toolkit::TextBox& deductible = box("txtDeb_Dec");
};
QVN_ON_EVERY_PLATFORM(VatCodePanel);

struct Drawn {
  std::string name;
  WidgetKind kind;
  std::string caption;
  toolkit::Place place;
};

TEST_P(VatCodePanel, IsLaidOutInTabOrder) {
  const std::vector<Drawn> rows{
      {"Frame1", WidgetKind::Frame, "", {75, 75, 7890, 765}},
      {"lblCodice", WidgetKind::Label, "Codice:", {75, 300, 615, 315}},
      {"TxtCodice", WidgetKind::TextBox, "", {750, 300, 465, 315}},
      {"lblDescrizione", WidgetKind::Label, "Descrizione:", {1125, 300, 1065, 315}},
      {"txtDescrizione", WidgetKind::TextBox, "", {2250, 300, 3540, 315}},
      {"lblIVA", WidgetKind::Label, "IVA:", {5625, 300, 540, 315}},
      {"TxtIVA", WidgetKind::TextBox, "", {6225, 300, 465, 315}},
      {"lblDeb_Dec", WidgetKind::Label, "Ded.:", {5850, 300, 1290, 315}},
      {"txtDeb_Dec", WidgetKind::TextBox, "", {7200, 300, 540, 315}},
  };
  ASSERT_EQ(surface().widgets().size(), rows.size());
  for (std::size_t i = 0; i < rows.size(); ++i) {
    toolkit::Widget& widget = *surface().widgets()[i];
    SCOPED_TRACE(rows[i].name);
    EXPECT_EQ(widget.Name(), rows[i].name);
    EXPECT_EQ(widget.Kind(), rows[i].kind);
    EXPECT_EQ(widget.TabIndex(), static_cast<std::int16_t>(i));
    EXPECT_EQ(widget.place(), rows[i].place);
    EXPECT_EQ(widget.layout().caption, rows[i].caption);
    EXPECT_EQ(widget.layout().align, rows[i].kind == WidgetKind::Label ? Align::Right : Align::Left);
    EXPECT_EQ(widget.frame(), i == 0 ? nullptr : &surface().frame("Frame1"));
    EXPECT_TRUE(widget.Visible());
    EXPECT_EQ(widget.Enabled(), i != 0);
  }
  EXPECT_EQ(surface().layout().name, "ctlIVA");
  EXPECT_EQ(surface().layout().width, 8070);
  EXPECT_EQ(surface().layout().height, 945);
}

TEST_P(VatCodePanel, HasItsPublicMembersInOrder) {
  std::string members;
  for (const Member& member : panel.members()) {
    members.append(member.name).append(" ").append(nameOf(member.kind)).append(" ").append(member.type).append("\n");
  }
  EXPECT_EQ(members,
            "Codice get/let 8-bit unsigned integer\n"
            "Deb_Dec get/let 8-bit unsigned integer\n"
            "DESCRIZIONE get/let text\n"
            "Attiva method \n"
            "Disattiva method \n"
            "IVA get/let 8-bit unsigned integer\n");
}

TEST_P(VatCodePanel, AFreshOneHasNoNumbersToRead) {
  EXPECT_FAILURE(panel.Codice(), FailureKind::TypeMismatch, "TxtCodice");
  EXPECT_FAILURE(panel.IVA(), FailureKind::TypeMismatch, "TxtIVA");
  EXPECT_FAILURE(panel.Deb_Dec(), FailureKind::TypeMismatch, "txtDeb_Dec");
  EXPECT_EQ(panel.DESCRIZIONE(), "");
  EXPECT_FALSE(surface().frame("Frame1").Enabled());
  EXPECT_TRUE(container().notices.empty());
}

TEST_P(VatCodePanel, IsLoadedAndReadBackByTheHost) {
  panel.Codice(22);
  panel.DESCRIZIONE("Aliquota ordinaria è");
  panel.IVA(22);
  panel.Deb_Dec(100);
  EXPECT_EQ(code.Text(), "22");
  EXPECT_EQ(description.Text(), "Aliquota ordinaria è");
  EXPECT_EQ(rate.Text(), "22");
  EXPECT_EQ(deductible.Text(), "100");
  EXPECT_EQ(panel.Codice(), 22);
  EXPECT_EQ(panel.DESCRIZIONE(), "Aliquota ordinaria è");
  EXPECT_EQ(panel.IVA(), 22);
  EXPECT_EQ(panel.Deb_Dec(), 100);
  EXPECT_EQ(container().notices, (std::vector<std::string>{"Codice", "Descrizione", "IVA", "Deb_Dec"}));
}

TEST_P(VatCodePanel, HoldsEveryCodeOfEightBits) {
  for (int value = 0; value <= 255; ++value) {
    panel.Codice(static_cast<std::uint8_t>(value));
    ASSERT_EQ(panel.Codice(), value);
    ASSERT_EQ(code.Text(), std::to_string(value));
  }
}

TEST_P(VatCodePanel, APercentAboveAHundredIsCorrectedBeforeTheLetReturns) {
  for (int value = 0; value <= 255; ++value) {
    panel.IVA(static_cast<std::uint8_t>(value));
    panel.Deb_Dec(static_cast<std::uint8_t>(value));
    ASSERT_EQ(panel.IVA(), value > 100 ? 100 : value);
    ASSERT_EQ(panel.Deb_Dec(), value > 100 ? 100 : value);
  }
  panel.IVA(50);
  container().notices.clear();
  panel.IVA(200);
  EXPECT_EQ(container().notices, (std::vector<std::string>{"IVA", "IVA"}));  // as written, and as corrected
  EXPECT_TRUE(wholeSelected(rate));
}

TEST_P(VatCodePanel, AnUnchangedLetLeavesTheSelectionAndAnnouncesNothing) {
  panel.Codice(7);
  panel.DESCRIZIONE("ESENTE");
  panel.IVA(10);
  panel.Deb_Dec(40);
  for (toolkit::TextBox* field : {&code, &description, &rate, &deductible}) {
    field->SelStart(1);
    field->SelLength(0);
  }
  container().notices.clear();
  panel.Codice(7);
  panel.DESCRIZIONE("ESENTE");
  panel.IVA(10);
  panel.Deb_Dec(40);
  EXPECT_TRUE(container().notices.empty());
  for (const toolkit::TextBox* field : {&code, &description, &rate, &deductible}) EXPECT_EQ(field->SelStart(), 1);
}

TEST_P(VatCodePanel, LetsCompareTextsExactly) {
  panel.DESCRIZIONE("Esente");
  container().notices.clear();
  panel.DESCRIZIONE("ESENTE");
  EXPECT_EQ(description.Text(), "ESENTE");
  EXPECT_EQ(container().notices, (std::vector<std::string>{"Descrizione"}));
  code.Text("07");  // the same number in another text
  panel.Codice(7);
  EXPECT_EQ(code.Text(), "7");
}

TEST_P(VatCodePanel, AHostsTextMayBeLongerThanAnOperatorMayType) {
  const std::string longText(80, 'X');
  panel.DESCRIZIONE(longText);
  EXPECT_EQ(panel.DESCRIZIONE(), longText);
}

TEST_P(VatCodePanel, AttivaEnablesAndPutsTheFocusOnTheSelectedCode) {
  panel.Codice(12);
  panel.Attiva();
  EXPECT_TRUE(surface().frame("Frame1").Enabled());
  EXPECT_EQ(focused(), "TxtCodice");
  EXPECT_TRUE(wholeSelected(code));
  EXPECT_EQ(code.BackColor(), 16776960U);
}

TEST_P(VatCodePanel, AttivaOnAPanelThatIsNotVisibleStillEnables) {
  surface().Visible(false);
  panel.Codice(12);
  panel.Attiva();
  EXPECT_TRUE(surface().frame("Frame1").Enabled());
  EXPECT_EQ(focused(), "");
  EXPECT_TRUE(wholeSelected(code));
  EXPECT_TRUE(container().failures.empty());
}

TEST_P(VatCodePanel, DisattivaFreezesAndClearsNothing) {
  panel.Attiva();
  panel.IVA(22);
  panel.DESCRIZIONE("ORDINARIA");
  panel.Disattiva();
  EXPECT_FALSE(surface().frame("Frame1").Enabled());
  EXPECT_EQ(focused(), "");
  EXPECT_EQ(code.BackColor(), 16777215U);
  EXPECT_EQ(panel.IVA(), 22);
  panel.DESCRIZIONE("RIDOTTA");
  EXPECT_EQ(panel.DESCRIZIONE(), "RIDOTTA");
  EXPECT_FAILURE(hands().type("9"), FailureKind::InvalidCall, "");
}

TEST_P(VatCodePanel, AttivaAndDisattivaMayBeCalledAnyNumberOfTimesInAnyOrder) {
  panel.Disattiva();
  panel.Disattiva();
  panel.Attiva();
  panel.Attiva();
  EXPECT_EQ(focused(), "TxtCodice");
  panel.Disattiva();
  panel.Attiva();
  EXPECT_TRUE(surface().frame("Frame1").Enabled());
  EXPECT_EQ(focused(), "TxtCodice");
}

TEST_P(VatCodePanel, EnterGoesFromFieldToFieldAndAroundSelectingEach) {
  panel.Codice(7);
  panel.DESCRIZIONE("ORDINARIA");
  panel.IVA(22);
  panel.Deb_Dec(100);
  panel.Attiva();
  for (const auto name : {"txtDescrizione", "TxtIVA", "txtDeb_Dec", "TxtCodice"}) {
    hands().type("{Enter}");
    EXPECT_EQ(focused(), name);
    EXPECT_TRUE(wholeSelected(box(name)));
    EXPECT_GT(box(name).SelLength(), 0);
    for (const auto other : {"txtDescrizione", "TxtIVA", "txtDeb_Dec", "TxtCodice"}) {
      EXPECT_EQ(box(other).BackColor(), std::string_view(other) == name ? 16776960U : 16777215U) << other;
    }
  }
}

struct Field {
  std::string name;
  std::string keys;
  std::string text;
  int beeps;
};

TEST_P(VatCodePanel, EachFieldHasItsFilterAndLimit) {
  const std::vector<Field> fields{
      {"TxtCodice", "1a23", "12", 2},
      {"txtDescrizione", std::string(51, 'x'), std::string(50, 'X'), 1},
      {"TxtIVA", "1a00,1", "100", 3},
      {"txtDeb_Dec", "0999", "099", 1},
  };
  panel.Attiva();
  for (const Field& field : fields) {
    SCOPED_TRACE(field.name);
    hands().focus(box(field.name));
    const auto before = beeps();
    hands().type(field.keys);
    EXPECT_EQ(box(field.name).Text(), field.text);
    EXPECT_EQ(beeps() - before, field.beeps);
  }
}

TEST_P(VatCodePanel, EachKeyIsAnnouncedUnderTheFieldsName) {
  panel.Attiva();
  hands().type("1{Enter}a{Enter}2{Enter}3");
  EXPECT_EQ(container().notices, (std::vector<std::string>{"Codice", "Descrizione", "IVA", "Deb_Dec"}));
}

class PercentField : public VatCodePanel {
 public:
  void each(auto&& check) {
    panel.Attiva();
    for (const auto name : {"TxtIVA", "txtDeb_Dec"}) {
      SCOPED_TRACE(name);
      hands().focus(box(name));
      check(box(name), std::string(name).substr(3));
    }
  }
};
QVN_ON_EVERY_PLATFORM(PercentField);

TEST_P(PercentField, TakesTheLastDigitAndThenCorrectsItself) {
  each([this](toolkit::TextBox& field, const std::string&) {
    hands().type("25");
    EXPECT_EQ(field.Text(), "25");
    EXPECT_EQ(field.SelLength(), 0);
    hands().type("0");
    EXPECT_EQ(field.Text(), "100");
    EXPECT_TRUE(wholeSelected(field));
    hands().type("7");  // replaces what was corrected
    EXPECT_EQ(field.Text(), "7");
  });
}

TEST_P(PercentField, KeepsAHundredAndCorrectsOneMore) {
  each([this](toolkit::TextBox& field, const std::string&) {
    hands().type("100");
    EXPECT_EQ(field.Text(), "100");
    EXPECT_EQ(field.SelStart(), 3);
    EXPECT_EQ(field.SelLength(), 0);
    hands().caret(0, 3);
    hands().type("101");
    EXPECT_EQ(field.Text(), "100");
    EXPECT_TRUE(wholeSelected(field));
  });
}

TEST_P(PercentField, EmptiedBecomesZeroSelected) {
  each([this](toolkit::TextBox& field, const std::string& property) {
    hands().type("7");
    container().notices.clear();
    hands().type("{Backspace}");
    EXPECT_EQ(field.Text(), "0");
    EXPECT_TRUE(wholeSelected(field));
    EXPECT_EQ(container().notices, (std::vector<std::string>{property, property}));
    hands().type("4");
    EXPECT_EQ(field.Text(), "4");
  });
}

TEST_P(PercentField, AnnouncesWhatWasTypedAndWhatItBecame) {
  each([this](toolkit::TextBox&, const std::string& property) {
    container().notices.clear();
    hands().type("250");
    EXPECT_EQ(container().notices, std::vector<std::string>(4, property));
  });
}

TEST_P(PercentField, AChangeThatIsNoNumberFailsToItsWriterAndStays) {
  each([this](toolkit::TextBox& field, const std::string&) {
    EXPECT_FAILURE(field.Text("dieci"), FailureKind::TypeMismatch, std::string(field.Name()));
    EXPECT_EQ(field.Text(), "dieci");
    EXPECT_TRUE(container().failures.empty());
  });
}

TEST_P(PercentField, APastedNumberIsCorrectedWhileItGoesIn) {
  each([this](toolkit::TextBox& field, const std::string&) {
    hands().paste("250");
    EXPECT_EQ(field.Text(), "100");
    EXPECT_TRUE(wholeSelected(field));
    hands().paste("1x9");  // stops at the letter
    EXPECT_EQ(field.Text(), "1");
  });
}

TEST_P(VatCodePanel, PropertiesOutOfRangeFailNamingTheField) {
  code.Text("256");
  EXPECT_FAILURE(panel.Codice(), FailureKind::Overflow, "TxtCodice");
  code.Text("12x");
  EXPECT_FAILURE(panel.Codice(), FailureKind::TypeMismatch, "12x");
  code.Text("");
  EXPECT_FAILURE(panel.Codice(), FailureKind::TypeMismatch, "TxtCodice");
}

TEST_P(VatCodePanel, IsReachedByNameInAnyCase) {
  letByName(panel, "CODICE", std::string("7"));
  letByName(panel, "iva", 21.5);  // ties to even
  EXPECT_EQ(getByName(panel, "Codice"), Variant(std::uint8_t{7}));
  EXPECT_EQ(getByName(panel, "IVA"), Variant(std::uint8_t{22}));
  EXPECT_EQ(callByName(panel, "ATTIVA", {}), Variant(Empty{}));
  EXPECT_EQ(focused(), "TxtCodice");
  callByName(panel, "disattiva", {});
  EXPECT_FALSE(surface().frame("Frame1").Enabled());
  EXPECT_FAILURE(letByName(panel, "Codice", std::int32_t{256}), FailureKind::Overflow, "iva.Codice");
  EXPECT_FAILURE(letByName(panel, "Codice", Null{}), FailureKind::InvalidUseOfNull, "iva.Codice");
  EXPECT_FAILURE(letByName(panel, "Codice", std::string("x")), FailureKind::TypeMismatch, "\"x\"");
  EXPECT_FAILURE(getByName(panel, "Deb_Dec"), FailureKind::TypeMismatch, "iva.Deb_Dec: txtDeb_Dec");
  EXPECT_FAILURE(getByName(panel, "Niente"), FailureKind::NoSuchMember, "iva.Niente");
  EXPECT_FAILURE(letByName(panel, "Niente", Empty{}), FailureKind::NoSuchMember, "iva.Niente");
  EXPECT_FAILURE(getByName(panel, "attiva"), FailureKind::NoSuchMember, "iva.Attiva: it is no property");
  EXPECT_FAILURE(letByName(panel, "Attiva", Empty{}), FailureKind::NoSuchMember, "iva.Attiva: it is no property");
  EXPECT_FAILURE(callByName(panel, "IVA", {}), FailureKind::NoSuchMember, "iva.IVA: it is no method");
  std::vector<Variant> tooMany{std::int32_t{1}};
  EXPECT_FAILURE(callByName(panel, "Attiva", tooMany), FailureKind::InvalidCall, "iva.Attiva");
  EXPECT_EQ(panel.Codice(), 7);
}

TEST_P(VatCodePanel, EachPropertyWrittenByNameAnnouncesItselfAndReadsBack) {
  int properties = 0;
  for (const Member& member : panel.members()) {
    if (member.kind != MemberKind::GetLet) continue;
    ++properties;
    SCOPED_TRACE(member.name);
    container().notices.clear();
    letByName(panel, member.name, std::string("7"));
    ASSERT_EQ(container().notices.size(), 1U);
    EXPECT_TRUE(sameName(container().notices[0], member.name));
    EXPECT_EQ(as<std::string>(getByName(panel, member.name), platform().locale()), "7");
  }
  EXPECT_EQ(properties, 4);
}

TEST_P(VatCodePanel, ByNameTakesTextsInThePlatformsLocale) {
  EXPECT_FAILURE(letByName(panel, "Codice", std::string("7.4")), FailureKind::TypeMismatch, "7.4");
  setLocale({.decimalSign = '.', .groupingSign = ','});
  letByName(panel, "Codice", std::string("7.4"));
  EXPECT_EQ(panel.Codice(), 7);
}

TEST_P(VatCodePanel, DisattivaPassesAFailureOn) {
  panel.Attiva();
  code.LostFocus = [] { throw Failure(FailureKind::Overflow, "on leaving"); };
  EXPECT_FAILURE(panel.Disattiva(), FailureKind::Overflow, "on leaving");
  EXPECT_FALSE(surface().frame("Frame1").Enabled());
}

TEST_P(VatCodePanel, AHostMayDropItInsideItsOwnWriteAndStillHearOfAFailure) {
  auto dropped = std::make_unique<ctlIVA>(PanelSite{container(), "altra"});
  dropped->IVA(50);
  container().onNotice = [&](toolkit::Surface&, std::string_view) {
    dropped.reset();
    throw Failure(FailureKind::Database, "gone");
  };
  EXPECT_FAILURE(letByName(*dropped, "IVA", std::int32_t{60}), FailureKind::Database, "altra.IVA: gone");
  EXPECT_EQ(dropped, nullptr);
}

TEST_P(VatCodePanel, GoingAwayLeavesNoFocusBehind) {
  {
    std::optional<ctlIVA> second;
    second.emplace(PanelSite{container(), "altra"});
    second->Attiva();
    EXPECT_EQ(platform().focused(), &second->surface().widget("TxtCodice"));
  }
  EXPECT_EQ(platform().focused(), nullptr);
}

TEST_P(VatCodePanel, AHostMayDropItWhileItAnnouncesAChange) {
  for (const std::string keys : {"7", "7{Enter}a", "7{Enter}a{Enter}250", "7{Enter}a{Enter}2{Enter}250"}) {
    auto dropped = std::make_unique<ctlIVA>(PanelSite{container(), "altra"});
    dropped->Attiva();
    std::size_t left = container().notices.size() + static_cast<std::size_t>(std::ranges::count_if(keys, [](char c) {
                         return c == 'a' || (c >= '0' && c <= '9');
                       }));
    container().onNotice = [&](toolkit::Surface&, std::string_view) {
      if (container().notices.size() == left) dropped.reset();
    };
    hands().type(keys);
    EXPECT_EQ(dropped, nullptr) << keys;
    EXPECT_EQ(platform().focused(), nullptr);
    EXPECT_TRUE(container().failures.empty());
    container().onNotice = {};
  }
}

TEST_P(VatCodePanel, TwoOfThemKeepTheirOwnValues) {
  ctlIVA other(PanelSite{container(), "altra"});
  panel.Codice(1);
  other.Codice(2);
  EXPECT_EQ(panel.Codice(), 1);
  EXPECT_EQ(other.Codice(), 2);
}

}  // namespace
}  // namespace qvn::test
