// Any lines, played as a session: each is answered by one object on one line.
#include "hosts/play/session.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string>
#include <string_view>

#include "fuzz/answering_driver.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::string_view text(reinterpret_cast<const char*>(data), size);
  const std::unique_ptr<qvn::play::Toolkit> toolkit = qvn::play::makeToolkit("memory");
  qvn::fuzz::AnsweringDriver driver;
  const std::array<qvn::toolkit::Driver*, 1> drivers{&driver};
  qvn::play::Session session(*toolkit, drivers);
  session.answer(R"({"do":"connect","string":"fuzz:"})");
  session.answer(R"({"do":"new","panel":"iva","class":"ctlIVA"})");
  session.answer(R"({"do":"new","panel":"riga","class":"ctlINS_IVA"})");
  session.answer(R"({"do":"call","panel":"iva","name":"Attiva"})");
  session.answer(R"({"do":"call","panel":"riga","name":"Attiva"})");
  while (!text.empty()) {
    const std::size_t end = text.find('\n');
    const qvn::play::Answer answer = session.answer(text.substr(0, end));
    const std::string written = answer.dump(-1, ' ', false, qvn::play::Answer::error_handler_t::replace);
    if (!answer.is_object() || !answer.contains("ok") || written.find('\n') != std::string::npos) std::abort();
    text = end == std::string_view::npos ? std::string_view() : text.substr(end + 1);
  }
  return 0;
}
