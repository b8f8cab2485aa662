#include "qvn/lookups/by_name.h"

#include <array>
#include <string>
#include <utility>

#include "qvn/lookups/QVN_Ricerche.h"
#include "qvn/shared/Globale.h"
#include "qvn/shared/calling.h"
#include "qvn/shared/failure.h"
#include "qvn/shared/names.h"

namespace qvn {

namespace {

template <class Result, class... Parameters>
LookupFunction describe(std::string_view name, Result (*function)(Parameters...)) {
  return {.name = name, .type = typeName<Result>(), .call = [function](std::span<Variant> args, const Locale& locale) {
            return callWith<Result, Parameters...>(args, locale, function);
          }};
}

}  // namespace

std::span<const LookupFunction> lookupFunctions() {
  using namespace QVN_Ricerche;
  static const std::array functions{
      describe("CercaCOMPAGNIA", CercaCOMPAGNIA),
      describe("CercaCOMP_DEL", CercaCOMP_DEL),
      describe("CercaCOMP_DEL_SIN", CercaCOMP_DEL_SIN),
      describe("CercaDESC_CONTO", CercaDESC_CONTO),
      describe("CercaESPOSIZIONE", CercaESPOSIZIONE),
      describe("CercaIVA", CercaIVA),
      describe("CercaPRODUTTORE", CercaPRODUTTORE),
      describe("CercaPROD_DEL", CercaPROD_DEL),
      describe("CercaPROD_DEL_SOSPESO", CercaPROD_DEL_SOSPESO),
      describe("CercaR_ACC", CercaR_ACC),
      describe("CercaSIGLA", CercaSIGLA),
      describe("CercaTIPO_SK", CercaTIPO_SK),
      describe("ListaCLIENTI", ListaCLIENTI),
      describe("ListaCOMPAGNIE", ListaCOMPAGNIE),
      describe("ListaCONTI", ListaCONTI),
      describe("ListaMASTRI", ListaMASTRI),
      describe("ListaPRODUTTORI", ListaPRODUTTORI),
      describe("ListaSOTTORAMI", ListaSOTTORAMI),
      describe("ListaTIPI_IVA", ListaTIPI_IVA),
  };
  return functions;
}

Variant callLookup(std::string_view name, std::span<Variant> args) {
  for (const LookupFunction& function : lookupFunctions()) {
    if (!sameName(function.name, name)) continue;
    try {
      return function.call(args, Globale::platform().locale());
    } catch (const Failure& failure) {
      throw failure.within(function.name);
    }
  }
  throw Failure(FailureKind::NoSuchMember, std::string("there is no lookup \"").append(name).append("\""));
}

}  // namespace qvn
