// Where a record cannot be stored, and where changes might be lost.
#include <QAbstractButton>
#include <QLabel>
#include <QMessageBox>
#include <QTimer>
#include <QToolButton>
#include <algorithm>
#include <filesystem>

#include "tests/ufficio/at_window.h"

namespace qvn::test {
namespace {

using testing::HasSubstr;
using ufficio::Unsaved;

constexpr const char* kCode22 = "SELECT * FROM TIPI_IVA WHERE COD_IVA = 22";
constexpr const char* kAsItWas = "22|Aliquota ordinaria|22|100";

class OfficeSaving : public AtWindow {
 public:
  /// Opens code 22 and types another description.
  void change() {
    open("22  ");
    edit();
    press(Qt::Key_Return);
    enter("altra");
    ASSERT_TRUE(window().isWindowModified());
  }
  void expectTypedStays() {
    EXPECT_EQ(field("txtDescrizione").text(), "ALTRA");
    EXPECT_TRUE(window().editing());
    EXPECT_TRUE(window().isWindowModified());
    EXPECT_TRUE(field("txtDescrizione").isEnabled());
    EXPECT_EQ(focused(), "TxtIVA") << "the field that was left to store";
  }
  /// Answers every question so, and counts them.
  void answer(Unsaved answer) {
    window().askBy([this, answer](const QString& record) {
      EXPECT_EQ(record, "22  Aliquota ordinaria");
      ++asked;
      return answer;
    });
  }

