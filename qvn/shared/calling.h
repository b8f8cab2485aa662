// Calling typed functions with variants, so that a session, a component host or a test can call by name.
#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>

#include "qvn/shared/conversions.h"
#include "qvn/shared/failure.h"
#include "qvn/shared/variant.h"

namespace qvn {

/// A type as member tables name it; void has no name.
template <class T>
constexpr std::string_view typeName() {
  using Plain = std::remove_cvref_t<T>;
  if constexpr (std::is_void_v<Plain>) {
    return {};
  } else if constexpr (std::is_same_v<Plain, bool>) {
    return "boolean";
  } else if constexpr (std::is_same_v<Plain, std::uint8_t>) {
    return "8-bit unsigned integer";
  } else if constexpr (std::is_same_v<Plain, std::int16_t>) {
    return "16-bit integer";
  } else if constexpr (std::is_same_v<Plain, std::int32_t>) {
    return "32-bit integer";
  } else if constexpr (std::is_same_v<Plain, double>) {
    return "double";
  } else if constexpr (std::is_same_v<Plain, Currency>) {
    return "currency";
  } else if constexpr (std::is_same_v<Plain, Decimal>) {
    return "decimal";
  } else if constexpr (std::is_same_v<Plain, Date>) {
    return "date";
  } else if constexpr (std::is_same_v<Plain, Variant>) {
    return "variant";
  } else if constexpr (std::is_same_v<Plain, CurrencyArray>) {
    return "array of currency";
  } else if constexpr (std::is_same_v<Plain, EventsReference>) {
    return "clsQVN_Eventi";
  } else if constexpr (std::is_same_v<Plain, std::string> || std::is_same_v<Plain, std::string_view>) {
    return "text";
  } else {
    static_assert(!sizeof(Plain), "members have no such type");
  }
}

/// What a variant is converted to before it is handed to a parameter of type T.
template <class T>
using Held =
    std::conditional_t<std::is_same_v<std::remove_cvref_t<T>, std::string_view>, std::string, std::remove_cvref_t<T>>;

/// What an argument for a parameter of type T is held in while the function runs. An array stays where it is: nothing
/// converts to one but an array.
template <class T>
using HeldArgument =
    std::conditional_t<std::is_same_v<T, const CurrencyArray&>, std::reference_wrapper<const CurrencyArray>, Held<T>>;

/// An argument as the type that it is held in. Its failures say which of the arguments it is, from 1.
template <class Target>
Target argument(std::span<const Variant> args, std::size_t index, const Locale& locale) {
  if constexpr (std::is_same_v<Target, std::reference_wrapper<const CurrencyArray>>) {
    if (!std::holds_alternative<CurrencyArray>(args[index])) argument<CurrencyArray>(args, index, locale);
    return std::cref(std::get<CurrencyArray>(args[index]));
  } else {
    return placed("argument " + std::to_string(index + 1), [&] { return as<Target>(args[index], locale); });
  }
}

/// Calls a function with as many variants as it has parameters, each converted to its parameter's type. Parameters that
/// are mutable references come back into the variants, whether the call succeeds or fails half-way. Fails with
/// "invalid call" on another count of arguments and as as<>() does on one that does not convert.
template <class Result, class... Parameters, class Function>
Variant callWith(std::span<Variant> args, const Locale& locale, Function&& function) {
  constexpr std::size_t kCount = sizeof...(Parameters);
  if (args.size() != kCount) {
    throw Failure(FailureKind::InvalidCall, "takes " + std::to_string(kCount) +
                                                (kCount == 1 ? " argument, given " : " arguments, given ") +
                                                std::to_string(args.size()));
  }
  return [&]<std::size_t... I>(std::index_sequence<I...>)->Variant {
    std::tuple<HeldArgument<Parameters>...> held{argument<HeldArgument<Parameters>>(args, I, locale)...};
    struct GiveBack {
      std::span<Variant> args;
      std::tuple<HeldArgument<Parameters>...>& held;
      ~GiveBack() {
        [[maybe_unused]] auto one = [&]<std::size_t J, class Parameter>() {
          if constexpr (std::is_lvalue_reference_v<Parameter> && !std::is_const_v<std::remove_reference_t<Parameter>>)
            args[J] = std::move(std::get<J>(held));
        };
        (one.template operator()<I, Parameters>(), ...);
      }
    } giveBack{args, held};
    if constexpr (std::is_void_v<Result>) {
      std::forward<Function>(function)(static_cast<Parameters>(std::get<I>(held))...);
      return Empty{};
    } else {
      return Variant(std::forward<Function>(function)(static_cast<Parameters>(std::get<I>(held))...));
    }
  }
  (std::index_sequence_for<Parameters...>{});
}

}  // namespace qvn
