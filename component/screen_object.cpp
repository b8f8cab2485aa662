#include "component/screen_object.h"

#ifdef QVN_SQLITE
#include "platforms/sqlite/driver.h"
#endif
#include "qvn/shared/Globale.h"
#include "qvn/shared/failure.h"

namespace qvn::component {

namespace {

ScreenObject* standing = nullptr;

}  // namespace

ScreenObject::ScreenObject() {
  if (standing != nullptr) throw Failure(FailureKind::InvalidCall, "another screen lives, and there is one at a time");
#ifdef QVN_SQLITE
  platform_.drivers().add(sqlite::driver());
#endif
  platform_.watch(this);
  Globale::install(platform_);
  standing = this;
}

ScreenObject::~ScreenObject() {
  Globale::uninstall();
  standing = nullptr;
}

toolkit::Form& ScreenObject::form(std::string_view name) const {
  const toolkit::Forms& loaded = platform_.forms();
  for (std::int32_t i = 0; i < loaded.count(); ++i) {
    if (loaded.at(i).Name() == name) return loaded.at(i);
  }
  throw Failure(FailureKind::NoSuchMember, std::string("no form \"").append(name).append("\" is loaded"));
}

void ScreenObject::tell(std::string_view form, std::int32_t event) const {
  forms_.call([this] { return !gone(); }, std::string(form).c_str(), event);
}

}  // namespace qvn::component