  int asked = 0;
};

TEST_F(OfficeSaving, KeepsWhatWasTypedWhileAnotherProgramWrites) {
  change();
  {
    const Writer other(sample.file());
    save();
    EXPECT_THAT(notice().toStdString(), HasSubstr("Il record non è stato salvato: il database è occupato"));
    expectTypedStays();
  }
  EXPECT_EQ(sample.line(kCode22), kAsItWas);
  save();
  EXPECT_EQ(sample.line(kCode22), "22|ALTRA|22|100");
}

TEST_F(OfficeSaving, NeverWritesOverAnothersChange) {
  change();
  // Of a column that was not typed into.
  sample.write("UPDATE TIPI_IVA SET IVA = 21 WHERE COD_IVA = 22");
  save();
  EXPECT_THAT(notice().toStdString(), HasSubstr("nel frattempo il record è stato modificato o eliminato da altri"));
  expectTypedStays();
  EXPECT_EQ(sample.line(kCode22), "22|Aliquota ordinaria|21|100");
}

TEST_F(OfficeSaving, KeepsWhatWasTypedIntoARecordThatIsGone) {
  change();
  sample.write("DELETE FROM TIPI_IVA WHERE COD_IVA = 22");
  save();
  EXPECT_THAT(notice().toStdString(), HasSubstr("eliminato da altri"));
  expectTypedStays();
  EXPECT_EQ(sample.rows(kCode22).size(), 0U);
}

TEST_F(OfficeSaving, TellsOfACodeThatIsTaken) {
  open("22  ");
  edit();
  enter("20");
  save();
  EXPECT_THAT(notice().toStdString(), HasSubstr("un codice che esiste già"));
  EXPECT_EQ(field("TxtCodice").text(), "20");
  EXPECT_EQ(sample.line(kCode22), kAsItWas);
}

TEST_F(OfficeSaving, TellsOfAValueThatIsMissing) {
  open("22  ");
  edit();
  press(Qt::Key_A, Qt::ControlModifier);
  press(Qt::Key_Delete);
  EXPECT_TRUE(window().isWindowModified());
  save();
  EXPECT_THAT(notice().toStdString(),
              HasSubstr("Il record non è stato salvato: campo «Codice», un valore manca o non è valido."));
  EXPECT_EQ(focused(), "TxtCodice");
  EXPECT_EQ(sample.line(kCode22), kAsItWas);
}

TEST_F(OfficeSaving, ClosesWithoutAQuestionWhereNothingWasChanged) {
  open("22  ");
  edit();
  EXPECT_TRUE(window().close());
}

TEST_F(OfficeSaving, SaysSoWhereThereWasNothingToStore) {
  open("22  ");
  edit();
  save();
  EXPECT_EQ(notice(), "Il record è com'era: non c'era nulla da salvare.");
  EXPECT_FALSE(window().editing());
}

TEST_F(OfficeSaving, LeavesNoMessageOfAnEditingThatIsGivenUp) {
  open("22  ");
  edit();
  EXPECT_EQ(notice(), "Modifica in corso.");
  press(Qt::Key_Escape);
  EXPECT_EQ(notice(), "");
  edit();
  enter("20");
  save();
  ASSERT_THAT(notice().toStdString(), HasSubstr("un codice che esiste già"));
  answer(Unsaved::Discard);
  press(Qt::Key_Escape);
  EXPECT_EQ(notice(), "");
  EXPECT_EQ(field("TxtCodice").text(), "22");
}

TEST_F(OfficeSaving, AsksBeforeItClosesAndStays) {
  change();
  answer(Unsaved::Stay);
  EXPECT_FALSE(window().close());
  EXPECT_TRUE(window().isVisible());
  EXPECT_EQ(asked, 1);
  expectTypedStays();
}

TEST_F(OfficeSaving, AsksBeforeItClosesAndSaves) {
  change();
  answer(Unsaved::Save);
  EXPECT_TRUE(window().close());
  EXPECT_EQ(asked, 1);
  EXPECT_EQ(sample.line(kCode22), "22|ALTRA|22|100");
}

TEST_F(OfficeSaving, AsksBeforeItClosesAndGivesUp) {
  change();
  answer(Unsaved::Discard);
  EXPECT_TRUE(window().close());
  EXPECT_EQ(asked, 1);
  EXPECT_EQ(sample.line(kCode22), kAsItWas);
}

TEST_F(OfficeSaving, DoesNotCloseWhereItCannotSave) {
  change();
  answer(Unsaved::Save);
  sample.write("UPDATE TIPI_IVA SET IVA = 21 WHERE COD_IVA = 22");
  EXPECT_FALSE(window().close());
  expectTypedStays();
}

TEST_F(OfficeSaving, AsksBeforeAnotherRecord) {
  change();
  answer(Unsaved::Stay);
  press(Qt::Key_F, Qt::ControlModifier);
  write("telefonia");
  press(Qt::Key_Return);
  EXPECT_EQ(asked, 1);
  EXPECT_EQ(field("txtDescrizione").text(), "ALTRA");
  EXPECT_TRUE(window().editing());
  answer(Unsaved::Discard);
  press(Qt::Key_F, Qt::ControlModifier);
  press(Qt::Key_Return);
  EXPECT_EQ(asked, 2);
  EXPECT_EQ(field("TxtCodice").text(), "50");
  EXPECT_FALSE(window().editing());
  EXPECT_EQ(sample.line(kCode22), kAsItWas);
}

TEST_F(OfficeSaving, GoesBackInTheListWhereTheOperatorStays) {
  change();
  answer(Unsaved::Stay);
  window().findChild<QLineEdit*>("filtro")->clear();
  auto& list = *window().findChild<QListWidget*>("record");
  const int its = list.currentRow();
  ASSERT_EQ(list.item(its)->text(), "22  Aliquota ordinaria");
  list.setFocus();
  press(Qt::Key_Down);
  press(Qt::Key_Return);
  EXPECT_EQ(asked, 1);
  EXPECT_EQ(list.currentRow(), its);
  expectTypedStays();
}

TEST_F(OfficeSaving, AsksBeforeAnotherScreenAndGoesBackInTheList) {
  change();
  answer(Unsaved::Stay);
  choose("provvigioni");
  EXPECT_EQ(asked, 1);
  EXPECT_EQ(window().findChild<QListWidget*>("schermate")->currentRow(), static_cast<int>(numberOf("iva")));
  expectTypedStays();
}

TEST_F(OfficeSaving, ShowsTheRecordAsItIsOnComingBackToAScreen) {
  change();
  answer(Unsaved::Discard);
  choose("provvigioni");
  sample.write("UPDATE TIPI_IVA SET IVA = 21 WHERE COD_IVA = 22");
  choose("iva");
  EXPECT_EQ(notice(), "");
  EXPECT_EQ(field("txtDescrizione").text(), "Aliquota ordinaria");
  EXPECT_EQ(field("TxtIVA").text(), "21");
}

TEST_F(OfficeSaving, GivesChangesUpByCommand) {
  change();
  answer(Unsaved::Discard);
  press(Qt::Key_Escape);
  EXPECT_EQ(asked, 1);
  EXPECT_FALSE(window().editing());
  EXPECT_EQ(field("txtDescrizione").text(), "Aliquota ordinaria");
  edit();
  press(Qt::Key_Escape);
  EXPECT_EQ(asked, 1) << "nothing was changed";
  EXPECT_FALSE(window().editing());
}

TEST_F(OfficeSaving, StoresByTheMouse) {
  change();
  write("5");
  for (QToolButton* button : window().findChildren<QToolButton*>()) {
    if (button->defaultAction() == window().findChild<QAction*>("salva")) {
      QTest::mouseClick(button, Qt::LeftButton);
    }
  }
  see();
  EXPECT_EQ(sample.line(kCode22), "22|ALTRA|5|100");
  EXPECT_FALSE(window().editing());
}

TEST_F(OfficeSaving, GoesBackToTheFieldWhereTheSameRecordIsChosen) {
  change();
  press(Qt::Key_F, Qt::ControlModifier);
  press(Qt::Key_Return);
  EXPECT_TRUE(window().editing());
  EXPECT_EQ(asked, 0);
  EXPECT_EQ(focused(), "TxtIVA");
  EXPECT_EQ(field("txtDescrizione").text(), "ALTRA");
}

TEST_F(OfficeSaving, TellsOfAHandlersFailureWithFieldAndReason) {
  choose("righe-iva");
  open("12  ");
  edit();
  enter("80");
  enter("0");
  enter("50");
  EXPECT_THAT(notice().toStdString(), HasSubstr("Campo «IVA», tasto premuto: c'è una divisione per zero."));
  EXPECT_THAT(window().findChild<QLabel*>("testo")->toolTip().toStdString(), HasSubstr("50 divided by a rate of 0"));
}

TEST_F(OfficeSaving, TellsThatItHasStoredWhatItCannotShow) {
  change();
  sample.write(
      "CREATE TRIGGER altri AFTER UPDATE ON TIPI_IVA BEGIN "
      "INSERT INTO TIPI_IVA SELECT 999, new.DESCRIZIONE, new.IVA, new.Deb_Dec; "
      "DELETE FROM TIPI_IVA WHERE COD_IVA = 22; END");
  save();
  EXPECT_EQ(sample.line("SELECT * FROM TIPI_IVA WHERE COD_IVA = 999"), "999|ALTRA|22|100");
  EXPECT_EQ(notice().toStdString(),
            "Il record è stato salvato. Il record non si può mostrare: il record non c'è più: è stato eliminato da "
            "altri.");
  EXPECT_FALSE(window().editing());
  EXPECT_FALSE(field("txtDescrizione").isEnabled());
}

TEST_F(OfficeSaving, ShowsWhatIsStoredWhereChangesWereGivenUpAndTheOtherRecordIsGone) {
  change();
  answer(Unsaved::Discard);
  sample.write("DELETE FROM TIPI_IVA WHERE COD_IVA = 50");
  EXPECT_FALSE(window().openRecord({.key = {std::int64_t{50}}, .text = "50"}));
  EXPECT_EQ(asked, 1);
  EXPECT_THAT(notice().toStdString(), HasSubstr("eliminato da altri"));
  EXPECT_EQ(field("txtDescrizione").text(), "Aliquota ordinaria");
  EXPECT_FALSE(window().editing());
  EXPECT_EQ(window().windowTitle(), "22  Aliquota ordinaria[*] – Codici IVA – Ufficio");
}

TEST_F(OfficeSaving, ShowsNothingThatWasGivenUpWhereTheDatabaseIsGone) {
  change();
  answer(Unsaved::Discard);
  std::filesystem::rename(sample.file(), sample.beside("altrove.db"));
  press(Qt::Key_Escape);
  EXPECT_EQ(asked, 1);
  EXPECT_THAT(notice().toStdString(), HasSubstr("non esiste o non si può aprire"));
  EXPECT_FALSE(window().editing());
  EXPECT_FALSE(field("txtDescrizione").isVisible());
  EXPECT_TRUE(screen().key().empty());
  std::filesystem::rename(sample.beside("altrove.db"), sample.file());
  press(Qt::Key_F5);
  open("22  ");
  EXPECT_TRUE(field("txtDescrizione").isVisible());
  EXPECT_EQ(field("txtDescrizione").text(), "Aliquota ordinaria");
}

constexpr const char* kEnter = "Enter";

/// Escape, Enter, or Space on the button of that caption.
void answerAt(QMessageBox& box, const QString& caption) {
  if (caption.isEmpty()) return QTest::keyClick(&box, Qt::Key_Escape);
  if (caption == kEnter) return QTest::keyClick(&box, Qt::Key_Return);
  for (QAbstractButton* button : box.buttons()) {
    if (button->text() == caption) return QTest::keyClick(button, Qt::Key_Space);
  }
  ADD_FAILURE() << "no button " << caption.toStdString();
  box.reject();
}

/// The questions as the window itself asks them.
class OfficeSavingQuestions : public OfficeSaving {
 public:
  OfficeSavingQuestions() {
    window().askBy([this](const QString& record) { return ufficio::askInWindow(window(), record); });
  }
  /// Gives the changes up by Escape, and answers the question.
  void answerBy(const QString& caption) {
    QTimer::singleShot(0, [this, caption] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      ASSERT_NE(box, nullptr);
      EXPECT_EQ(box->informativeText(), "22  Aliquota ordinaria");
      ++asked;
      answerAt(*box, caption);
    });
    press(Qt::Key_Escape);
    QApplication::setActiveWindow(&window());
    see();
    EXPECT_EQ(asked, 1);
  }
};

TEST_F(OfficeSavingQuestions, GoBackToTheFieldByEscape) {
  change();
  answerBy({});
  expectTypedStays();
  EXPECT_EQ(sample.line(kCode22), kAsItWas);
  window().askBy([](const QString& /*record*/) { return Unsaved::Discard; });
}

TEST_F(OfficeSavingQuestions, GoBackToTheFieldByEnter) {
  change();
  answerBy(kEnter);
  expectTypedStays();
}

TEST_F(OfficeSavingQuestions, GoBackToTheFieldByTheirButton) {
  change();
  answerBy("&Continua a modificare");
  expectTypedStays();
}

TEST_F(OfficeSavingQuestions, StoreByTheirButton) {
  change();
  answerBy("&Salva");
  EXPECT_FALSE(window().editing());
  EXPECT_EQ(sample.line(kCode22), "22|ALTRA|22|100");
}

TEST_F(OfficeSavingQuestions, GiveUpByTheirButton) {
  change();
  answerBy("&Non salvare");
  EXPECT_FALSE(window().editing());
  EXPECT_EQ(field("txtDescrizione").text(), "Aliquota ordinaria");
  EXPECT_EQ(sample.line(kCode22), kAsItWas);
}

TEST_F(OfficeSavingQuestions, DeleteOnlyByTheirButton) {
  open("22  ");
  const auto removeBy = [this](const QString& caption) {
    QTimer::singleShot(0, [this, caption] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      ASSERT_NE(box, nullptr);
      EXPECT_EQ(box->text(), "Eliminare il record «22  Aliquota ordinaria»?");
      ++asked;
      answerAt(*box, caption);
    });
    press(Qt::Key_F8);
    QApplication::setActiveWindow(&window());
    see();
  };
  removeBy({});
  removeBy(kEnter);
  removeBy("&Annulla");
  EXPECT_EQ(asked, 3);
  EXPECT_EQ(sample.line(kCode22), kAsItWas);
  removeBy("&Elimina");
  EXPECT_EQ(asked, 4);
  EXPECT_EQ(sample.rows(kCode22).size(), 0U);
}

