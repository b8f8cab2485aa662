#include "examples/office/claims.h"

#include <string>

#include "examples/office/names.h"

namespace office {

namespace {

constexpr Chance<int> claimsPerPolicy[] = {{0, 90}, {1, 8}, {2, 2}};

std::string yearOf(Date when) { return iso(when).substr(0, 4); }

}  // namespace

Claims::Claims(const Database& database, Generator& generator)
    : generator_(generator),
      claims_(database, "SINISTRI", {"N_SINISTRO", "D_STIMATO", "D_LIQUIDATO", "PROT", "DATA_SINISTRO", "CONTROPARTE"}),
      shares_(database, "QUOTE_SINISTRI",
              {"N_SINISTRO", "COD_COMP", "DELEGATARIA", "QUOTA", "N_POLIZZA", "N_SINISTRO_COMP"}) {}

void Claims::add(const Policy& policy) {
  const int count = generator_.draw(claimsPerPolicy);
  for (int i = 0; i < count; ++i) addClaim(policy);
}

void Claims::addClaim(const Policy& policy) {
  const Date happened = policy.start + std::chrono::days(generator_.between(1, 360));
  const std::string running = padded(claims_.count() + 1, 8);
  // The longer form takes the whole length that a claim's number may have.
  const std::string number = generator_.happens(20) ? "SX-" + yearOf(happened) + "-" + running + "-" + "IT1"
                                                    : yearOf(happened) + "/" + running;
  const Money estimated{std::int64_t{generator_.between(1, 600)} * 2500 +
                        (generator_.happens(30) ? generator_.between(1, 99) : 0)};
  const Money paid = generator_.happens(40) ? Money{} : portion(estimated, generator_.between(10, 130), 100);
  const std::optional<std::string> date = generator_.happens(97) ? std::optional(iso(happened)) : std::nullopt;
  const std::string otherParty = generator_.happens(50) ? person(generator_) : std::string();
  claims_.add(number, estimated, paid, policy.prot, date, otherParty);
  for (const Share& share : policy.shares) {
    shares_.add(number, share.company, share.lead, share.quota, share.number, share.company + "-" + running);
  }
}

}  // namespace office
