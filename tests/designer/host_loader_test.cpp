// A host that loads a form and gives it panels of its own program.
#include <QFile>
#include <QUiLoader>
#include <gtest/gtest.h>
#include <memory>

#include "platforms/designer/panels.h"
#include "platforms/qt/platform.h"
#include "qvn/shared/Globale.h"
#include "tests/fake_database.h"

namespace qvn::test {
namespace {

using designer::PanelInForm;

class Loader final : public QUiLoader {
 public:
  QWidget* createWidget(const QString& className, QWidget* parent, const QString& name) override {
    QWidget* const panel = designer::makeFormPanel(className, parent);
    if (panel == nullptr) return QUiLoader::createWidget(className, parent, name);
    panel->setObjectName(name);
    return panel;
  }
};

class HostLoader : public testing::Test {
 public:
  HostLoader() {
    platform.drivers().add(driver);
    Globale::install(platform);
    QFile file(QStringLiteral(QVN_FORM));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    Loader loader;
    loader.clearPluginPaths();
    form.reset(loader.load(&file));
  }
  ~HostLoader() override {
    form.reset();
    Globale::uninstall();
  }

  PanelInForm& panel(const char* name) { return *form->findChild<PanelInForm*>(QString::fromLatin1(name)); }

  FakeDriver driver;
  qt::OffscreenPlatform platform;
  std::unique_ptr<QWidget> form;
};

TEST_F(HostLoader, PutsItsOwnPanelsIntoTheForm) {
  ASSERT_NE(form, nullptr);
  EXPECT_EQ(form->findChildren<PanelInForm*>().size(), 17);
  for (const PanelInForm* one : form->findChildren<PanelInForm*>()) {
    EXPECT_EQ(&one->placed()->panel().surface().platform(), &platform);
  }
}

TEST_F(HostLoader, IsAskedForTheDatabaseOnceForAllPanels) {
  int asked = 0;
  QObject::connect(&panel("fido"), &PanelInForm::MancaDB, [&] {
    ++asked;
    EXPECT_TRUE(panel("fido").ImpostaDB("fake:office"));
  });
  panel("q_polizze").setValue("COD_COMP", "ALL");
  panel("ins_movimenti").setValue("Mastro", "30");
  EXPECT_EQ(asked, 1);
  ASSERT_EQ(driver.openings.size(), 1U);
  EXPECT_EQ(driver.openings.front().rest, "office");
  EXPECT_EQ(driver.ran.size(), 2U);
}

TEST_F(HostLoader, IsToldWhyTheDatabaseCannotBeOpened) {
  EXPECT_FALSE(panel("fido").ImpostaDB("fake:refused"));
  EXPECT_EQ(panel("fido").failure(), R"(the database "refused" cannot be opened)");
}

}  // namespace
}  // namespace qvn::test
