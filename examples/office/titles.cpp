#include "examples/office/titles.h"

#include <string>

#include "examples/office/names.h"

namespace office {

namespace {

constexpr Chance<int> titlesPerPolicy[] = {{0, 30}, {1, 45}, {2, 18}, {3, 7}};
constexpr Chance<char> states[] = {{'S', 35}, {'C', 15}, {'I', 40}, {'A', 6}, {'N', 4}};
constexpr Chance<std::string_view> laterDocuments[] = {{"Q", 70}, {"A", 25}, {"V", 5}};

// What an operator has chosen and the office not yet carried out; only what a title in that state may take.
std::string_view drawAction(char state, Generator& generator) {
  if (!generator.happens(5)) return "";
  switch (state) {
    case 'S':
      return generator.pick(std::array<std::string_view, 3>{"C", "I", "A"});
    case 'C':
      return generator.pick(std::array<std::string_view, 2>{"I", "A"});
    case 'A':
      return "R";
    default:
      return "";
  }
}

}  // namespace

Titles::Titles(const Database& database, Generator& generator)
    : generator_(generator),
      rows_(database, "SOSPESI",
            {"PROT",    "PROG",     "COD_COMP", "NPROT",    "COD_COMP_DEL", "COD_PROD", "COD_PROD_ALT",
             "PL",      "PA",       "PP",       "RA",       "PP_ALT",       "RA_ALT",   "STATO",
             "N_STATO", "TIPO_DOC", "INT_ASS",  "DATA_DOC", "DATA_C",       "DATA_EC"}) {}

std::vector<Title> Titles::add(const Policy& policy) {
  std::vector<Title> titles;
  const int count = generator_.draw(titlesPerPolicy);
  for (int number = 1; number <= count; ++number) titles.push_back(addTitle(policy, number));
  return titles;
}

Title Titles::addTitle(const Policy& policy, int number) {
  Title title;
  title.state = generator_.draw(states);
  title.document = number == 1 ? "P" : generator_.draw(laterDocuments);
  title.issued = policy.start + std::chrono::days(180 * (number - 1) + generator_.between(0, 20));
  const std::string_view action = drawAction(title.state, generator_);
  const bool settled = title.state == 'I' || title.state == 'C';
  const std::optional<std::string> settledOn =
      settled ? std::optional(iso(title.issued + std::chrono::days(generator_.between(0, 90)))) : std::nullopt;
  const std::optional<std::string> stated = title.state == 'I' && generator_.happens(80)
                                                ? std::optional(iso(title.issued + std::chrono::days(120)))
                                                : std::nullopt;
  // An endorsement may give premium back, and the commission on it.
  const bool refund = title.document == "A" && generator_.happens(40);
  const auto due = [refund](Money amount) { return refund ? -amount : amount; };

  const Share* const lead = policy.lead();
  const Premium& premium = policy.premium[policy.family()];
  for (const Share& share : policy.shares) {
    const Commission& commission = share.commission[policy.family()];
    const Money gross = due(portion(premium.gross, share.quota, 1000));
    const Money active = due(sum(commission.office));
    const Money passive = due(sum(commission.producer));
    const Money passiveAlternate = due(sum(commission.alternate));
    rows_.add(policy.prot, number, share.company, policy.prot, lead != nullptr ? lead->company : std::string(),
              share.producer, share.alternate, gross, active, passive,
              portion(passive, share.producerWithholding, 10000), passiveAlternate,
              portion(passiveAlternate, share.alternateWithholding, 10000), std::string_view(&title.state, 1), action,
              title.document, policy.interest, iso(title.issued), settledOn, stated);
    title.premium = title.premium + gross;
    title.commission = title.commission + active;
  }
  ++count_;
  return title;
}

}  // namespace office
