// Forms that a panel opens: what the operator does at them and sees of them, and what the journal tells.
#include <array>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <string_view>

#include "hosts/play/panels.h"
#include "qvn/lookups/QVN_Ricerche.h"
#include "qvn/lookups/query.h"
#include "qvn/lookups/viewer.h"
#include "qvn/shared/Globale.h"
#include "tests/sessions/played_session.h"

namespace qvn::play {
namespace {

constexpr std::string_view kQuotas = "Select the quotas";
constexpr std::string_view kLedgers = "Select DESCRIZIONE, MASTRO From Mastri";

/// A panel with a button for a viewer, one for a list, and one for a list that is opened in vain.
class OpensForms final : public Panel {
 public:
  explicit OpensForms(const PanelSite& site)
      : surface_(Globale::platform().makeSurface(kLayout, site.container, site.name)) {
    surface_->button("CmdCOMPAGNIE").Click = [] {
      lookups::fireMancaDB();
      const auto viewer = lookups::companiesViewer();
      viewer->load();
      viewer->heading(2, "Stimato");
      viewer->connect();
      viewer->fill(kQuotas);
      viewer->show();
    };
    surface_->button("CmdMASTRI").Click = [this] { Scegli(); };
    surface_->button("CmdVuoto").Click = [this] {
      if (Scegli().empty()) throw Failure(FailureKind::InvalidCall, "nothing was chosen");
    };
  }

  std::string Scegli() {
    std::string code;
    std::string description;
    return QVN_Ricerche::ListaMASTRI(code, description);
  }

  toolkit::Surface& surface() const override { return *surface_; }
  std::span<const Member> members() const override { return publicMembers(); }
  static std::span<const Member> publicMembers() {
    static const auto table = MemberTable<OpensForms>().method("Scegli", &OpensForms::Scegli);
    return table.members();
  }
  static PanelClass panelClass() {
    return {.name = "OpensForms",
            .make = [](const PanelSite& site) -> std::unique_ptr<Panel> { return std::make_unique<OpensForms>(site); },
            .members = publicMembers};
  }

 private:
  static constexpr std::array<toolkit::WidgetLayout, 3> kWidgets{{
      {.name = "CmdCOMPAGNIE", .kind = toolkit::WidgetKind::CommandButton, .place = {0, 0, 750, 315}},
      {.name = "CmdMASTRI", .kind = toolkit::WidgetKind::CommandButton, .tabIndex = 1, .place = {750, 0, 750, 315}},
      {.name = "CmdVuoto", .kind = toolkit::WidgetKind::CommandButton, .tabIndex = 2, .place = {1500, 0, 750, 315}},
  }};
  static constexpr toolkit::PanelLayout kLayout{
      .name = "OpensForms", .width = 2250, .height = 315, .widgets = kWidgets};

  std::unique_ptr<toolkit::Surface> surface_;
};

class Forms : public PlayedSession {
 protected:
  Forms() {
    session_.panels().make("t", OpensForms::panelClass());
    driver_.answers[std::string(kQuotas)] = {
        {"COD_COMP", "DESC_COMPAGNIA", "PL", "PA"},
        {{std::string("AOLM"), std::string("Assicurazioni dell'Olmo"), 1234.5, Currency::of(-2)},
         {std::string("ACIT"), Null{}, 0.005, Null{}}}};
    driver_.answers[std::string(kLedgers)] = {
        {"DESCRIZIONE", "MASTRO"},
        {{std::string("Cassa"), std::string("0201")}, {std::string("Banche"), std::string(" 0202 ")}}};
    play(R"({"do":"connect","string":"fake:ufficio"})");
    journal();
  }