/// The letters that the buttons of a question are pressed by.
std::vector<QChar> lettersOf(const QMessageBox& box) {
  std::vector<QChar> letters;
  for (const QAbstractButton* button : box.buttons()) {
    const auto place = button->text().indexOf('&');
    EXPECT_GE(place, 0) << button->text().toStdString();
    letters.push_back(button->text().at(place + 1));
  }
  std::ranges::sort(letters);
  return letters;
}

struct ByLetter {
  Qt::Key key;
  const char* letters;  ///< of all the question's buttons
  bool editing;         ///< afterwards
  const char* stored;
};

class OfficeSavingLetters : public OfficeSavingQuestions, public testing::WithParamInterface<ByLetter> {
 public:
  void pressLetter(bool atQuestionOfRemoval) {
    QTimer::singleShot(0, [this] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      ASSERT_NE(box, nullptr);
      QString letters;
      for (const QChar letter : lettersOf(*box)) letters += letter;
      EXPECT_EQ(letters, GetParam().letters);
      ++asked;
      QApplication::setActiveWindow(box);
      QTest::keyClick(box, GetParam().key, Qt::AltModifier);
      if (QTest::qWaitFor([box] { return !box->isVisible(); })) return;
      ADD_FAILURE() << "the letter does nothing";
      box->reject();
    });
    press(atQuestionOfRemoval ? Qt::Key_F8 : Qt::Key_Escape);
    QApplication::setActiveWindow(&window());
    see();
    EXPECT_EQ(asked, 1);
  }
};

