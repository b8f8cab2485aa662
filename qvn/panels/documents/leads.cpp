#include "qvn/panels/documents/leads.h"

#include <string>

#include "qvn/lookups/QVN_Ricerche.h"

namespace qvn::documents {

void describeLeads(toolkit::Surface& panel) {
  toolkit::Label& company = panel.label("LblCOD_COMP_DEL");
  company.Change = [&company, &description = panel.label("LblDESC_COMP_DEL")] {
    std::string code = company.Caption();
    description.Caption(QVN_Ricerche::CercaCOMPAGNIA(code));
  };
  toolkit::Label& producer = panel.label("LblCOD_PROD_DEL");
  producer.Change = [&producer, &description = panel.label("LblDESC_PROD_DEL")] {
    std::string code = producer.Caption();
    description.Caption(QVN_Ricerche::CercaPRODUTTORE(code, false));
  };
}

}  // namespace qvn::documents
