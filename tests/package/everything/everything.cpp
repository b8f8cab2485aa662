// One thing of each library, and of SQLite's own header behind the driver.
#include <iostream>

#include "platforms/memory/platform.h"
#include "platforms/sqlite/driver.h"
#include "platforms/sqlite/handle.h"
#include "qvn/lookups/by_name.h"
#include "qvn/panels/classes.h"
#include "qvn/shared/Globale.h"

int main() {
  qvn::memory::Platform platform;
  platform.drivers().add(qvn::sqlite::driver());
  qvn::Globale::install(platform);
  std::cout << platform.drivers().find("sqlite:office.db").head() << ' ' << qvn::panelClass("ctlIVA").name << ' '
            << (qvn::lookupFunctions().empty() ? "no lookups" : "lookups") << '\n';
}
