// The two search panels on every policy and every claim of the sample office, in each way of storing amounts. What the
// database reckons stands beside the same figures worked out here from whole cents, in integers.
#include <algorithm>
#include <array>
#include <gtest/gtest.h>
#include <map>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "platforms/sqlite/driver.h"
#include "qvn/panels/documents/ctlRICERCA.h"
#include "qvn/panels/documents/ctlRIC_SINISTRI.h"
#include "tests/failure_matchers.h"
#include "tests/loaded_forms.h"
#include "tests/office/office.h"
#include "tests/on_platform.h"

namespace qvn::test {
namespace {

using Strings = std::vector<std::string>;
using Rows = std::vector<Strings>;
using Cents = long long;

/// The sample's file in one of the storages, made when first asked for.
const std::string& sampleFile(const std::string& storage) {
  static const office_test::Folder folder;
  static std::map<std::string, std::string> files;
  if (const auto made = files.find(storage); made != files.end()) return made->second;
  const std::string file = folder.file(storage + ".db");
  const auto run = office_test::campione("'" + file + "' --storage " + storage);
  if (run.status != 0) throw std::runtime_error("no sample: " + run.errors);
  return files.emplace(storage, file).first->second;
}

/// A company's share of a policy. Figures by calculation: 0 is TRF, 1 is TAF.
struct Share {
  std::string company;
  std::optional<std::string> producer;
  std::string alternate;
  bool lead;
  long long quota;
  std::array<Cents, 2> office;  ///< the sum of the three parts, as those below
  std::array<Cents, 2> ofProducer;
  std::array<Cents, 2> ofAlternate;
};

struct Policy {
  std::string PROT;
  std::optional<std::string> state;
  std::string branch;
  std::size_t current;
  std::array<Cents, 2> premium;
  std::vector<Share> shares;  ///< by company
};

struct ClaimShare {
  std::string company;
  bool lead;
  long long quota;
};

struct Claim {
  std::string number;
  Cents estimated;
  Cents paid;
  std::vector<ClaimShare> shares;  ///< by company
};

struct Producer {
  std::string name;
  long long tenths;  ///< the withholding tax in tenths of a percent
};

struct Sample {
  std::vector<Policy> policies;
  std::vector<Claim> claims;
  std::map<std::string, std::string> companies;
  std::map<std::string, Producer> producers;
  std::map<std::string, std::string> kinds;  ///< of branches
};

std::string cents(const std::string& column) { return "CAST(round(100 * " + column + ") AS INTEGER)"; }

/// The three parts of a commission, summed in cents, by their common ending.
std::string parts(const std::string& ending) {
  return cents("PN_" + ending) + "+" + cents("ACC_" + ending) + "+" + cents("AQ_" + ending);
}

Sample readSample() {
  const office_test::Database database(sampleFile("numeric"));
  const auto number = [](const std::optional<std::string>& text) { return std::stoll(text.value()); };
  Sample sample;
  for (const auto& row : database.rows("SELECT COD_COMP, DESC_COMPAGNIA FROM COMPAGNIE"))
    sample.companies[row[0].value()] = row[1].value();
  for (const auto& row : database.rows(
           "SELECT COD_PROD, DENOMINAZIONE, CAST(round(10 * R_ACC) AS INTEGER), 10 * R_ACC FROM PRODUTTORI")) {
    sample.producers[row[0].value()] = {row[1].value(), number(row[2])};
    EXPECT_EQ(static_cast<double>(number(row[2])), std::stod(row[3].value())) << "a tax that is no whole tenth";
  }
  for (const auto& row : database.rows("SELECT COD_RAMO, TIPO_SK FROM RAMI"))
    sample.kinds[row[0].value()] = row[1].value();

  std::map<std::string, std::vector<Share>> shares;
  for (const auto& row :
       database.rows("SELECT PROT, COD_COMP, COD_PROD, COD_PROD_ALT, DELEGATARIA, QUOTA, " + parts("UFF_TRF") + ", " +
                     parts("UFF_TAF") + ", " + parts("PROD_TRF") + ", " + parts("PROD_TAF") + ", " +
                     parts("PROD_ALT_TRF") + ", " + parts("PROD_ALT_TAF") + " FROM QUOTE_POLIZZE ORDER BY COD_COMP")) {
    shares[row[0].value()].push_back({.company = row[1].value(),
                                      .producer = row[2],
                                      .alternate = row[3].value(),
                                      .lead = row[4].value() != "0",
                                      .quota = number(row[5]),
                                      .office = {number(row[6]), number(row[7])},
                                      .ofProducer = {number(row[8]), number(row[9])},
                                      .ofAlternate = {number(row[10]), number(row[11])}});
  }
  for (const auto& row : database.rows("SELECT PROT, STATO, COD_RAMO, U_CALCOLO, " + cents("PL_TRF") + ", " +
                                       cents("PL_TAF") + " FROM POLIZZE ORDER BY PROT")) {
    sample.policies.push_back({.PROT = row[0].value(),
                               .state = row[1],
                               .branch = row[2].value(),
                               .current = row[3] == "TRF" ? 0U : 1U,
                               .premium = {number(row[4]), number(row[5])},
                               .shares = shares[row[0].value()]});
  }

  std::map<std::string, std::vector<ClaimShare>> ofClaims;
  for (const auto& row :
       database.rows("SELECT N_SINISTRO, COD_COMP, DELEGATARIA, QUOTA FROM QUOTE_SINISTRI ORDER BY COD_COMP"))
    ofClaims[row[0].value()].push_back({row[1].value(), row[2].value() != "0", number(row[3])});
  for (const auto& row : database.rows("SELECT N_SINISTRO, " + cents("D_STIMATO") + ", " + cents("D_LIQUIDATO") +
                                       " FROM SINISTRI ORDER BY N_SINISTRO"))
    sample.claims.push_back({row[0].value(), number(row[1]), number(row[2]), ofClaims[row[0].value()]});
  return sample;
}

const Sample& sample() {
  static const Sample read = readSample();
  return read;
}

/// An amount in hundred-thousandths, none of them negative, as the office writes it: to the nearest cent, halves up.
std::string euros(long long hundredThousandths) {
  const long long rounded = (hundredThousandths + 500) / 1000;
  std::string whole = std::to_string(rounded / 100);
  for (std::size_t at = whole.size(); at > 3; at -= 3) whole.insert(at - 3, 1, '.');
  const std::string broken = std::to_string(100 + rounded % 100).substr(1);
  return std::string("€ ").append(whole).append(",").append(broken);
}

Rows companiesOf(const Policy& policy) {
  Rows rows;
  for (const Share& share : policy.shares) {
    const auto company = sample().companies.find(share.company);
    if (company == sample().companies.end()) continue;
    rows.push_back({share.company, company->second, euros(policy.premium[policy.current] * share.quota),
                    euros(share.office[policy.current] * 1000)});
  }
  return rows;
}

/// The rows of the producers that the register holds.
void addProducer(Rows& rows, const std::optional<std::string>& code, Cents commission) {
  const auto producer = code ? sample().producers.find(*code) : sample().producers.end();
  if (producer == sample().producers.end()) return;
  rows.push_back({*code, producer->second.name, euros(commission * 1000), euros(commission * producer->second.tenths)});
}

Rows producersOf(const Policy& policy) {
  Rows rows;
  for (const Share& share : policy.shares) addProducer(rows, share.producer, share.ofProducer[policy.current]);
  std::ranges::sort(rows);
  return rows;
}

Rows alternatesOf(const Policy& policy) {
  Rows rows;
  for (const Share& share : policy.shares) addProducer(rows, share.alternate, share.ofAlternate[policy.current]);
  std::ranges::sort(rows);
  return rows;
}

Rows sharesOf(const Claim& claim) {
  Rows rows;
  for (const ClaimShare& share : claim.shares) {
    const auto company = sample().companies.find(share.company);
    if (company == sample().companies.end()) continue;
    rows.push_back(
        {share.company, company->second, euros(claim.estimated * share.quota), euros(claim.paid * share.quota)});
  }
  return rows;
}

class SearchesOnSample : public OnPlatform {
 public:
  SearchesOnSample() {
    platform().drivers().add(sqlite::driver());
    hands().takePictures(true);
  }

