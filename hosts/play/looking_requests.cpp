// What can be looked at.
#include <array>
#include <cstdint>

#include "hosts/play/drawing.h"
#include "hosts/play/picture.h"
#include "hosts/play/requests.h"

namespace qvn::play {

namespace {

void look(Session& session, const Request& request, Answer& answer) {
  const toolkit::Surface& panel = session.panels().at(request.text("panel")).surface();
  if (request.has("widget")) {
    answer["widget"] = pictureOf(panel.widget(request.text("widget")));
    return;
  }
  Answer& list = answer["widgets"] = Answer::array();
  for (const toolkit::Widget* widget : panel.widgets()) list.push_back(pictureOf(*widget));
}

void draw(Session& session, const Request& request, Answer& answer) {
  answer["lines"] = drawn(session.panels().at(request.text("panel")).surface());
}

void focused(Session& session, const Request&, Answer& answer) {
  const toolkit::Widget* widget = session.toolkit().platform().focused();
  answer["panel"] = widget != nullptr ? Answer(widget->owner().name()) : Answer();
  answer["widget"] = widget != nullptr ? Answer(widget->Name()) : Answer();
}

void forms(Session& session, const Request&, Answer& answer) {
  const toolkit::Forms& loaded = session.toolkit().platform().forms();
  Answer& names = answer["forms"] = Answer::array();
  for (std::int32_t i = 0; i < loaded.count(); ++i) names.push_back(loaded.at(i).Name());
}

void journal(Session& session, const Request&, Answer& answer) { answer["journal"] = session.journal().take(); }

}  // namespace

std::span<const RequestKind> lookingRequests() {
  static constexpr std::array kinds{
      RequestKind{.name = "look", .carryOut = look},       RequestKind{.name = "draw", .carryOut = draw},
      RequestKind{.name = "focused", .carryOut = focused}, RequestKind{.name = "forms", .carryOut = forms},
      RequestKind{.name = "journal", .carryOut = journal},
  };
  return kinds;
}

}  // namespace qvn::play
