// The panel's widgets as the model and the tests number them.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace qvn::test {

inline constexpr std::array<std::string_view, 3> kParties{"UFF", "PROD", "PROD_ALT"};
inline constexpr std::array<std::string_view, 3> kComponents{"PN", "ACC", "AQ"};
enum Party : std::size_t { kOffice, kProducer, kAlternate };
enum Component : std::size_t { kPN, kACC, kAQ };

/// What can hold the focus, in tab order: six boxes of the office, then a list and six boxes of each producer.
inline constexpr std::size_t kFieldCount = 20;
inline constexpr std::array<std::string_view, kFieldCount> kFields{
    "TxtP_PN_UFF",    "TxtPN_UFF",         "TxtP_ACC_UFF",    "TxtACC_UFF",          "TxtP_AQ_UFF",
    "TxtAQ_UFF",      "CmbCALCOLO_PROD",   "TxtP_PN_PROD",    "TxtPN_PROD",          "TxtP_ACC_PROD",
    "TxtACC_PROD",    "TxtP_AQ_PROD",      "TxtAQ_PROD",      "CmbCALCOLO_PROD_ALT", "TxtP_PN_PROD_ALT",
    "TxtPN_PROD_ALT", "TxtP_ACC_PROD_ALT", "TxtACC_PROD_ALT", "TxtP_AQ_PROD_ALT",    "TxtAQ_PROD_ALT"};

constexpr bool isList(std::size_t field) { return field == 6 || field == 13; }
constexpr std::size_t partyOf(std::size_t field) { return (field + 1) / 7; }
constexpr std::size_t componentOf(std::size_t box) { return box % 7 / 2; }
constexpr bool isAmount(std::size_t box) { return box % 7 % 2 != 0; }
constexpr std::size_t percentBox(std::size_t party, std::size_t component) { return party * 7 + component * 2; }
constexpr std::size_t amountBox(std::size_t party, std::size_t component) { return percentBox(party, component) + 1; }
/// The public property behind a box: its name without "Txt".
constexpr std::string_view propertyOf(std::size_t box) { return kFields.at(box).substr(3); }

inline constexpr std::array<std::string_view, 10> kLabels{
    "LblQUOTA",      "LblCOMPAGNIA",      "LblPN",        "LblACC",        "LblPL",
    "LblPRODUTTORE", "LblPRODUTTORE_ALT", "PROVV_ATTIVE", "PROVV_PASSIVE", "RIT_ACCONTO"};
enum LabelNumber : std::size_t {
  kLblQUOTA,
  kLblCOMPAGNIA,
  kLblPN,
  kLblACC,
  kLblPL,
  kLblPRODUTTORE,
  kLblPRODUTTORE_ALT,
  kPROVV_ATTIVE,
  kPROVV_PASSIVE,
  kRIT_ACCONTO
};

/// The frames of the parties, then the two that are never disabled.
inline constexpr std::array<std::string_view, 5> kFrames{"FrmUFF", "FrmPROD", "FrmPROD_ALT", "FrmQUOTA",
                                                         "FrmRIEPILOGO"};

inline constexpr std::array<std::string_view, 2> kModes{"1 - Premi Polizza", "2 - Provv. Ufficio"};

}  // namespace qvn::test
