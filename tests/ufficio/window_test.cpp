// The window itself: its size and colours, what it keeps, and another one beside it.
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QSettings>
#include <QSplitter>
#include <algorithm>
#include <memory>
#include <utility>

#include "platforms/qt/colours.h"
#include "platforms/qt/texts.h"
#include "tests/ufficio/at_window.h"

namespace qvn::test {
namespace {

using testing::HasSubstr;

constexpr const char* kOrdinaryCode = "SELECT * FROM TIPI_IVA WHERE COD_IVA = 22";

class OfficeWindow : public AtWindow {
 public:
  ~OfficeWindow() override { dark(false); }
  OfficeWindow() = default;
  OfficeWindow(const OfficeWindow&) = delete;
  OfficeWindow& operator=(const OfficeWindow&) = delete;

  void dark(bool on) {
    if (window().findChild<QAction*>("scuro")->isChecked() != on) {
      press(Qt::Key_D, Qt::ControlModifier | Qt::ShiftModifier);
    }
  }
  /// Whether it is one of a panel's fields, labels and buttons.
  bool isInPanel(const QWidget& widget) {
    return std::ranges::any_of(screen().panels(), [&](Panel* panel) {
      return std::ranges::any_of(panel->surface().widgets(),
                                 [&](const toolkit::Widget* its) { return office.platform.widgetOf(*its) == &widget; });
    });
  }
  /// Closes the window and opens another, as the next start of the program does.
  void startAgain(QSettings& settings) {
    ASSERT_TRUE(window().close());
    office.show(ufficio::screenClasses());
    window().keepStateIn(settings);
    see();
  }
};

TEST_F(OfficeWindow, FitsOnASmallScreen) {
  EXPECT_LE(window().width(), 1366);
  EXPECT_LE(window().height(), 720) << "with what the desktop itself takes, 768";
  EXPECT_LE(window().minimumSizeHint().width(), 1024);
  window().resize(1366, 720);
  for (const ufficio::ScreenClass& made : ufficio::screenClasses()) {
    choose(made.name);
    ASSERT_TRUE(window().openRecord(ufficio::Found(window().chooser().records().front())));
    see();
    for (Panel* panel : screen().panels()) {
      const QWidget& widget = office.platform.widgetOf(panel->surface());
      if (!widget.isVisible() || widget.visibleRegion().isEmpty()) continue;
      EXPECT_GE(widget.visibleRegion().boundingRect().width(), widget.width()) << made.name;
    }
  }
}

/// The roles of a widget's text and of what it stands on.
std::pair<QPalette::ColorRole, QPalette::ColorRole> rolesOf(const QWidget& widget) {
  if (qobject_cast<const QLineEdit*>(&widget) != nullptr) return {QPalette::Text, QPalette::Base};
  if (qobject_cast<const QPushButton*>(&widget) != nullptr) return {QPalette::ButtonText, QPalette::Button};
  if (qobject_cast<const QComboBox*>(&widget) != nullptr) return {QPalette::ButtonText, QPalette::Button};
  return {QPalette::WindowText, QPalette::Window};
}

int meanGrey(const QImage& picture) {
  long long sum = 0;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) sum += qGray(picture.pixel(x, y));
  }
  return static_cast<int>(sum / (static_cast<long long>(picture.width()) * picture.height()));
}

