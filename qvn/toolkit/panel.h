// What every panel is to those that know it only by name: a surface and a table of public members.
#pragma once

#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "qvn/shared/calling.h"
#include "qvn/shared/variant.h"
#include "qvn/toolkit/container.h"
#include "qvn/toolkit/surface.h"

namespace qvn {

/// Where a host places a panel, and under what name it speaks of it.
struct PanelSite {
  toolkit::Container& container;
  std::string name;
};

class Panel;

/// What can be done with a member.
enum class MemberKind : std::uint8_t { Get, Let, GetLet, Method };

/// The kind in words: "get", "let", "get/let", "method".
std::string_view nameOf(MemberKind kind);

/// One public member of a panel.
struct Member {
  std::string_view name;
  MemberKind kind;
  std::string_view type;  ///< of the property or of the method's result; empty for a method without one
  std::function<Variant(Panel&)> get;
  std::function<void(Panel&, const Variant&, const Locale&)> let;
  std::function<Variant(Panel&, std::span<Variant>, const Locale&)> call;
};

/// A panel as hosts and tools see it that do not know its class.
///
/// A host may drop a panel at any moment, from inside PropertyChanged as well. Its widgets then live until the key or
/// write at hand is done, but the panel does not: a handler that goes on after an announcement must have hold of the
/// widgets alone, not of the panel.
class Panel {
 public:
  virtual ~Panel() = default;
  Panel() = default;
  Panel(const Panel&) = delete;
  Panel& operator=(const Panel&) = delete;

  virtual toolkit::Surface& surface() const = 0;
  /// The public members in interface order; they live as long as the program.
  virtual std::span<const Member> members() const = 0;
};

/// Reads, writes or calls a public member by its name, without regard to case. "no such member" if the panel has none
/// of that name and use; any failure of the member itself names panel and member in front.
Variant getByName(Panel& panel, std::string_view name);
void letByName(Panel& panel, std::string_view name, const Variant& value);
/// Arguments are in/out: what the method changed comes back in them.
Variant callByName(Panel& panel, std::string_view name, std::span<Variant> args);

/// Builds the table of a panel class from its member functions; their types are taken from the functions themselves.
template <class P>
class MemberTable {
 public:
  template <class Value, class Given>
  MemberTable& property(std::string_view name, Value (P::*get)() const, void (P::*let)(Given)) {
    members_.push_back({.name = name,
                        .kind = MemberKind::GetLet,
                        .type = typeName<Value>(),
                        .get = getter(get),
                        .let = setter(let),
                        .call = {}});
    return *this;
  }
  template <class Value>
  MemberTable& readOnly(std::string_view name, Value (P::*get)() const) {
    members_.push_back(
        {.name = name, .kind = MemberKind::Get, .type = typeName<Value>(), .get = getter(get), .let = {}, .call = {}});
    return *this;
  }
  template <class Given>
  MemberTable& writeOnly(std::string_view name, void (P::*let)(Given)) {
    members_.push_back(
        {.name = name, .kind = MemberKind::Let, .type = typeName<Given>(), .get = {}, .let = setter(let), .call = {}});
    return *this;
  }
  template <class Result, class... Parameters>
  MemberTable& method(std::string_view name, Result (P::*function)(Parameters...)) {
    members_.push_back({.name = name,
                        .kind = MemberKind::Method,
                        .type = typeName<Result>(),
                        .get = {},
                        .let = {},
                        .call = [function](Panel& panel, std::span<Variant> args, const Locale& locale) {
                          return callWith<Result, Parameters...>(args, locale, [&](Parameters... parameters) {
                            return (static_cast<P&>(panel).*function)(std::forward<Parameters>(parameters)...);
                          });
                        }});
    return *this;
  }

  std::span<const Member> members() const { return members_; }

 private:
  template <class Value>
  static auto getter(Value (P::*get)() const) {
    return [get](Panel& panel) { return Variant((static_cast<P&>(panel).*get)()); };
  }
  template <class Given>
  static auto setter(void (P::*let)(Given)) {
    return [let](Panel& panel, const Variant& value, const Locale& locale) {
      (static_cast<P&>(panel).*let)(as<Held<Given>>(value, locale));
    };
  }

  std::vector<Member> members_;
};

}  // namespace qvn