TEST_P(OfficeSavingLetters, PressTheButtonsOfTheQuestions) {
  const bool removal = std::string_view(GetParam().letters) == "AE";
  if (removal) {
    open("22  ");
  } else {
    change();
  }
  pressLetter(removal);
  EXPECT_EQ(window().editing(), GetParam().editing);
  EXPECT_EQ(sample.line(kCode22), GetParam().stored);
}

INSTANTIATE_TEST_SUITE_P(Questions, OfficeSavingLetters,
                         testing::Values(ByLetter{Qt::Key_S, "CNS", false, "22|ALTRA|22|100"},
                                         ByLetter{Qt::Key_N, "CNS", false, kAsItWas},
                                         ByLetter{Qt::Key_C, "CNS", true, kAsItWas},
                                         ByLetter{Qt::Key_A, "AE", false, kAsItWas},
                                         ByLetter{Qt::Key_E, "AE", false, "0 rows"}),
                         [](const auto& by) {
                           return std::string(by.param.letters).append("_").append(1, static_cast<char>(by.param.key));
                         });

class OfficeSavingPercents : public AtWindow {
 public:
  /// Types a percent of the producer's accessories, of which there is nothing: so no amount follows.
  void typePercentOfNothing() {
    choose("provvigioni");
    ASSERT_TRUE(window().openRecord({.key = {std::int64_t{1}, std::string("COSIR")}, .text = "prima"}));
    edit();
    field("TxtP_ACC_PROD").setFocus();
    see();
    enter("7,5");
    ASSERT_EQ(field("TxtACC_PROD").text(), "0,00");
  }
};