TEST_F(OfficeWindow, CanBeReadInLightAndInDarkColours) {
  for (const bool on : {false, true}) {
    dark(on);
    for (const ufficio::ScreenClass& made : ufficio::screenClasses()) {
      choose(made.name);
      ASSERT_TRUE(window().openRecord(ufficio::Found(window().chooser().records().front())));
      ASSERT_EQ(window().edit(), screen().editable());
      see();
      const int grey = meanGrey(window().grab().toImage());
      EXPECT_TRUE(on ? grey < 90 : grey > 180) << made.name << ' ' << grey;
      int texts = 0;
      for (const QWidget* widget : window().findChildren<QWidget*>()) {
        if (!widget->isVisible()) continue;
        const auto [text, back] = rolesOf(*widget);
        // The window's own commands that cannot be given are pale.
        const auto group = widget->isEnabled() || !isInPanel(*widget) ? QPalette::Active : QPalette::Disabled;
        const QPalette& palette = widget->palette();
        EXPECT_GE(qt::contrast(palette.color(group, text), palette.color(group, back)), qt::kReadable)
            << made.name << ' ' << widget->metaObject()->className() << ' ' << widget->objectName().toStdString();
        texts += isInPanel(*widget) ? 1 : 0;
      }
      EXPECT_GE(texts, 4) << made.name;
      ASSERT_TRUE(window().cancel() || !screen().editable());
    }
    const QPalette& list = window().findChild<QListWidget*>("record")->palette();
    EXPECT_GE(qt::contrast(list.color(QPalette::Text), list.color(QPalette::Base)), qt::kReadable);
    // The light one is the desktop's own.
    EXPECT_GE(qt::contrast(list.color(QPalette::HighlightedText), list.color(QPalette::Highlight)),
              on ? qt::kReadable : 3.0);
  }
}

TEST_F(OfficeWindow, IsTheNextTimeAsItWasLeft) {
  QSettings settings(qt::shown(sample.beside("stato.ini")), QSettings::IniFormat);
  const QPoint firstPlace = window().pos();
  window().keepStateIn(settings);
  window().resize(780, 560);
  window().move(13, 27);
  ASSERT_NE(window().pos(), firstPlace);
  auto* sides = window().findChild<QSplitter*>();
  const QList<int> usual = sides->sizes();
  sides->setSizes({usual.front() + 30, usual.back() - 30});
  const QList<int> pulled = sides->sizes();
  ASSERT_NE(pulled, usual);
  choose("rami");
  dark(true);
  startAgain(settings);
  EXPECT_EQ(window().size(), QSize(780, 560));
  EXPECT_EQ(window().pos(), QPoint(13, 27));
  EXPECT_EQ(window().findChild<QSplitter*>()->sizes(), pulled);
  EXPECT_EQ(window().windowTitle(), "[*]Rami – Ufficio");
  EXPECT_EQ(window().findChild<QListWidget*>("schermate")->currentRow(), static_cast<int>(numberOf("rami")));
  EXPECT_TRUE(window().findChild<QAction*>("scuro")->isChecked());
  EXPECT_TRUE(screen().key().empty());
}

TEST_F(OfficeWindow, BeginsAnewWhereWhatItKeptIsDamaged) {
  office_test::writeFile(sample.beside("stato.ini"),
                         "[finestra]\nposizione=xyz\nparti=@ByteArray(\\x1)\nschermata=nessuna\nscuro=boh\n\x01\x02[");
  QSettings settings(qt::shown(sample.beside("stato.ini")), QSettings::IniFormat);
  startAgain(settings);
  EXPECT_EQ(window().findChild<QListWidget*>("schermate")->currentRow(), 0);
  EXPECT_TRUE(window().isVisible());
  open("22  ");
  EXPECT_EQ(field("TxtCodice").text(), "22");
}

TEST_F(OfficeWindow, KeepsNothingWhereTheOperatorStays) {
  QSettings settings(qt::shown(sample.beside("stato.ini")), QSettings::IniFormat);
  window().keepStateIn(settings);
  open("22  ");
  edit();
  write("7");
  window().askBy([](const QString& /*record*/) { return ufficio::Unsaved::Stay; });
  EXPECT_FALSE(window().close());
  EXPECT_TRUE(settings.allKeys().isEmpty());
}

TEST_F(OfficeWindow, ReadsAgainByCommand) {
  open("22  ");
  sample.write("UPDATE TIPI_IVA SET DESCRIZIONE = 'Terza' WHERE COD_IVA = 22");
  press(Qt::Key_F5);
  EXPECT_EQ(field("txtDescrizione").text(), "Terza");
  EXPECT_EQ(window().windowTitle(), "22  Terza[*] – Codici IVA – Ufficio");
}

