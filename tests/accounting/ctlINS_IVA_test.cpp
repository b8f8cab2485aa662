// The VAT line: a code with its rate, a taxable amount and its VAT, each worked out of the other.
#include "qvn/panels/accounting/ctlINS_IVA.h"

#include <gtest/gtest.h>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "qvn/shared/Globale.h"
#include "tests/failure_matchers.h"
#include "tests/noting_platform.h"
#include "tests/on_database.h"

namespace qvn::test {
namespace {

using toolkit::Align;
using toolkit::WidgetKind;

constexpr std::uint32_t kCyan = 0xFFFF00;
constexpr std::uint32_t kYellow = 0x00FFFF;

Currency euro(std::int64_t cents) { return Currency::fromTenThousandths(cents * 100); }

class VatLine : public OnDatabase {
 public:
  VatLine() {
    rate(4, "ORDINARIA", 20);
    rate(2, "ESENTE", 0);
  }

  void rate(std::int16_t which, std::string_view text, std::int16_t whole) {
    driver().answers["Select * From TIPI_IVA Where COD_IVA = " + std::to_string(which)] = {
        {"COD_IVA", "DESCRIZIONE", "IVA"}, {{Variant(which), Variant(std::string(text)), Variant(whole)}}};
  }

  std::optional<ctlINS_IVA> made{std::in_place, PanelSite{container(), "riga"}};
  ctlINS_IVA& panel = *made;
  toolkit::Surface& surface = panel.surface();
  toolkit::Frame& frame = surface.frame("Frame1");
  toolkit::TextBox& code = surface.textBox("txtCOD_IVA");
  toolkit::Label& description = surface.label("LblDESC_IVA");
  toolkit::Label& percent = surface.label("lblIVA");
  toolkit::TextBox& taxable = surface.textBox("TxtIMPONIBILE");
  toolkit::TextBox& vat = surface.textBox("TxtIVA");

