#include "hosts/ufficio/attempts.h"

#include <exception>

#include "hosts/ufficio/reasons.h"

namespace qvn::ufficio {

bool Attempts::operator()(const QString& failed, const std::function<void()>& work) const {
  connection_.renew();
  try {
    work();
    return true;
  } catch (const std::exception& failure) {
    notice_.warn(QString("%1: %2.").arg(failed, reasonOf(failure)), wordsOf(failure));
  }
  return false;
}

}  // namespace qvn::ufficio