/// A second window on the same database, with a connection of its own, beside the first.
class OfficeTwoWindows : public AtWindow {
 public:
  OfficeTwoWindows() {
    other.askBy([](const QString& record) {
      ADD_FAILURE() << "asks about " << record.toStdString();
      return ufficio::Unsaved::Stay;
    });
    other.chooseScreen(0);
    other.show();
    goTo(office.window.get());
  }
  static void goTo(QWidget* window) {
    QApplication::setActiveWindow(window);
    see();
  }
  void openIn(ufficio::Window& in, const std::string& text) {
    const auto records = in.chooser().records();
    const auto found = std::ranges::find_if(records, [&](const auto& record) { return record.text.starts_with(text); });
    ASSERT_NE(found, records.end());
    ASSERT_TRUE(in.openRecord(ufficio::Found(*found)));
    see();
  }
  QString shownIn(ufficio::Window& in, const char* name) {
    const toolkit::Widget& its = in.screen()->panels().front()->surface().widget(name);
    return dynamic_cast<QLineEdit&>(*office.platform.widgetOf(its)).text();
  }

  ufficio::Store otherStore{sample.file()};
  ufficio::Window other{office.platform, otherStore, ufficio::screenClasses()};
};

TEST_F(OfficeTwoWindows, SeeEachOthersSavedRows) {
  openIn(other, "22  ");
  openIn(window(), "22  ");
  goTo(&window());
  edit();
  press(Qt::Key_Return);
  enter("altra");
  save();
  ASSERT_EQ(sample.line(kOrdinaryCode), "22|ALTRA|22|100");
  EXPECT_EQ(shownIn(other, "txtDescrizione"), "Aliquota ordinaria") << "until the operator comes to it";
  goTo(&other);
  EXPECT_EQ(shownIn(other, "txtDescrizione"), "ALTRA");
  EXPECT_EQ(other.windowTitle(), "22  ALTRA[*] – Codici IVA – Ufficio");
  EXPECT_TRUE(
      std::ranges::any_of(other.chooser().records(), [](const auto& found) { return found.text == "22  ALTRA"; }));
  // And back.
  ASSERT_TRUE(other.edit());
  press(Qt::Key_Return);
  enter("terza");
  ASSERT_TRUE(other.save());
  goTo(&window());
  EXPECT_EQ(field("txtDescrizione").text(), "TERZA");
}

TEST_F(OfficeTwoWindows, SeeAfterTheirOwnWorkWhatTheOtherSavedMeanwhile) {
  openIn(window(), "22  ");
  goTo(&window());
  edit();
  openIn(other, "50  ");
  goTo(&other);
  ASSERT_TRUE(other.edit());
  press(Qt::Key_Return);
  enter("altra");
  ASSERT_TRUE(other.save());
  goTo(&window());
  EXPECT_TRUE(window().editing());
  press(Qt::Key_Escape);
  goTo(&other);
  goTo(&window());
  EXPECT_TRUE(
      std::ranges::any_of(window().chooser().records(), [](const auto& found) { return found.text == "50  ALTRA"; }));
}

TEST_F(OfficeTwoWindows, NeverWriteOverEachOther) {
  openIn(other, "22  ");
  goTo(&other);
  ASSERT_TRUE(other.edit());
  press(Qt::Key_Return);
  enter("dell'altra");
  openIn(window(), "22  ");
  goTo(&window());
  edit();
  press(Qt::Key_Return);
  enter("prima");
  save();
  EXPECT_EQ(sample.line(kOrdinaryCode), "22|PRIMA|22|100");
  goTo(&other);
  EXPECT_EQ(shownIn(other, "txtDescrizione"), "DELL'ALTRA") << "what is being typed stays";
  EXPECT_FALSE(other.save());
  EXPECT_THAT(other.notice().toStdString(),
              HasSubstr("nel frattempo il record è stato modificato o eliminato da altri"));
  EXPECT_EQ(shownIn(other, "txtDescrizione"), "DELL'ALTRA");
  EXPECT_EQ(sample.line(kOrdinaryCode), "22|PRIMA|22|100");
  other.askBy([](const QString& /*record*/) { return ufficio::Unsaved::Discard; });
  EXPECT_TRUE(other.cancel());
  EXPECT_EQ(shownIn(other, "txtDescrizione"), "PRIMA");
}

}  // namespace
}  // namespace qvn::test
