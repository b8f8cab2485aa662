#include "hosts/play/session.h"

#include <algorithm>
#include <exception>
#include <utility>

#include "hosts/play/bad_request.h"
#include "hosts/play/form_picture.h"
#include "hosts/play/requests.h"
#include "qvn/shared/Globale.h"
#include "qvn/shared/failure.h"

namespace qvn::play {

namespace {

const RequestKind& kindOf(const Request& request) {
  for (const auto& kinds : {hostRequests(), operatorRequests(), lookingRequests()}) {
    const auto found = std::ranges::find(kinds, request.name(), &RequestKind::name);
    if (found != kinds.end()) return *found;
  }
  throw BadRequest("there is no request " + excerpt(request.name()));
}

Answer failed(std::string_view failure, std::string_view message) {
  Answer answer = Answer::object();
  answer["ok"] = false;
  answer["failure"] = failure;
  answer["message"] = message;
  return answer;
}

constexpr std::string_view kBadRequest = "bad request";

}  // namespace

Session::Session(Toolkit& toolkit, std::span<toolkit::Driver* const> drivers)
    : toolkit_(toolkit), panels_(journal_, toolkit.hands()) {
  Globale::install(toolkit_.platform());
  for (toolkit::Driver* driver : drivers) {
    drivers_.push_back(std::make_unique<JournalingDriver>(*driver, journal_));
    toolkit_.platform().drivers().add(*drivers_.back());
  }
  toolkit_.watch(&journal_);
  hands().takePictures(true);
  listenForMancaDB();
}

Session::~Session() {
  panels_.clear();
  Globale::uninstall();
  toolkit_.watch(nullptr);
  hands().takePictures(false);
  toolkit_.platform().drivers().clear();
}

void Session::listenForMancaDB() {
  mancaDB_ = Globale::Eventi()->MancaDB.subscribe([this] {
    journal_.mancaDB();
    if (mancaDBAnswer_) Globale::Eventi()->ImpostaDB(*mancaDBAnswer_);
  });
}

void Session::unload() {
  panels_.clear();
  Globale::unload();
  listenForMancaDB();
}

Answer Session::answer(std::string_view line) {
  ++line_;
  Answer answer = carriedOut(line);
  if (!answer["ok"].get<bool>()) {
    anyFailed_ = true;
    anyBadRequest_ = anyBadRequest_ || answer["failure"] == kBadRequest;
  }
  return answer;
}

Answer Session::carriedOut(std::string_view line) {
  const std::int32_t beepsBefore = journal_.beeps();
  std::optional<Request> request;
  const RequestKind* kind = nullptr;
  Answer added = Answer::object();
  Answer answer = Answer::object();
  try {
    request.emplace(line);
    kind = &kindOf(*request);
    kind->carryOut(*this, *request, added);
    answer["ok"] = true;
  } catch (const BadRequest& bad) {
    const std::string asked = kind == nullptr ? std::string() : request->asked().append(": ");
    answer = failed(kBadRequest, "line " + std::to_string(line_) + ": " + asked + bad.what());
  } catch (const Failure& failure) {
    answer = failed(nameOf(failure.kind()), failure.what());
  } catch (const std::exception& unforeseen) {
    const std::string asked = request ? request->asked().append(": ") : std::string();
    answer = failed(nameOf(FailureKind::InvalidCall), asked + unforeseen.what());
  }
  answer.update(added);
  const bool byOperator = kind != nullptr && kind->byOperator;
  if (byOperator) answer["beeps"] = journal_.beeps() - beepsBefore;
  // A form that a host's call shows has the operator act as well, and none of it is to be told of a later request.
  const auto tell = [&](const char* field, Answer list) {
    if (byOperator || !list.empty()) answer[field] = std::move(list);
  };
  tell("failures", panels_.takeFailures());
  tell("shown", shown());
  return answer;
}

Answer Session::shown() {
  Answer pictures = Answer::array();
  for (const FormPicture& seen : hands().shown()) pictures.push_back(pictureOf(seen));
  return pictures;
}

}  // namespace qvn::play