  void openOffice(const std::string& storage) {
    Globale::unload();
    Globale::Eventi()->ImpostaDB("sqlite:" + sampleFile(storage));
  }
  /// The rows that a button brings; those of one code, whose order the database is free in, by what they show.
  Rows rowsBehind(Panel& panel, std::string_view button) {
    hands().click(panel.surface().button(button));
    const auto pictures = hands().shown();
    EXPECT_EQ(pictures.size(), 1U);
    Rows rows;
    for (std::size_t row = 0; !pictures.empty() && row < pictures[0].rowCount(); ++row) {
      Strings& cells = rows.emplace_back();
      for (std::size_t column = 0; column < 4; ++column) cells.push_back(pictures[0].cell(row, column));
    }
    EXPECT_TRUE(std::ranges::is_sorted(rows, {}, [](const Strings& row) { return row[0]; }));
    std::ranges::sort(rows);
    return rows;
  }
  static Strings captions(const Panel& panel, const Strings& labels) {
    Strings texts;
    texts.reserve(labels.size());
    for (const std::string& label : labels) texts.push_back(panel.surface().label(label).Caption());
    return texts;
  }
  static Strings company(const std::string& code) { return {code, code.empty() ? "" : sample().companies.at(code)}; }
};
QVN_ON_EVERY_PLATFORM(SearchesOnSample);

// Each storage has its turn at each table of a third of the policies; together they show every table of every policy.
TEST_P(SearchesOnSample, EveryPolicyDividesAsItsCentsDo) {
  struct Table {
    std::string_view button;
    Rows (*exact)(const Policy& policy);
  };
  constexpr std::array<Table, 3> tables{
      {{"CmdCOMPAGNIE", companiesOf}, {"CmdPRODUTTORI", producersOf}, {"CmdPRODUTTORI_ALT", alternatesOf}}};
  ASSERT_GT(sample().policies.size(), 1000U);
  std::array<std::size_t, 3> rows{};
  std::size_t turn = 0;
  for (const char* storage : office_test::storages) {
    openOffice(storage);
    ctlRICERCA panel(PanelSite{container(), "polizza"});
    panel.surface().label("LblPROT").Change = {};  // the leads have a test of their own
    std::size_t table = turn++;
    for (const Policy& policy : sample().policies) {
      table = (table + 1) % tables.size();
      SCOPED_TRACE(std::string(storage) + ": " + policy.PROT);
      panel.PROT(policy.PROT);
      const Rows seen = rowsBehind(panel, tables[table].button);
      ASSERT_EQ(seen, tables[table].exact(policy));
      rows[table] += seen.size();
    }
  }
  EXPECT_GT(rows[0], sample().policies.size());
  EXPECT_GT(rows[1], sample().policies.size());
  EXPECT_GT(rows[2], 1000U);
  EXPECT_TRUE(container().failures.empty());
}

TEST_P(SearchesOnSample, EveryClaimDividesAsItsCentsDo) {
  ASSERT_GT(sample().claims.size(), 100U);
  for (const char* storage : office_test::storages) {
    openOffice(storage);
    ctlRIC_SINISTRI panel(PanelSite{container(), "sinistro"});
    for (const Claim& claim : sample().claims) {
      SCOPED_TRACE(std::string(storage) + ": " + claim.number);
      panel.PROT(claim.number);
      const auto lead = std::ranges::find_if(claim.shares, &ClaimShare::lead);
      EXPECT_EQ(captions(panel, {"LblCOD_COMP_DEL", "LblDESC_COMP_DEL"}),
                company(lead == claim.shares.end() ? "" : lead->company));
      ASSERT_EQ(rowsBehind(panel, "CmdCOMPAGNIE"), sharesOf(claim));
    }
  }
  EXPECT_TRUE(container().failures.empty());
}

TEST_P(SearchesOnSample, EveryPolicyHasItsLeadsAndItsState) {
  openOffice("numeric");
  ctlRICERCA panel(PanelSite{container(), "polizza"});
  std::map<std::string, int> states;
  int withoutProducer = 0;
  for (const Policy& policy : sample().policies) {
    SCOPED_TRACE(policy.PROT);
    const auto lead = std::ranges::find_if(policy.shares, &Share::lead);
    const bool led = lead != policy.shares.end();
    if (led && !lead->producer) {
      ++withoutProducer;
      EXPECT_FAILURE(panel.PROT(policy.PROT), FailureKind::InvalidUseOfNull, "COD_PROD");
    } else {
      panel.PROT(policy.PROT);
      const std::string code = led ? *lead->producer : "";
      const auto known = sample().producers.find(code);
      EXPECT_EQ(captions(panel, {"LblCOD_PROD_DEL", "LblDESC_PROD_DEL"}),
                (Strings{code, known == sample().producers.end() ? "" : known->second.name}));
    }
    EXPECT_EQ(captions(panel, {"LblCOD_COMP_DEL", "LblDESC_COMP_DEL"}), company(led ? lead->company : ""));

    panel.COD_GR(policy.branch);
    panel.STATO(policy.state ? Variant(*policy.state) : Variant(Null{}));
    const bool guarantee = sample().kinds.at(policy.branch) == "4";
    const std::string expected = policy.state == "A"   ? "ANNULLATA"
                                 : policy.state != "D" ? ""
                                 : guarantee           ? "SVINCOLATA"
                                                       : "DISDETTA";
    EXPECT_EQ(captions(panel, {"LblSTATO"}), Strings{expected});
    ++states[expected];
  }
  EXPECT_EQ(states.size(), 4U);
  EXPECT_GT(withoutProducer, 0);
}

TEST_P(SearchesOnSample, APolicyThatIsNotThereOpensNoForm) {
  openOffice("numeric");
  ctlRICERCA panel(PanelSite{container(), "polizza"});
  for (const std::string button : {"CmdCOMPAGNIE", "CmdPRODUTTORI", "CmdPRODUTTORI_ALT"}) {
    hands().click(panel.surface().button(button));
    EXPECT_TRUE(namesOfLoadedForms(platform()).empty());
  }
  panel.PROT(std::int32_t{2'000'000'000});
  hands().click(panel.surface().button("CmdCOMPAGNIE"));
  EXPECT_TRUE(namesOfLoadedForms(platform()).empty());
  ASSERT_EQ(container().failures.size(), 4U);
  for (const ReportedFailure& failure : container().failures) EXPECT_EQ(failure.kind, FailureKind::Database);
}

TEST_P(SearchesOnSample, AQuoteInAClaimBreaksTheViewerAndNotTheLookUp) {
  openOffice("numeric");
  ctlRIC_SINISTRI panel(PanelSite{container(), "sinistro"});
  const auto claim = std::ranges::find_if(
      sample().claims, [](const Claim& each) { return std::ranges::any_of(each.shares, &ClaimShare::lead); });
  ASSERT_NE(claim, sample().claims.end());
  panel.PROT(std::string(claim->number).insert(4, 1, '\''));
  EXPECT_EQ(captions(panel, {"LblCOD_COMP_DEL", "LblDESC_COMP_DEL"}),
            company(std::ranges::find_if(claim->shares, &ClaimShare::lead)->company));
  hands().click(panel.surface().button("CmdCOMPAGNIE"));
  ASSERT_EQ(container().failures.size(), 1U);
  EXPECT_EQ(container().failures[0].kind, FailureKind::Database);
  EXPECT_EQ(namesOfLoadedForms(platform()), Strings{"FrmVIS_COMPAGNIE"});
  EXPECT_TRUE(hands().shown().empty());
}

}  // namespace
}  // namespace qvn::test
