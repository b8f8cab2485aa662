// The rows that the lookups of the sessions find. Numbers are spelled with a point; an empty one is a Null.
#pragma once

#include <array>
#include <string_view>

namespace qvn::test {

struct ProducerRow {
  std::string_view code;
  std::string_view name;  ///< empty for a Null
  std::string_view withholding;
  std::string_view percent;
};

inline constexpr std::array kProducers{
    ProducerRow{.code = "00120", .name = "ROSSI MARIO", .withholding = "23", .percent = "50"},
    ProducerRow{.code = "A1", .name = "AGENZIA ALFA", .withholding = "20", .percent = "12.5"},
    ProducerRow{.code = "B2", .name = "BIANCHI (FIGLI) SRL", .withholding = "11.5", .percent = "30"},
    ProducerRow{.code = "2.5", .name = "DUE E MEZZO", .withholding = "0", .percent = "2.5"},
    ProducerRow{.code = "C3", .name = "COSTA", .withholding = "23.25", .percent = "100"},
    ProducerRow{.code = "NR", .name = "SENZA RITENUTA", .withholding = "", .percent = ""},
    ProducerRow{.code = "NN", .name = "", .withholding = "23", .percent = "40"},
    ProducerRow{.code = "OV", .name = "OLTRE", .withholding = "-4", .percent = "40000"},
};

struct CompanyRow {
  std::string_view code;
  std::string_view name;
};

inline constexpr std::array kCompanies{
    CompanyRow{.code = "GEN", .name = "GENERALI"},
    CompanyRow{.code = "RAS", .name = "RIUNIONE"},
    CompanyRow{.code = "NUL", .name = ""},
};

inline constexpr std::string_view kSelectPRODUTTORE =
    "Select DENOMINAZIONE, PERCALT From PRODUTTORI Where COD_PROD = '";
inline constexpr std::string_view kSelectR_ACC = "Select R_ACC From PRODUTTORI Where COD_PROD = '";
inline constexpr std::string_view kSelectCOMPAGNIA = "Select DESC_COMPAGNIA From COMPAGNIE Where COD_COMP = '";

}  // namespace qvn::test
