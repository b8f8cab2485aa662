#include "examples/office/names.h"

#include <cstdint>
#include <stdexcept>

namespace office {

namespace {

struct Named {
  std::string_view code;
  std::string_view name;
};

// 5 and 17 have no common divisor, so that form and stem, each taken in turn, meet in every pair.
constexpr Named companyForms[5] = {
    {"A", "Assicurazioni"}, {"CO", "Compagnia"}, {"MU", "Mutua"}, {"R", "Riunione"}, {"SO", "Società"}};
constexpr Named companyStems[17] = {
    {"GRI", "del Grifone"},   {"LAN", "della Lanterna"},    {"IPP", "dell'Ippogrifo"},
    {"FAL", "del Falco"},     {"QUE", "della Quercia"},     {"OLM", "dell'Olmo"},
    {"CED", "del Cedro"},     {"COM", "della Cometa"},      {"FAR", "del Faro Vecchio"},
    {"AQU", "dell'Aquilone"}, {"TOR", "della Torre Alta"},  {"PON", "del Ponte Sospeso"},
    {"PER", "della Perla"},   {"CIT", "della Città Nuova"}, {"NIC", "di San Nicolò"},
    {"BUS", "della Bussola"}, {"SIR", "dell'Isola Serena"}};

constexpr std::string_view surnames[] = {
    "Abbate",   "Agostini",   "Alfieri",    "Amato",      "Arnò",       "Baldini",    "Barbieri",   "Basile",
    "Bellucci", "Bianchi",    "Bono",       "Brusà",      "Caputo",     "Carbone",    "Caruso",     "Castelli",
    "Cattaneo", "Colombo",    "Conti",      "Costa",      "D'Agostino", "D'Amico",    "D'Angelo",   "Dall'Olio",
    "De Luca",  "De' Medici", "Di Stefano", "Donati",     "Esposito",   "Fabbri",     "Farina",     "Ferrari",
    "Ferri",    "Fiore",      "Fontana",    "Franceschi", "Gallo",      "Gatti",      "Gentile",    "Giordano",
    "Grassi",   "Greco",      "Guerra",     "Iacopini",   "Landi",      "Leone",      "Lo Presti",  "Lombardi",
    "Longo",    "Mancini",    "Marchetti",  "Mariani",    "Marini",     "Martinelli", "Mazzù",      "Monti",
    "Moretti",  "Nardò",      "Neri",       "Orlando",    "Orsù",       "Palmieri",   "Parisi",     "Pellegrini",
    "Piras",    "Quaranta",   "Ricci",      "Rinaldi",    "Rizzo",      "Romano",     "Rossi",      "Ruggeri",
    "Sala",     "Salvò",      "Sanna",      "Santoro",    "Serra",      "Silvestri",  "Sorrentino", "Testa",
    "Tommasi",  "Ughi",       "Valentini",  "Venturi",    "Villa",      "Vitale",     "Zanella",    "Zuccalà"};

constexpr std::string_view firstNames[] = {
    "Alessandro", "Alice",  "Andrea", "Anna",     "Antonio",   "Barnabà",   "Caterina", "Chiara",   "Cinzia",  "Davide",
    "Elena",      "Enrico", "Fabio",  "Federica", "Filippo",   "Francesca", "Giosuè",   "Giovanni", "Giulia",  "Ilaria",
    "Lorenzo",    "Luca",   "Lucia",  "Luigi",    "Marco",     "Maria",     "Martina",  "Matteo",   "Niccolò", "Nicolò",
    "Noè",        "Paolo",  "Pietro", "Rosalìa",  "Salvatore", "Sara",      "Simone",   "Stefania", "Tommaso", "Zoè"};

constexpr std::string_view trades[] = {"Agriturismo",      "Autofficina",    "Autotrasporti",       "Bottega",
                                       "Cantina",          "Condominio",     "Cooperativa",         "Falegnameria",
                                       "Farmacia",         "Hotel",          "Impresa Edile",       "Lavanderia",
                                       "Macelleria",       "Oleificio",      "Officine Meccaniche", "Pasticceria",
                                       "Società Agricola", "Studio Tecnico", "Tipografia",          "Vetreria"};

constexpr std::string_view places[] = {
    "L'Aquila",    "Forlì",      "Cantù",   "Nardò",       "Mondovì", "Reggio nell'Emilia",
    "Sant'Angelo", "Lucca",      "Bergamo", "Santa Lucìa", "Patti",   "Roccaraso",
    "Cefalù",      "Ca' Bianca", "Modica",  "Portogruaro", "Assisi",  "Vadò Ligure"};

constexpr std::string_view companyTypes[] = {"S.r.l.", "S.p.A.", "S.n.c.", "S.a.s.", "& Figli", "Soc. Coop."};

constexpr std::string_view interests[] = {"Fabbricato",         "Autovettura",  "Autocarro",      "Merci in viaggio",
                                          "Attività",           "Appalto",      "Abitazione",     "Capannone",
                                          "Vita dell'assicur.", "Opere d'arte", "Urbanizzazione", "Nucleo familiare"};

std::string spaced(std::string_view first, std::string_view second) {
  return std::string(first).append(" ").append(second);
}

}  // namespace

NamedCode company(std::size_t index) {
  if (index >= companyNames) throw std::length_error("no company number " + std::to_string(index));
  const Named& form = companyForms[index % std::size(companyForms)];
  const Named& stem = companyStems[index % std::size(companyStems)];
  return {std::string(form.code).append(stem.code), spaced(form.name, stem.name)};
}

std::string person(Generator& generator) {
  const std::string_view surname = generator.pick(surnames);
  return spaced(surname, generator.pick(firstNames));
}

std::string firm(Generator& generator) {
  const std::string_view trade = generator.pick(trades);
  const std::string name = spaced(trade, generator.happens(50) ? generator.pick(places) : generator.pick(surnames));
  return generator.happens(60) ? spaced(name, generator.pick(companyTypes)) : name;
}

std::string interest(Generator& generator) { return std::string(generator.pick(interests)); }

std::string lettersOf(std::string_view name, std::size_t count) {
  std::string letters;
  for (const char each : name) {
    if (letters.size() == count) break;
    if (each >= 'a' && each <= 'z') letters += static_cast<char>(each - 'a' + 'A');
    if (each >= 'A' && each <= 'Z') letters += each;
  }
  return letters;
}

std::string padded(std::int64_t number, std::size_t digits) {
  const std::string text = std::to_string(number);
  if (text.size() > digits) throw std::length_error(text + " has more than " + std::to_string(digits) + " digits");
  return std::string(digits - text.size(), '0') + text;
}

}  // namespace office