TEST_F(OfficeSavingPercents, MarksAPercentOfNothing) {
  typePercentOfNothing();
  EXPECT_TRUE(window().isWindowModified());
}

TEST_F(OfficeSavingPercents, AsksBeforeAPercentOfNothingIsLost) {
  typePercentOfNothing();
  int asked = 0;
  window().askBy([&](const QString& /*record*/) {
    ++asked;
    return Unsaved::Stay;
  });
  EXPECT_FALSE(window().close());
  EXPECT_EQ(asked, 1);
  EXPECT_EQ(field("TxtP_ACC_PROD").text(), "7,50");
}

TEST_F(OfficeSavingPercents, StoresAPercentOfNothingAlone) {
  const std::string before = sample.everything();
  typePercentOfNothing();
  save();
  EXPECT_EQ(notice(), "Il record è stato salvato.");
  EXPECT_EQ(sample.line("SELECT COD_COMP, CALC_PROD, P_ACC_PROD, P_PN_PROD FROM PERCENTUALI_POLIZZE"), "COSIR|2|7.5|0");
  EXPECT_FALSE(window().isWindowModified());
  EXPECT_EQ(field("TxtP_ACC_PROD").text(), "7,50");
  sample.write("DROP TABLE PERCENTUALI_POLIZZE");
  EXPECT_EQ(sample.everything(), before);
}

TEST_F(OfficeSavingPercents, NeverWritesOverAnothersPercents) {
  typePercentOfNothing();
  save();
  edit();
  field("TxtP_PN_UFF").setFocus();
  see();
  write("3");
  sample.write("UPDATE PERCENTUALI_POLIZZE SET P_ACC_PROD = 8");
  save();
  EXPECT_THAT(notice().toStdString(), HasSubstr("nel frattempo il record è stato modificato o eliminato da altri"));
  EXPECT_TRUE(window().editing());
  EXPECT_EQ(sample.line("SELECT P_ACC_PROD, P_PN_UFF FROM PERCENTUALI_POLIZZE"), "8|0");
}

}  // namespace
}  // namespace qvn::test
