#include "hosts/ufficio/journal/accounts.h"

#include <array>
#include <string>

namespace qvn::ufficio::journal {

void requireAccount(Store& store, const Row& line, std::string_view number) {
  const std::array key{line.at("MASTRO"), line.at("CONTO")};
  if (!store.rows("SELECT 1 FROM CONTI WHERE MASTRO = ?1 AND CONTO = ?2", key).empty()) return;
  throw StoreFailure(std::string("nella riga ")
                         .append(textOf(line.at(number)))
                         .append(" il conto «")
                         .append(textOf(key[0]))
                         .append(" ")
                         .append(textOf(key[1]))
                         .append("» non esiste"));
}

}  // namespace qvn::ufficio::journal
