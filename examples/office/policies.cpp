#include "examples/office/policies.h"

#include <algorithm>

#include "examples/office/names.h"

namespace office {

namespace {

constexpr Chance<std::optional<std::string_view>> states[] = {
    {std::nullopt, 70}, {"", 15}, {"A", 7}, {"D", 6}, {" ", 2}};
constexpr Chance<std::optional<std::string_view>> currentFamilies[] = {
    {"TRF", 45}, {"TAF", 45}, {"", 5}, {std::nullopt, 5}};
constexpr Chance<std::string_view> instalments[] = {{"A", 60}, {"S", 25}, {"Q", 5}, {"T", 5}, {"M", 5}};
constexpr Chance<std::size_t> sharers[] = {{1, 60}, {2, 22}, {3, 10}, {4, 5}, {6, 3}};
constexpr Chance<int> leads[] = {{1, 94}, {0, 3}, {2, 3}};
/// Any value but zero marks a lead.
constexpr Chance<int> leadFlags[] = {{-1, 70}, {1, 30}};

/// On the books, and no longer in the producers' register.
constexpr std::string_view strickenProducer = "CESSATO9";

// Thousandths that add up to 1000, none of them zero, the first the largest.
std::vector<int> drawQuotas(std::size_t count, Generator& generator) {
  if (generator.happens(30)) {  // even shares, the first taking what is left over
    std::vector<int> quotas(count, 1000 / static_cast<int>(count));
    quotas[0] += 1000 % static_cast<int>(count);
    return quotas;
  }
  std::vector<int> quotas;
  int left = 1000;
  for (std::size_t others = count - 1; others > 0; --others) {
    const int most = left / static_cast<int>(others + 1);
    quotas.push_back(generator.happens(50) ? std::max(most / 10 * 10, 1) : generator.between(1, most));
    left -= quotas.back();
  }
  quotas.push_back(left);
  std::sort(quotas.rbegin(), quotas.rend());
  return quotas;
}

// Whole euros half of the time, so that both whole and broken amounts are stored.
Money drawAmount(int lowEuros, int highEuros, Generator& generator) {
  const int whole = generator.between(lowEuros, highEuros);
  return euros(whole) + Money{generator.happens(50) ? 0 : generator.between(1, 99)};
}

Money roundedUp(Money amount) { return euros((amount.cents + 99) / 100); }

Premium drawPremium(Money net, Generator& generator) {
  const Money accessories = portion(net, generator.between(0, 15), 100);
  const Money tax = portion(net + accessories, generator.between(2, 9) * std::int64_t{25}, 1000);
  const Money gross = net + accessories + tax;
  return {net, accessories, generator.happens(30) ? roundedUp(gross) : gross};
}

/// The rates, in ten-thousandths, at which a share's commission is reckoned.
struct Rates {
  int net, accessories, extra;  ///< of the premium, to the office
  int producer, alternate;      ///< of the office's, passed on; 0 if there is nobody to pass it on to
};

Rates drawRates(Generator& generator) {
  if (generator.happens(20)) return {1000, 0, 0, 0, 0};  // the plain tenth of the premium
  return {generator.between(20, 80) * 25, generator.between(0, 80) * 25, generator.between(0, 20) * 25, 0, 0};
}

Commission commissionOf(const Premium& premium, int quota, const Rates& rates) {
  const Money net = portion(premium.net, quota, 1000);
  const Money accessories = portion(premium.accessories, quota, 1000);
  Commission commission;
  commission.office = {portion(net, rates.net, 10000), portion(accessories, rates.accessories, 10000),
                       portion(net, rates.extra, 10000)};
  for (std::size_t part = 0; part < commission.office.size(); ++part) {
    commission.producer[part] = portion(commission.office[part], rates.producer, 10000);
    commission.alternate[part] = portion(commission.office[part], rates.alternate, 10000);
  }
  return commission;
}

}  // namespace

const Share* Policy::lead() const {
  const Share* first = nullptr;
  for (const Share& share : shares) {
    if (share.lead != 0 && (first == nullptr || share.company < first->company)) first = &share;
  }
  return first;
}

Policies::Policies(const Database& database, const Registers& registers, Generator& generator)
    : registers_(registers),
      generator_(generator),
      policies_(database, "POLIZZE",
                {"PROT", "COD_CLIENTE", "STATO", "U_CALCOLO", "PN_TRF", "ACC_TRF", "PL_TRF", "PN_TAF", "ACC_TAF",
                 "PL_TAF", "N_POLIZZA", "COD_RAMO", "COD_SRAMO", "COD_GRUPPO", "INT_ASS", "DATA_RATA", "TIPO_RATA"}),
      shares_(database, "QUOTE_POLIZZE",
              {"PROT",         "COD_COMP",        "COD_PROD",         "COD_PROD_ALT",     "DELEGATARIA",
               "QUOTA",        "PN_UFF_TRF",      "ACC_UFF_TRF",      "AQ_UFF_TRF",       "pn_prod_TRF",
               "acc_prod_TRF", "aq_prod_TRF",     "pn_prod_ALT_TRF",  "acc_prod_ALT_TRF", "aq_prod_ALT_TRF",
               "PN_UFF_TAF",   "ACC_UFF_TAF",     "AQ_UFF_TAF",       "pn_prod_TAF",      "acc_prod_TAF",
               "aq_prod_TAF",  "pn_prod_ALT_TAF", "acc_prod_ALT_TAF", "aq_prod_ALT_TAF",  "N_POLIZZA",
               "D_RIMESSA"}),
      guarantees_(database, "DATI_POLIZZE_4", {"PROT", "CAUZIONE"}),
      creditLines_(database, "FIDI", {"COD_CLIENTE", "COD_COMP", "DATA_FIDO", "FIDO"}) {}

Policy Policies::draw() {
  Policy policy;
  policy.prot = ++prot_;
  policy.client = generator_.pick(registers_.clients);
  policy.branch = &generator_.pick(registers_.branches);
  policy.state = generator_.draw(states);
  policy.current = generator_.draw(currentFamilies);
  policy.interest = interest(generator_);
  policy.start = date(2010, 1, 1) + std::chrono::days(generator_.between(0, 5400));
  const Money net =
      generator_.happens(20) ? euros(generator_.between(1, 40) * std::int64_t{100}) : drawAmount(80, 4000, generator_);
  policy.premium[trf] = drawPremium(net, generator_);
  policy.premium[taf] = drawPremium(portion(net, generator_.between(90, 110), 100), generator_);
  drawShares(policy);
  drawLeads(policy);
  const Share* const lead = policy.lead();
  policy.number = lead != nullptr ? lead->number : policy.shares.front().number;
  return policy;
}

void Policies::drawShares(Policy& policy) {
  const std::vector<int> quotas = drawQuotas(generator_.draw(sharers), generator_);
  const std::size_t companies = registers_.companies.size();
  const std::size_t first = generator_.below(companies);
  for (std::size_t i = 0; i < quotas.size(); ++i) {
    Share& share = policy.shares.emplace_back();
    share.company = registers_.companies[(first + i * 7) % companies];
    share.quota = quotas[i];
    share.number = padded(generator_.between(1, 99), 2) + "/" + padded(policy.prot, 8);
    Rates rates = drawRates(generator_);
    if (generator_.happens(97)) {
      const Producer& producer = generator_.pick(registers_.producers);
      share.producer = producer.code;
      share.producerWithholding = producer.withholding;
      rates.producer = generator_.between(2, 6) * 1000;
      if (generator_.happens(1)) {
        share.producer = strickenProducer;
        share.producerWithholding = 0;
      }
    }
    if (generator_.happens(20)) {
      const Producer& producer = generator_.pick(registers_.producers);
      share.alternate = producer.code;
      share.alternateWithholding = producer.withholding;
      rates.alternate = generator_.between(5, 20) * 100;
    }
    for (const Family family : {trf, taf}) {
      share.commission[family] = commissionOf(policy.premium[family], share.quota, rates);
    }
  }
}

void Policies::drawLeads(Policy& policy) {
  const std::size_t count = std::min(static_cast<std::size_t>(generator_.draw(leads)), policy.shares.size());
  for (std::size_t i = 0; i < count; ++i) policy.shares[i].lead = generator_.draw(leadFlags);
}

void Policies::addGuarantee(const Policy& policy) {
  const Money guaranteed = generator_.happens(70) ? euros(generator_.between(10, 5000) * std::int64_t{100})
                                                  : drawAmount(1000, 500000, generator_);
  guarantees_.add(policy.prot, guaranteed);

  const bool dated = generator_.happens(90);
  const Money line = euros(generator_.between(1, 50) * std::int64_t{50000});
  const std::string& company = policy.shares.front().company;
  if (!clientsWithLine_.insert(policy.client + " " + company).second) return;
  creditLines_.add(policy.client, company, dated ? std::optional(iso(policy.start)) : std::nullopt, line);
}

Policy Policies::add() {
  Policy policy = draw();
  const int group = generator_.happens(20) ? generator_.pick(registers_.groups) : 0;
  const std::string_view instalment = generator_.draw(instalments);
  const std::optional<std::string> nextInstalment =
      generator_.happens(95) ? std::optional(iso(policy.start + std::chrono::days(365))) : std::nullopt;
  const auto premium = [&](Family family) {
    return std::array{policy.premium[family].net, policy.premium[family].accessories, policy.premium[family].gross};
  };
  policies_.add(policy.prot, policy.client, policy.state, policy.current, premium(trf), premium(taf), policy.number,
                policy.branch->code, policy.branch->subBranch, group, policy.interest, nextInstalment, instalment);
  for (const Share& share : policy.shares) addShare(policy, share);
  if (policy.branch->kind == 4) addGuarantee(policy);
  return policy;
}

void Policies::addShare(const Policy& policy, const Share& share) {
  const std::optional<std::string> remitted =
      generator_.happens(60) ? std::optional(iso(policy.start + std::chrono::days(30))) : std::nullopt;
  const auto parts = [&](Family family) {
    const Commission& commission = share.commission[family];
    return std::array{commission.office, commission.producer, commission.alternate};
  };
  shares_.add(policy.prot, share.company, share.producer, share.alternate, share.lead, share.quota, parts(trf),
              parts(taf), share.number, remitted);
}

}  // namespace office