  /// Makes the panel ready, with the code of 20 percent.
  void ready() {
    panel.COD_IVA("4");
    panel.Attiva();
    forget();
  }
  /// Types over what the field holds and goes elsewhere.
  void enter(toolkit::TextBox& field, std::string_view keys) {
    hands().focus(field);
    hands().type(keys);
    hands().leave();
  }
  void amounts(std::string_view taxableText, std::string_view vatText) {
    EXPECT_EQ(taxable.Text(), taxableText);
    EXPECT_EQ(vat.Text(), vatText);
  }
};
QVN_ON_EVERY_PLATFORM(VatLine);

struct LaidOut {
  std::string name;
  WidgetKind kind;
  toolkit::Place place;
  std::string text;
  Align align;
  bool bordered;
};

TEST_P(VatLine, IsLaidOutInTabOrder) {
  const std::vector<LaidOut> rows{
      {"Frame1", WidgetKind::Frame, {75, 0, 9840, 690}, "", Align::Left, false},
      {"txtCOD_IVA", WidgetKind::TextBox, {75, 225, 915, 315}, "0", Align::Left, false},
      {"LblDESC_IVA", WidgetKind::Label, {1050, 225, 4665, 315}, "", Align::Left, true},
      {"lblIVA", WidgetKind::Label, {5775, 225, 690, 315}, "", Align::Left, true},
      {"TxtIMPONIBILE", WidgetKind::TextBox, {6525, 225, 1590, 315}, "0", Align::Right, false},
      {"TxtIVA", WidgetKind::TextBox, {8175, 225, 1590, 315}, "0", Align::Right, false},
  };
  ASSERT_EQ(surface.widgets().size(), rows.size());
  for (std::size_t i = 0; i < rows.size(); ++i) {
    toolkit::Widget& widget = *surface.widgets()[i];
    SCOPED_TRACE(rows[i].name);
    EXPECT_EQ(widget.Name(), rows[i].name);
    EXPECT_EQ(widget.Kind(), rows[i].kind);
    EXPECT_EQ(widget.TabIndex(), static_cast<std::int16_t>(i));
    EXPECT_EQ(widget.place(), rows[i].place);
    EXPECT_EQ(widget.layout().caption, rows[i].text);
    EXPECT_EQ(widget.layout().align, rows[i].align);
    EXPECT_EQ(widget.layout().bordered, rows[i].bordered);
    EXPECT_EQ(widget.frame(), i == 0 ? nullptr : &frame);
    EXPECT_EQ(widget.Enabled(), i != 0);
  }
  EXPECT_EQ(surface.layout().name, "ctlINS_IVA");
  EXPECT_EQ(surface.layout().width, 10005);
  EXPECT_EQ(surface.layout().height, 765);
}

TEST_P(VatLine, HasItsPublicMembersInOrder) {
  std::string members;
  for (const Member& member : panel.members()) {
    members.append(member.name).append(" ").append(nameOf(member.kind)).append(" ").append(member.type).append("\n");
  }
  EXPECT_EQ(members,
            "Disattiva method \n"
            "Attiva method \n"
            "Events get clsQVN_Eventi\n"
            "COD_IVA get/let text\n"
            "IMPONIBILE get/let currency\n"
            "IVA get/let currency\n");
}

TEST_P(VatLine, ANewOneShowsZerosAndAsksNothing) {
  EXPECT_EQ(panel.COD_IVA(), "0");
  EXPECT_EQ(panel.IMPONIBILE(), Currency());
  EXPECT_EQ(panel.IVA(), Currency());
  EXPECT_EQ(description.Caption(), "");
  EXPECT_EQ(percent.Caption(), "");
  EXPECT_TRUE(container().notices.empty());
  EXPECT_TRUE(driver().ran.empty());
}

TEST_P(VatLine, GivesTheOneEventObject) {
  EXPECT_EQ(panel.Events(), Globale::Eventi());
  const ctlINS_IVA another(PanelSite{container(), "altra"});
  EXPECT_EQ(another.Events(), panel.Events());
  EXPECT_EQ(std::get<EventsReference>(getByName(panel, "events")), Globale::Eventi());
  EXPECT_FAILURE(letByName(panel, "Events", Empty{}), FailureKind::NoSuchMember, "riga.Events");
}

TEST_P(VatLine, AttivaEnablesAndGoesToTheCode) {
  panel.Attiva();
  EXPECT_TRUE(frame.Enabled());
  EXPECT_TRUE(code.hasFocus());
  EXPECT_TRUE(wholeSelected(code));
  EXPECT_EQ(code.BackColor(), kYellow);
  hands().leave();
  EXPECT_EQ(code.BackColor(), toolkit::kWhite);
  panel.Disattiva();
  EXPECT_FALSE(frame.Enabled());
}

TEST_P(VatLine, AttivaOnAHiddenPanelEnablesAllTheSame) {
  surface.Visible(false);
  panel.Attiva();
  EXPECT_TRUE(frame.Enabled());
  EXPECT_TRUE(wholeSelected(code));
  EXPECT_EQ(platform().focused(), nullptr);
}

TEST_P(VatLine, ACodeShowsItsDescriptionAndRate) {
  panel.COD_IVA("4");
  EXPECT_EQ(description.Caption(), "ORDINARIA");
  EXPECT_EQ(percent.Caption(), "20");
  EXPECT_EQ(panel.COD_IVA(), "4");
  EXPECT_EQ(container().notices, Strings{"COD_IVA"});
  EXPECT_EQ(asked(), Strings{"Select * From TIPI_IVA Where COD_IVA = 4"});
}

TEST_P(VatLine, AnUnknownCodeShowsNoDescriptionAndARateOfZero) {
  panel.COD_IVA("4");
  panel.COD_IVA("99");
  EXPECT_EQ(description.Caption(), "");
  EXPECT_EQ(percent.Caption(), "0");
  panel.Attiva();
  enter(taxable, "100");
  amounts("€ 100,00", "€ 0,00");
}

TEST_P(VatLine, ACodeIsWrittenWithoutComparing) {
  panel.COD_IVA("4");
  driver().ran.clear();
  container().notices.clear();
  panel.COD_IVA("4");  // a write of the text that is there changes nothing
  EXPECT_TRUE(driver().ran.empty());
  panel.COD_IVA("04");  // another text of the same number does
  EXPECT_EQ(panel.COD_IVA(), "04");
  EXPECT_EQ(asked(), Strings{"Select * From TIPI_IVA Where COD_IVA = 04"});
  EXPECT_EQ(container().notices, Strings{"COD_IVA"});
}

TEST_P(VatLine, AnEmptiedCodeBecomesZeroWithBothLabelsEmpty) {
  rate(0, "NESSUNA", 7);
  panel.COD_IVA("4");
  container().notices.clear();
  driver().ran.clear();
  panel.COD_IVA("");
  EXPECT_EQ(code.Text(), "0");
  EXPECT_TRUE(wholeSelected(code));
  EXPECT_EQ(description.Caption(), "");
  EXPECT_EQ(percent.Caption(), "");
  // The code 0 was looked up inside, before the labels were emptied.
  EXPECT_EQ(asked(), Strings{"Select * From TIPI_IVA Where COD_IVA = 0"});
  EXPECT_EQ(container().notices, (Strings{"COD_IVA", "COD_IVA"}));
}

TEST_P(VatLine, ACodeWritesTheDescriptionBeforeTheRate) {
  NotingPlatform noting(platform());
  Globale::install(noting);
  Globale::Eventi()->ImpostaDB("fake:ufficio");
  made.emplace(PanelSite{container(), "riga"});
  toolkit::TextBox& noted = made->surface().textBox("txtCOD_IVA");
  const auto writesOf = [&](std::string_view text) {
    noted.Text(text);
    noting.notes.clear();
    noted.Change();
    return noting.notes;
  };
  EXPECT_EQ(writesOf("4"), (Notes{"LblDESC_IVA.Caption ORDINARIA", "lblIVA.Caption 20"}));
  EXPECT_EQ(writesOf(""), (Notes{"txtCOD_IVA.Text 0", "txtCOD_IVA.SelStart 0", "txtCOD_IVA.SelLength 1",
                                 "LblDESC_IVA.Caption ", "lblIVA.Caption "}));
  made.reset();
  Globale::install(platform());
}

TEST_P(VatLine, AnEmptiedCodeIsReplacedByTheNextDigit) {
  ready();
  hands().type("{Backspace}");
  EXPECT_EQ(code.Text(), "0");
  hands().type("2");
  EXPECT_EQ(code.Text(), "2");
  EXPECT_EQ(description.Caption(), "ESENTE");
}

TEST_P(VatLine, AfterAnEmptiedCodeTheVatBecomesZero) {
  ready();
  hands().type("{Backspace}");
  panel.IVA(euro(500));
  enter(taxable, "100");
  amounts("€ 100,00", "€ 0,00");
  EXPECT_EQ(percent.Caption(), "");
  EXPECT_TRUE(container().failures.empty());
}

TEST_P(VatLine, ACodeThatIsNoNumberFailsAsItsQueryDoes) {
  driver().failingStatement = 1;
  EXPECT_FAILURE(panel.COD_IVA("x"), FailureKind::Database, "COD_IVA = x");
  EXPECT_EQ(code.Text(), "x");
  EXPECT_EQ(description.Caption(), "");
  EXPECT_TRUE(container().notices.empty());
}

TEST_P(VatLine, ACodeTakesTwoDigits) {
  panel.Attiva();
  const std::int64_t before = beeps();
  hands().type("4a.-1");
  EXPECT_EQ(code.Text(), "41");
  EXPECT_EQ(beeps(), before + 3);
  hands().type("2");
  EXPECT_EQ(code.Text(), "41");
  EXPECT_EQ(beeps(), before + 4);
}

TEST_P(VatLine, EnterGoesFromFieldToField) {
  ready();
  hands().type("{Enter}");
  EXPECT_TRUE(taxable.hasFocus());
  hands().type("{Enter}");
  EXPECT_TRUE(vat.hasFocus());
  hands().type("{Enter}");
  EXPECT_TRUE(code.hasFocus());
}

TEST_P(VatLine, AnAmountIsPlainWhileItIsEdited) {
  panel.COD_IVA("4");
  panel.Attiva();
  panel.IMPONIBILE(euro(123456));
  EXPECT_EQ(taxable.Text(), "€ 1.234,56");
  container().notices.clear();
  hands().focus(taxable);
  EXPECT_EQ(taxable.Text(), "1234,56");
  EXPECT_TRUE(wholeSelected(taxable));
  EXPECT_EQ(taxable.BackColor(), kCyan);
  EXPECT_EQ(container().notices, Strings{"IMPONIBILE"});
  hands().leave();
  EXPECT_EQ(taxable.Text(), "€ 1.234,56");
  EXPECT_EQ(taxable.BackColor(), toolkit::kWhite);
}

TEST_P(VatLine, AmountsTakeASignAndTwoDecimals) {
  ready();
  hands().focus(vat);
  hands().type("-1.234x5");
  EXPECT_EQ(vat.Text(), "-1,23");
  hands().focus(taxable);
  hands().type("-7");
  EXPECT_EQ(taxable.Text(), "-7");
}

TEST_P(VatLine, AnEmptiedAmountBecomesZero) {
  ready();
  panel.IVA(euro(500));
  for (toolkit::TextBox* field : {&taxable, &vat}) {
    hands().focus(*field);
    hands().type("9");
    container().notices.clear();
    hands().type("{Backspace}");
    EXPECT_EQ(field->Text(), "0");
    EXPECT_TRUE(wholeSelected(*field));
    const std::string name(field == &taxable ? "IMPONIBILE" : "IVA");
    EXPECT_EQ(container().notices, (Strings{name, name}));
  }
}

TEST_P(VatLine, ALetWorksOutNothing) {
  panel.COD_IVA("4");
  container().notices.clear();
  panel.IMPONIBILE(euro(100'000));
  panel.IVA(euro(1));
  amounts("€ 1.000,00", "€ 0,01");
  EXPECT_EQ(container().notices, (Strings{"IMPONIBILE", "IVA"}));
  EXPECT_EQ(panel.IMPONIBILE(), euro(100'000));
  EXPECT_EQ(panel.IVA(), euro(1));
}

TEST_P(VatLine, AnEqualLetLeavesTheTextInItsForm) {
  panel.IMPONIBILE(Currency());
  panel.IVA(Currency());
  amounts("0", "0");
  vat.Text("12,5");
  container().notices.clear();
  panel.IVA(euro(1250));
  EXPECT_EQ(vat.Text(), "12,5");
  EXPECT_TRUE(container().notices.empty());
}

TEST_P(VatLine, AnAmountThatIsNoNumberFailsWhereItIsRead) {
  vat.Text(",");
  taxable.Text("abc");
  EXPECT_FAILURE(panel.IVA(), FailureKind::TypeMismatch, "TxtIVA: ");
  EXPECT_FAILURE(panel.IVA(euro(1)), FailureKind::TypeMismatch, "TxtIVA: ");
  EXPECT_FAILURE(panel.IMPONIBILE(), FailureKind::TypeMismatch, "\"abc\"");
  EXPECT_FAILURE(panel.IMPONIBILE(euro(1)), FailureKind::TypeMismatch, "TxtIMPONIBILE: ");
  EXPECT_EQ(vat.Text(), ",");
}

TEST_P(VatLine, TheWorkedExampleForward) {
  ready();
  hands().type("{Enter}1234.56{Enter}");  // the numeric pad's point is the comma
  EXPECT_EQ(taxable.Text(), "€ 1.234,56");
  EXPECT_EQ(vat.Text(), "246,91");  // now being edited
  hands().type("{Enter}");
  amounts("€ 1.234,56", "€ 246,91");
  EXPECT_EQ(panel.IVA(), euro(24'691));
  EXPECT_EQ(panel.IMPONIBILE(), euro(123'456));
  hands().type("{Enter}1000{Enter}");  // the VAT that stands is cleared, and not worked out at once
  EXPECT_EQ(taxable.Text(), "€ 1.000,00");
  EXPECT_EQ(panel.IVA(), Currency());
  hands().leave();
  amounts("€ 1.000,00", "€ 0,00");
  hands().focus(taxable);
  hands().leave();
  amounts("€ 1.000,00", "€ 200,00");
}

TEST_P(VatLine, TheWorkedExampleBackwardLosesACent) {
  ready();
  hands().type("{Enter}{Enter}246,91{Enter}");
  amounts("€ 1.234,55", "€ 246,91");
  EXPECT_EQ(panel.IMPONIBILE(), euro(123'455));
}

TEST_P(VatLine, ForwardWritesTheUnroundedProductAndThenTheAmount) {
  ready();
  std::vector<std::string> texts;
  container().onNotice = [&](toolkit::Surface&, std::string_view name) {
    if (name == "IVA") texts.push_back(vat.Text());
  };
  enter(taxable, "1234,56");
  EXPECT_EQ(texts, (std::vector<std::string>{"246,912", "€ 246,91"}));
  EXPECT_EQ(panel.IVA(), euro(24'691));  // what is read is the rounded amount
}

TEST_P(VatLine, ForwardWithAVatThatStandsClearsIt) {
  ready();
  panel.IMPONIBILE(euro(100'000));
  panel.IVA(euro(500));
  hands().focus(taxable);
  hands().leave();  // though the taxable amount is the same
  amounts("€ 1.000,00", "€ 0,00");
}

TEST_P(VatLine, ForwardTakesANegativeTaxable) {
  ready();
  enter(taxable, "-1000");
  amounts("-€ 1.000,00", "-€ 200,00");
}

TEST_P(VatLine, ForwardWithARateOfZeroGivesZero) {
  ready();
  panel.COD_IVA("2");
  enter(taxable, "1000");
  amounts("€ 1.000,00", "€ 0,00");
}

TEST_P(VatLine, ForwardWithoutARateGivesZero) {
  panel.Attiva();
  enter(taxable, "1000");
  amounts("€ 1.000,00", "€ 0,00");
  EXPECT_TRUE(container().failures.empty());
}

TEST_P(VatLine, ForwardDividesBeforeItMultiplies) {
  rate(5, "RIDOTTA", 5);
  panel.COD_IVA("5");
  panel.Attiva();
  enter(taxable, "23944965898829,7");
  EXPECT_EQ(vat.Text(), "€ 1.197.248.294.941,48");  // ,49 the other way round
}

TEST_P(VatLine, BackwardDividesBeforeItMultiplies) {
  ready();
  enter(vat, "4376007573644,77");
  EXPECT_EQ(taxable.Text(), "€ 21.880.037.868.223,80");  // ,90 the other way round
}

TEST_P(VatLine, ForwardClearsANegativeVatToo) {
  ready();
  panel.IVA(euro(-500));
  enter(taxable, "1000");
  amounts("€ 1.000,00", "€ 0,00");
}

TEST_P(VatLine, BackwardLeavesANegativeTaxable) {
  ready();
  panel.IMPONIBILE(euro(-1000));
  enter(vat, "77");
  amounts("-€ 10,00", "€ 77,00");
}

TEST_P(VatLine, ForwardThatOnlyClearsDoesNotLookAtTheTaxable) {
  ready();
  panel.IVA(euro(500));
  taxable.Text("abc");
  hands().focus(taxable);
  hands().leave();
  EXPECT_TRUE(container().failures.empty());
  amounts("abc", "€ 0,00");
}

TEST_P(VatLine, BackwardReadsTheTaxableWhateverTheVat) {
  ready();
  taxable.Text("abc");
  hands().focus(vat);
  hands().leave();
  const ReportedFailure failure = onlyReported();
  EXPECT_EQ(failure.kind, FailureKind::TypeMismatch);
  EXPECT_NE(failure.message.find("TxtIMPONIBILE"), std::string::npos);
}

TEST_P(VatLine, EachDirectionRewritesTheVatBeforeTheTaxable) {
  ready();
  panel.IMPONIBILE(euro(100));
  panel.IVA(euro(20));
  for (toolkit::TextBox* left : {&taxable, &vat}) {
    hands().focus(*left);
    taxable.Text("1");
    vat.Text("7");
    container().notices.clear();
    hands().leave();
    EXPECT_EQ(container().notices.back(), "IMPONIBILE");
    EXPECT_EQ(container().notices.front(), "IVA");
  }
}

TEST_P(VatLine, AnEmptiedAmountIsZeroBeforeItIsAnnounced) {
  ready();
  for (toolkit::TextBox* field : {&taxable, &vat}) {
    hands().focus(*field);
    hands().type("9");
    std::vector<std::string> texts;
    container().onNotice = [&](toolkit::Surface&, std::string_view) { texts.push_back(field->Text()); };
    hands().type("{Backspace}");
    container().onNotice = {};
    EXPECT_EQ(texts, (std::vector<std::string>{"0", "0"}));
  }
}

TEST_P(VatLine, AnAmountIsColouredBeforeItIsRewritten) {
  ready();
  panel.IMPONIBILE(euro(100));
  std::uint32_t back = 0;
  container().onNotice = [&](toolkit::Surface&, std::string_view) { back = taxable.BackColor(); };
  hands().focus(taxable);
  EXPECT_EQ(back, kCyan);
}

TEST_P(VatLine, TheCodeIsSelectedBeforeItIsColouredAndAnAmountAfterwards) {
  NotingPlatform noting(platform());
  Globale::install(noting);
  made.emplace(PanelSite{container(), "riga"});
  noting.notes.clear();
  made->surface().textBox("txtCOD_IVA").GotFocus();
  EXPECT_EQ(noting.notes, (Notes{"txtCOD_IVA.SelStart 0", "txtCOD_IVA.SelLength 1", "txtCOD_IVA.BackColor 65535"}));
  for (const std::string field : {"TxtIMPONIBILE", "TxtIVA"}) {
    noting.notes.clear();
    made->surface().textBox(field).GotFocus();
    EXPECT_EQ(noting.notes, (Notes{field + ".BackColor 16776960", field + ".Text 0,00", field + ".SelStart 0",
                                   field + ".SelLength 4"}));
  }
  made.reset();
  Globale::install(platform());
}

TEST_P(VatLine, DisattivaPassesOnWhatLeavingTheFieldFailsWith) {
  panel.Attiva();
  hands().focus(vat);
  hands().type("50");
  EXPECT_FAILURE(panel.Disattiva(), FailureKind::TypeMismatch, "lblIVA: ");
  EXPECT_FALSE(frame.Enabled());
  EXPECT_EQ(platform().focused(), nullptr);
}

TEST_P(VatLine, BackwardLeavesANegativeVat) {
  ready();
  enter(vat, "-200");
  amounts("€ 0,00", "-€ 200,00");
}

TEST_P(VatLine, BackwardLeavesBothWhereATaxableStands) {
  ready();
  panel.IMPONIBILE(euro(1000));
  enter(vat, "77");
  amounts("€ 10,00", "€ 77,00");
}

TEST_P(VatLine, BackwardWithoutARateFails) {
  panel.Attiva();
  enter(vat, "200");
  const ReportedFailure failure = onlyReported();
  EXPECT_EQ(failure.panel, "riga");
  EXPECT_EQ(failure.widget, "TxtIVA");
  EXPECT_EQ(failure.event, "LostFocus");
  EXPECT_EQ(failure.kind, FailureKind::TypeMismatch);
  EXPECT_NE(failure.message.find("lblIVA"), std::string::npos);
  amounts("0", "200");                          // as typed: the rewriting was not reached
  EXPECT_EQ(vat.BackColor(), toolkit::kWhite);  // but the colour had gone back
}

TEST_P(VatLine, BackwardWithARateOfZeroFails) {
  ready();
  panel.COD_IVA("2");
  enter(vat, "200");
  const ReportedFailure failure = onlyReported();
  EXPECT_EQ(failure.kind, FailureKind::DivisionByZero);
  EXPECT_NE(failure.message.find("lblIVA"), std::string::npos);
  amounts("0", "200");
  EXPECT_EQ(vat.BackColor(), toolkit::kWhite);
}

TEST_P(VatLine, BackwardWithoutAVatFailsNowhere) {
  panel.Attiva();
  hands().focus(vat);
  hands().leave();
  amounts("€ 0,00", "€ 0,00");
  EXPECT_TRUE(container().failures.empty());
}

TEST_P(VatLine, BackwardBeyondTheCurrencyOverflows) {
  rate(1, "MINIMA", 1);
  panel.COD_IVA("1");
  panel.Attiva();
  enter(vat, "100000000000000");
  EXPECT_EQ(onlyReported().kind, FailureKind::Overflow);
  amounts("0", "100000000000000");
}

TEST_P(VatLine, BackwardPassesThroughTheProperty) {
  rate(3, "TERZA", 3);
  panel.COD_IVA("3");
  panel.Attiva();
  container().notices.clear();
  enter(vat, "1");
  amounts("€ 33,33", "€ 1,00");
  EXPECT_EQ(panel.IMPONIBILE(), euro(3333));
}

TEST_P(VatLine, AnAmountThatIsNoNumberStopsTheLeaving) {
  ready();
  vat.Text("1,5x");
  enter(taxable, "100");
  const ReportedFailure failure = onlyReported();
  EXPECT_EQ(failure.kind, FailureKind::TypeMismatch);
  EXPECT_NE(failure.message.find("\"1,5x\""), std::string::npos);
  amounts("100", "1,5x");
  EXPECT_EQ(taxable.BackColor(), toolkit::kWhite);
}

// The list behind the key "?".

class VatLineList : public VatLine {
 public:
  void SetUp() override {
    ASSERT_TRUE(platform().capabilities().modalForms);
    ready();
  }
  void rows(std::string_view sql) {
    driver().answers[std::string(sql)] = {{"DESCRIZIONE", "COD_IVA"},
                                          {{Variant(std::string("ORDINARIA")), Variant(std::int16_t{4})},
                                           {Variant(std::string("ESENTE")), Variant(std::int16_t{2})}}};
  }
};
QVN_ON_EVERY_PLATFORM(VatLineList);

TEST_P(VatLineList, OpensForTheCodeAndTakesTheChosenOne) {
  rows("Select DESCRIZIONE, COD_IVA From TIPI_IVA Where COD_IVA = 4");
  hands().layDown("Lista", {Act::row(0), Act::key("{Enter}")});
  hands().type("?");
  EXPECT_EQ(code.Text(), "2");  // ESENTE stands first
  EXPECT_TRUE(wholeSelected(code));
  EXPECT_EQ(description.Caption(), "ESENTE");
  EXPECT_EQ(percent.Caption(), "0");
  EXPECT_EQ(container().notices, Strings{"COD_IVA"});
  EXPECT_TRUE(code.hasFocus());
}

TEST_P(VatLineList, OfTheCodeZeroHasAllCodes) {
  code.Text("0");
  driver().ran.clear();
  rows("Select DESCRIZIONE, COD_IVA From TIPI_IVA");
  hands().layDown("Lista", {Act::row(1), Act::click("CmdOK")});
  hands().type("?");
  EXPECT_EQ(asked().front(), "Select DESCRIZIONE, COD_IVA From TIPI_IVA");
  EXPECT_EQ(code.Text(), "4");
}

TEST_P(VatLineList, CancelledLeavesTheCode) {
  rows("Select DESCRIZIONE, COD_IVA From TIPI_IVA Where COD_IVA = 4");
  for (const Act& act : {Act::click("CmdAbort"), Act::key("{Escape}"), Act::close()}) {
    hands().layDown("Lista", {act});
    hands().type("?");
    EXPECT_EQ(code.Text(), "4");
  }
  EXPECT_TRUE(container().notices.empty());
}

TEST_P(VatLineList, WithoutARowShowsNothing) {
  const std::int64_t before = beeps();
  hands().type("?");
  EXPECT_EQ(code.Text(), "4");
  EXPECT_EQ(beeps(), before);
  EXPECT_EQ(platform().forms().count(), 0);
}

TEST_P(VatLineList, AFailingQueryReachesTheContainer) {
  driver().failingStatement = 1;
  hands().type("?");
  const ReportedFailure failure = onlyReported();
  EXPECT_EQ(failure.kind, FailureKind::Database);
  EXPECT_EQ(failure.widget, "txtCOD_IVA");
  EXPECT_EQ(failure.event, "KeyPress");
  EXPECT_EQ(code.Text(), "4");
  EXPECT_EQ(platform().forms().count(), 1);  // the wait form stays, and the next list comes over it
  driver().failingStatement = 0;
  rows("Select DESCRIZIONE, COD_IVA From TIPI_IVA Where COD_IVA = 4");
  hands().layDown("Lista", {Act::key("{Enter}")});
  hands().type("?");
  EXPECT_EQ(code.Text(), "2");
  EXPECT_EQ(platform().forms().count(), 0);
}

/// Drops a panel as soon as a form stands over it.
class DropsWhenShown final : public Watcher {
 public:
  explicit DropsWhenShown(std::optional<ctlINS_IVA>& panel) : panel_(panel) {}
  void lostFocus(const toolkit::Widget&) override {}
  void gotFocus(const toolkit::Widget&) override {}
  void beeped() override {}
  void formShown(std::string_view) override { panel_.reset(); }

 private:
  std::optional<ctlINS_IVA>& panel_;
};

TEST_P(VatLineList, ThePanelMayBeDroppedWhileItStands) {
  rows("Select DESCRIZIONE, COD_IVA From TIPI_IVA Where COD_IVA = 4");
  DropsWhenShown watcher(made);
  watch(&watcher);
  hands().layDown("Lista", {Act::key("{Enter}")});
  hands().type("?");
  watch(nullptr);
  EXPECT_FALSE(made.has_value());
  EXPECT_EQ(platform().focused(), nullptr);
  EXPECT_EQ(platform().forms().count(), 0);
  EXPECT_TRUE(container().notices.empty());
  EXPECT_EQ(asked(), Strings{"Select DESCRIZIONE, COD_IVA From TIPI_IVA Where COD_IVA = 4"});
}

}  // namespace
}  // namespace qvn::test
