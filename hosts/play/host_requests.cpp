// What the host does.
#include <algorithm>
#include <array>
#include <span>
#include <vector>

#include "hosts/play/requests.h"
#include "qvn/lookups/by_name.h"
#include "qvn/shared/Globale.h"
#include "qvn/shared/failure.h"
#include "qvn/shared/names.h"

namespace qvn::play {

namespace {

void connect(Session&, const Request& request, Answer&) { Globale::Eventi()->ImpostaDB(request.text("string")); }

void answerMancaDB(Session& session, const Request& request, Answer&) {
  session.answerMancaDB(request.textOrNull("string"));
}

void disconnect(Session&, const Request&, Answer&) { Globale::DB().Close(); }

void unload(Session& session, const Request&, Answer&) { session.unload(); }

void make(Session& session, const Request& request, Answer&) {
  const std::string& name = request.text("panel");
  const std::string& className = request.text("class");
  const bool visible = request.flag("visible", true);
  const PanelClass& known = qvn::placed(name, [&]() -> const PanelClass& { return panelClass(className); });
  session.panels().make(name, known).surface().Visible(visible);
}

void drop(Session& session, const Request& request, Answer&) { session.panels().drop(request.text("panel")); }

/// Hiding takes the focus from the panel, and so runs what its field does when it is left.
void show(Session& session, const Request& request, Answer&) {
  const std::string& name = request.text("panel");
  const bool visible = request.flag("visible", true);
  toolkit::Surface& surface = session.panels().at(name).surface();
  qvn::placed(name, [&] { surface.Visible(visible); });
}

void let(Session& session, const Request& request, Answer&) {
  Panel& panel = session.panels().at(request.text("panel"));
  const std::string& name = request.text("name");
  letByName(panel, name, request.value(session.locale()));
}

void get(Session& session, const Request& request, Answer& answer) {
  Panel& panel = session.panels().at(request.text("panel"));
  answer["value"] = toJson(getByName(panel, request.text("name")));
}

/// The request's arguments, and where one of them does not convert, the answer shows them as they were given.
std::vector<Variant> argumentsOf(const Session& session, const Request& request, Answer& answer) {
  try {
    return request.arguments(session.locale());
  } catch (const Failure&) {
    answer["args"] = request.argumentsAsGiven(session.locale());
    throw;
  }
}

/// Calls with the request's arguments, and shows those given as they stand afterwards, on a failure too.
template <class Function>
void callWithArgs(const Session& session, const Request& request, Answer& answer, bool givesValue,
                  Function&& function) {
  std::vector<Variant> args = argumentsOf(session, request, answer);
  const auto showArgs = [&] {
    if (!request.has("args")) return;
    Answer& list = answer["args"] = Answer::array();
    for (const Variant& one : args) list.push_back(toJson(one));
  };
  try {
    const Variant result = function(args);
    if (givesValue) answer["value"] = toJson(result);
  } catch (const Failure&) {
    showArgs();
    throw;
  }
  showArgs();
}

bool givesValue(const Panel& panel, std::string_view method) {
  const auto named = [method](const Member& m) { return m.kind == MemberKind::Method && sameName(m.name, method); };
  const auto found = std::ranges::find_if(panel.members(), named);
  return found != panel.members().end() && !found->type.empty();
}

void call(Session& session, const Request& request, Answer& answer) {
  Panel& panel = session.panels().at(request.text("panel"));
  const std::string& name = request.text("name");
  callWithArgs(session, request, answer, givesValue(panel, name),
               [&](std::span<Variant> args) { return callByName(panel, name, args); });
}

void lookup(Session& session, const Request& request, Answer& answer) {
  const std::string& name = request.text("name");
  callWithArgs(session, request, answer, true, [&](std::span<Variant> args) { return callLookup(name, args); });
}

void classes(Session&, const Request&, Answer& answer) {
  Answer& names = answer["classes"] = Answer::array();
  for (const PanelClass& one : panelClasses()) names.push_back(one.name);
}

void members(Session&, const Request& request, Answer& answer) {
  const PanelClass& wanted = panelClass(request.text("class"));
  Answer& list = answer["members"] = Answer::array();
  for (const Member& member : wanted.members()) {
    Answer entry = Answer::object();
    entry["name"] = member.name;
    entry["kind"] = nameOf(member.kind);
    entry["type"] = member.type;
    list.push_back(std::move(entry));
  }
}

void today(Session& session, const Request& request, Answer&) {
  session.toolkit().today(dateOfIso(request.text("date")));
}

}  // namespace

std::span<const RequestKind> hostRequests() {
  static constexpr std::array kinds{
      RequestKind{.name = "connect", .carryOut = connect},
      RequestKind{.name = "answer", .carryOut = answerMancaDB},
      RequestKind{.name = "disconnect", .carryOut = disconnect},
      RequestKind{.name = "unload", .carryOut = unload},
      RequestKind{.name = "new", .carryOut = make},
      RequestKind{.name = "drop", .carryOut = drop},
      RequestKind{.name = "show", .carryOut = show},
      RequestKind{.name = "let", .carryOut = let},
      RequestKind{.name = "get", .carryOut = get},
      RequestKind{.name = "call", .carryOut = call},
      RequestKind{.name = "lookup", .carryOut = lookup},
      RequestKind{.name = "classes", .carryOut = classes},
      RequestKind{.name = "members", .carryOut = members},
      RequestKind{.name = "today", .carryOut = today},
  };
  return kinds;
}

}  // namespace qvn::play