  std::string journal() { return play(R"({"do":"journal"})")["journal"].dump(); }
  Answer click(const std::string& widget) { return play(R"({"do":"click","panel":"t","widget":")" + widget + "\"}"); }
  void layDown(const std::string& form, const std::string& acts) {
    EXPECT_THAT(play(R"({"do":"operator","form":")" + form + R"(","acts":)" + acts + "}"), IsOk());
  }
};

constexpr std::string_view kViewerPicture =
    R"({"form":"FrmVIS_COMPAGNIE","caption":"Visualizza Compagnie","columns":[)"
    R"({"caption":"Codice","field":"COD_COMP","format":""},)"
    R"({"caption":"Denominazione","field":"DESC_COMPAGNIA","format":""},)"
    R"({"caption":"Stimato","field":"PL","format":"Currency"},{"caption":"PA","field":"PA","format":"Currency"}],)"
    R"("rows":[["AOLM","Assicurazioni dell'Olmo","€ 1.234,50","-€ 2,00"],["ACIT","","€ 0,01",""]]})";
constexpr std::string_view kListPicture =
    R"({"form":"Lista","caption":"Elenco MASTRI","columns":[{"caption":"DESC.","width":2000},)"
    R"({"caption":"MASTRO","width":1200}],"rows":[["Banche"," 0202 "],["Cassa","0201"]],"selected":0})";

TEST_F(Forms, ShowAViewerAsItFirstStoodAndAtEachLook) {
  layDown("FrmVIS_COMPAGNIE", R"([{"look":true},{"click":"CmdCHIUDI"},{"look":true}])");
  const Answer answer = click("CmdCOMPAGNIE");
  EXPECT_THAT(answer, IsOk());
  EXPECT_EQ(answer["beeps"], 0);
  EXPECT_EQ(answer["failures"].dump(), "[]");
  const std::string picture(kViewerPicture);
  EXPECT_EQ(answer["shown"].dump(), "[" + picture + "," + picture + "]");
}

TEST_F(Forms, TellOfAViewerAndOfItsStatementInTheJournal) {
  click("CmdCOMPAGNIE");
  EXPECT_EQ(journal(), R"([{"got":"t.CmdCOMPAGNIE"},{"load":"FrmVIS_COMPAGNIE"},)"
                       R"({"sql":"Select the quotas","viewer":"FrmVIS_COMPAGNIE"},{"modal":"FrmVIS_COMPAGNIE"},)"
                       R"({"unload":"FrmVIS_COMPAGNIE"}])");
  EXPECT_EQ(driver_.openings.size(), 2U) << "the viewer's own connection";
}

TEST_F(Forms, StayLoadedWhereAViewerCannotBeFilled) {
  driver_.failingStatement = 1;
  const Answer answer = click("CmdCOMPAGNIE");
  EXPECT_EQ(answer["failures"][0]["failure"], "database");
  EXPECT_EQ(answer["shown"].dump(), "[]");
  EXPECT_EQ(play(R"({"do":"forms"})")["forms"].dump(), R"(["FrmVIS_COMPAGNIE"])");
  EXPECT_EQ(journal(), R"([{"got":"t.CmdCOMPAGNIE"},{"load":"FrmVIS_COMPAGNIE"},)"
                       R"({"sql":"Select the quotas","viewer":"FrmVIS_COMPAGNIE"}])");
  EXPECT_THAT(play(R"({"do":"unload"})"), IsOk());
  EXPECT_EQ(journal(), R"([{"unload":"FrmVIS_COMPAGNIE"}])");
}

TEST_F(Forms, ShowAListInTheAnswerOfWhateverOpenedIt) {
  const std::string shown = std::string("[").append(kListPicture).append("]");
  EXPECT_EQ(click("CmdMASTRI")["shown"].dump(), shown);
  layDown("Lista", R"([{"key":"{Enter}"}])");
  const Answer called = play(R"({"do":"call","panel":"t","name":"Scegli"})");
  EXPECT_EQ(called["value"], "0202");
  EXPECT_EQ(called["shown"].dump(), shown);
  EXPECT_FALSE(called.contains("failures"));
  EXPECT_FALSE(play(R"({"do":"get","panel":"t","name":"Scegli"})").contains("shown"));
}

TEST_F(Forms, TellWhatCouldNotBeDoneAheadOfWhatCameOfIt) {
  layDown("Lista", R"([{"row":2},{"click":"CmdOK"}])");
  const Answer answer = click("CmdVuoto");
  EXPECT_THAT(answer, IsOk());
  EXPECT_EQ(answer["failures"].dump(),
            R"([{"panel":"Lista","widget":null,"event":"operator","failure":"subscript out of range",)"
            R"("message":"Lista.ListView1 has 2 rows and none at 2","act":{"row":2}},)"
            R"({"panel":"t","widget":"CmdVuoto","event":"Click","failure":"invalid call",)"
            R"("message":"t.CmdVuoto: nothing was chosen"}])");
}

TEST_F(Forms, NameFormAndWidgetWhereAnActNamesOne) {
  layDown("Lista", R"([{"click":"CmdNO"}])");
  EXPECT_EQ(click("CmdMASTRI")["failures"].dump(),
            R"([{"panel":"Lista","widget":"CmdNO","event":"operator","failure":"no such member",)"
            R"("message":"Lista: there is no widget \"CmdNO\"","act":{"click":"CmdNO"}}])");
  layDown("FrmVIS_COMPAGNIE", R"([{"double":0}])");
  const Answer atViewer = click("CmdCOMPAGNIE");
  EXPECT_EQ(atViewer["failures"][0]["message"], "FrmVIS_COMPAGNIE: the form has no list view");
  EXPECT_EQ(atViewer["failures"][0]["failure"], "invalid call");
}

TEST_F(Forms, TakeAllActsOrNone) {
  EXPECT_THAT(play(R"({"do":"operator","form":"Lista","acts":[{"key":"{Enter}"},{"wait":1}]})"), IsBadRequest());
  layDown("Lista", R"([{"double":1}])");
  EXPECT_EQ(play(R"({"do":"lookup","name":"ListaMASTRI","args":["",""]})")["value"], "0201");
}

TEST(WhereAMessageArose, IsToldOnceAndInFront) {
  test::FakeDriver driver;
  const std::unique_ptr<Toolkit> toolkit = makeToolkit("memory");
  const std::array<toolkit::Driver*, 1> drivers{&driver};
  Session session(*toolkit, drivers);
  const toolkit::Surface& panel = session.panels().make("t", OpensForms::panelClass()).surface();
  const toolkit::Widget& widget = panel.widget("CmdVuoto");
  EXPECT_EQ(placed(panel, widget, "it is so"), "t.CmdVuoto: it is so");
  EXPECT_EQ(placed(panel, widget, "t.CmdVuoto: it is so"), "t.CmdVuoto: it is so");
  EXPECT_EQ(placed(panel, widget, "t.CmdVuoto is so"), "t.CmdVuoto is so");
  EXPECT_EQ(placed(panel, widget, "CmdVuoto: it is so"), "t.CmdVuoto: it is so");
  EXPECT_EQ(placed(panel, widget, "t.CmdVuoto2: it is so"), "t.CmdVuoto: t.CmdVuoto2: it is so");
  EXPECT_EQ(placed(panel, widget, "the text \"t.CmdVuoto\" is so"), "t.CmdVuoto: the text \"t.CmdVuoto\" is so");
}

}  // namespace
}  // namespace qvn::play
