// Policies with the companies that share them, drawn and written.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

#include "examples/office/database.h"
#include "examples/office/dates.h"
#include "examples/office/generator.h"
#include "examples/office/registers.h"

namespace office {

/// The two families of figures that each policy carries.
enum Family : std::size_t { trf, taf };

/// The premium of a whole policy in one family.
struct Premium {
  Money net;
  Money accessories;
  Money gross;
};

/// The parts PN, ACC, AQ of somebody's commission.
using Parts = std::array<Money, 3>;

constexpr Money sum(const Parts& parts) { return parts[0] + parts[1] + parts[2]; }

/// Commission on one share in one family.
struct Commission {
  Parts office{};
  Parts producer{};
  Parts alternate{};
};

/// One company's share of a policy.
struct Share {
  std::string company;
  std::optional<std::string> producer;
  int producerWithholding = 0;
  std::string alternate;
  int alternateWithholding = 0;
  int lead = 0;
  int quota = 0;
  std::string number;
  std::array<Commission, 2> commission{};
};

struct Policy {
  std::int64_t prot = 0;
  std::string client;
  const Branch* branch = nullptr;
  std::optional<std::string_view> state;
  std::optional<std::string_view> current;
  std::string number;
  std::string interest;
  Date start;
  std::array<Premium, 2> premium{};
  std::vector<Share> shares;

  /// The family that is current.
  Family family() const { return current == "TRF" ? trf : taf; }
  /// The first share that bears the lead flag, in the order of the companies' codes; null if none does.
  const Share* lead() const;
};

/// Draws policies and writes them to POLIZZE, QUOTE_POLIZZE, DATI_POLIZZE_4 and FIDI.
class Policies {
 public:
  Policies(const Database& database, const Registers& registers, Generator& generator);

  /// The policy with the next protocol number.
  Policy add();

  std::int64_t count() const { return policies_.count(); }

 private:
  Policy draw();
  void drawShares(Policy& policy);
  void drawLeads(Policy& policy);
  void addShare(const Policy& policy, const Share& share);
  void addGuarantee(const Policy& policy);

  const Registers& registers_;
  Generator& generator_;
  Insert policies_;
  Insert shares_;
  Insert guarantees_;
  Insert creditLines_;
  std::unordered_set<std::string> clientsWithLine_;
  std::int64_t prot_ = 0;
};

}  // namespace office
