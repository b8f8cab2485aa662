// What a credit line shows as exposure, for every client with every company of the sample, however amounts are stored.
#include <gtest/gtest.h>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "platforms/memory/platform.h"
#include "platforms/sqlite/driver.h"
#include "qvn/panels/documents/ctlFIDO.h"
#include "qvn/shared/Globale.h"
#include "tests/office/office.h"
#include "tests/recording_container.h"

namespace office_test {
namespace {

/// The library on widgets in memory, with SQLite's driver.
class Library {
 public:
  Library() {
    platform_.drivers().add(qvn::sqlite::driver());
    qvn::Globale::install(platform_);
  }
  ~Library() { qvn::Globale::uninstall(); }
  Library(const Library&) = delete;
  Library& operator=(const Library&) = delete;

 private:
  qvn::memory::Platform platform_;
};

using ClientAndCompany = std::pair<std::string, std::string>;

std::vector<std::string> firstColumn(const Database& database, std::string_view sql) {
  std::vector<std::string> texts;
  for (const Row& row : database.rows(sql)) texts.push_back(row.at(0).value());
  return texts;
}

/// The sums guaranteed by policies in force times the company's thousandths, in hundred-thousandths, by whole numbers
/// alone: amounts are whole cents.
std::map<ClientAndCompany, long long> exposures(const Database& database) {
  std::map<ClientAndCompany, long long> found;
  for (const Row& row :
       database.rows("SELECT COD_CLIENTE, COD_COMP, STATO, CAST(round(100 * CAUZIONE) AS INTEGER), QUOTA "
                     "FROM DATI_POLIZZE_4 JOIN QUOTE_POLIZZE USING (PROT) JOIN POLIZZE USING (PROT)")) {
    if (!row.at(2).value_or("").empty()) continue;
    found[{row.at(0).value(), row.at(1).value()}] += std::stoll(row.at(3).value()) * std::stoll(row.at(4).value());
  }
  return found;
}

/// As the office writes it, rounded to whole cents, halves away from zero.
std::string euro(long long hundredThousandths) {
  const long long cents = (hundredThousandths + 500) / 1000;
  const std::string rest = std::to_string(100 + cents % 100).substr(1);
  std::string whole = std::to_string(cents / 100);
  for (auto place = static_cast<std::ptrdiff_t>(whole.size()) - 3; place > 0; place -= 3) {
    whole.insert(static_cast<std::size_t>(place), 1, '.');
  }
  return std::string("€ ").append(whole).append(",").append(rest);
}

TEST(OfficeCreditLine, showsTheExactExposureOfEveryClientWithEveryCompanyInAllThreeStorages) {
  const std::vector<std::string> clients = firstColumn(sample(), "SELECT COD_CLIENTE FROM CLIENTI");
  const auto names = sample().rows("SELECT COD_COMP, DESC_COMPAGNIA FROM COMPAGNIE");
  const std::map<ClientAndCompany, long long> exact = exposures(sample());
  ASSERT_GT(exact.size(), 100U);
  ASSERT_EQ(clients.size() * names.size(), 80'000U);
  const Folder folder;
  for (const char* storage : storages) {
    SCOPED_TRACE(storage);
    const std::string file = folder.file(std::string(storage).append(".db"));
    ASSERT_EQ(campione("'" + file + "' --storage " + storage).status, 0);
    const Library library;
    qvn::Globale::Eventi()->ImpostaDB("sqlite:" + file);
    qvn::test::RecordingContainer container;
    qvn::ctlFIDO panel(qvn::PanelSite{container, "fido"});
    const qvn::toolkit::Label& name = panel.surface().label("DESC_COMPAGNIA");
    const qvn::toolkit::Label& exposure = panel.surface().label("ESPOSIZIONE");
    std::size_t shown = 0;
    for (const std::string& client : clients) {
      panel.COD_CLIENTE(client);
      for (const Row& company : names) {
        panel.COD_COMP(company.at(0).value());
        const auto sum = exact.find({client, company.at(0).value()});
        ASSERT_EQ(exposure.Caption(), sum == exact.end() ? "" : euro(sum->second))
            << client << " with " << company.at(0).value();
        ASSERT_EQ(name.Caption(), company.at(1).value());
        if (!exposure.Caption().empty()) ++shown;
      }
    }
    EXPECT_EQ(shown, exact.size());
  }
}

}  // namespace
}  // namespace office_test
