#include "hosts/ufficio/help.h"

#include <QAction>
#include <QDialog>
#include <QDialogButtonBox>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTextBrowser>
#include <QVBoxLayout>
#include <algorithm>
#include <array>

namespace qvn::ufficio {

namespace {

struct Text {
  std::string_view screen;
  const char* text;
};

constexpr std::array kTexts{
    Text{"iva",
         "<p>I codici IVA: per ogni codice la descrizione, l'aliquota e la parte deducibile («Ded.»), in percento.</p>"
         "<p><b>Nuovo</b> comincia un codice. Un codice usato da una riga IVA non si può eliminare. Le percentuali "
         "sopra 100 diventano 100.</p>"},
    Text{"provvigioni",
         "<p>La provvigione di una compagnia che partecipa a una polizza, divisa tra l'ufficio, il produttore e il "
         "produttore alternativo.</p>"
         "<p>In alto stanno la quota e i premi che ne seguono. Si scrive una <b>percentuale</b> e l'importo la segue a "
         "ogni tasto. Un <b>importo</b> scritto a mano resta solo dove la percentuale è 0. «Calcola su» dice di che "
         "cosa sono le percentuali di un produttore: dei premi o della provvigione dell'ufficio; quando la si lascia, "
         "gli importi di quel produttore si ricalcolano tutti, e dove la percentuale è 0 diventano 0. Da «Calcola su» "
         "si esce con Tab, da un campo anche con Invio.</p>"
         "<p>I totali e la ritenuta d'acconto si aggiornano quando si lascia un campo. "
         "Si salvano i nove importi e le nove percentuali.</p>"},
    Text{
        "quote-polizze",
        "<p>Le compagnie che partecipano a una polizza, un pannello per ciascuna: la quota in millesimi, la compagnia, "
        "i produttori, il numero che la polizza ha presso la compagnia e la data della rimessa. A destra sta quanto "
        "vale la quota nelle due serie di premi, TAF e TRF.</p>"
        "<p><b>Nuovo</b> aggiunge un partecipante, <b>Elimina</b> toglie quello in cui si scrive; entrambi hanno "
        "effetto quando si salva. Sotto i pannelli sta la somma delle quote.</p>"
        "<p>Nei campi dei codici il tasto <b>?</b> apre l'elenco: quello che è già scritto ne è l'inizio, e con "
        "<b>!</b> davanti l'inizio della descrizione. Invio sceglie, Esc rinuncia.</p>"},
    Text{"quote-sinistri",
         "<p>Le compagnie che partecipano a un sinistro, un pannello per ciascuna: la quota in millesimi, e quanto ne "
         "segue del danno stimato e di quello liquidato.</p>"
         "<p><b>Nuovo</b> aggiunge un partecipante, <b>Elimina</b> toglie quello in cui si scrive; entrambi hanno "
         "effetto quando si salva. Nel campo della compagnia il tasto <b>?</b> apre l'elenco.</p>"},
    Text{"sospesi",
         "<p>I titoli sospesi di una polizza, un pannello per ciascuno. L'elenco di un titolo offre quello che il suo "
         "stato permette di farne; la scelta ha effetto quando si salva.</p>"
         "<p>Può annullare solo chi è autorizzato (menù Operatore); l'annullamento scelto da altri resta in sospeso. I "
         "pulsanti mostrano le compagnie e i produttori del titolo, anche senza Modifica.</p>"},
    Text{"estratti",
         "<p>L'estratto conto di un cliente, un pannello per ogni riga: documento, polizza, date, premio, rimborso e "
         "provvigione.</p>"
         "<p>Nei campi del cliente e del sottoramo il tasto <b>?</b> apre l'elenco. Invio su una data a metà la "
         "completa con il mese e l'anno correnti.</p>"},
    Text{"fidi",
         "<p>I fidi di un cliente: quanto ogni compagnia gli concede e da quando, con la sua esposizione.</p>"
         "<p><b>Nuovo</b> va alla riga vuota, <b>Elimina</b> toglie la riga in cui si scrive; entrambi hanno "
         "effetto quando si salva. Nel campo della compagnia il tasto <b>?</b> apre l'elenco.</p>"},
    Text{
        "ricerca-polizze",
        "<p>Cerca tra le polizze mentre si scrive: numero, cliente, stato. Ogni polizza trovata ha il suo pannello.</p>"
        "<p>Qui non si scrive nulla. Frecce e Pag↑ Pag↓ scorrono i risultati, Inizio e Fine vanno al primo e "
        "all'ultimo; i pulsanti mostrano le compagnie e i produttori.</p>"},
    Text{"ricerca-sinistri",
         "<p>Cerca tra i sinistri mentre si scrive: numero, polizza, cliente, controparte, stato. Ogni sinistro "
         "trovato ha il suo "
         "pannello.</p>"
         "<p>Qui non si scrive nulla. Frecce e Pag↑ Pag↓ scorrono i risultati, Inizio e Fine vanno al primo e "
         "all'ultimo; il pulsante mostra le compagnie.</p>"},
    Text{"righe-iva",
         "<p>La riga IVA di un movimento: codice, imponibile e imposta. Dall'imponibile segue l'imposta; se si scrive "
         "l'imposta, ne segue l'imponibile.</p>"
         "<p>Nel campo del codice il tasto <b>?</b> apre l'elenco delle aliquote.</p>"},
    Text{"prima-nota",
         "<p>Una registrazione di prima nota: le sue righe in dare e in avere e la sua riga IVA. Sotto i pannelli "
         "stanno le due somme e la differenza; si salva solo se sono uguali e ogni riga ha un conto e un importo.</p>"
         "<p><b>Nuovo</b> mostra i tipi di movimento con cui si può cominciare una registrazione. Una riga che si "
         "svuota non si salva. <b>Elimina</b> cancella l'intera registrazione.</p>"
         "<p>Nei campi del mastro e del conto il tasto <b>?</b> apre l'elenco.</p>"},
    Text{"giornale",
         "<p>Il libro giornale di un anno fino all'ultimo giorno che si scrive: i riporti, le righe e i totali. "
         "Con «Definitiva» il file porta la scritta «Stampa definitiva», altrimenti «Stampa di prova».</p>"
         "<p><b>Stampa in PDF</b> scrive il giornale in un file; durante la stampa la si può interrompere, e allora il "
         "file non viene scritto.</p>"},
    Text{"tipi-movimenti",
         "<p>I tipi di movimento della prima nota, con codice e descrizione.</p>"
         "<p><b>Nuovo</b> comincia un tipo. Un tipo usato da una registrazione, o da righe che lo definiscono, "
         "non si può eliminare.</p>"},
    Text{"righe-tipi",
         "<p>Le righe con cui comincia una registrazione di un tipo di movimento: mastro, conto, segno, se la riga si "
         "ripete e se riguarda l'IVA.</p>"
         "<p>Si scrive nelle righe vuote in fondo; una riga che si svuota non si salva. Nei campi del mastro e del "
         "conto il tasto <b>?</b> apre l'elenco.</p>"},
    Text{"stampe-contabili",
         "<p>I codici delle stampe contabili, con la descrizione.</p>"
         "<p><b>Nuovo</b> comincia un codice, <b>Elimina</b> cancella quello che si vede.</p>"},
    Text{"rami",
         "<p>I rami: codice, descrizione, tipo di scheda e competenze.</p>"
         "<p><b>Nuovo</b> comincia un ramo. Un ramo di una polizza, di un sottoramo o di un estratto conto non si può "
         "eliminare.</p>"},
};

constexpr int kWidth = 560;
constexpr int kHeight = 520;

}  // namespace

QString helpOn(std::string_view screen) {
  const auto* const found = std::ranges::find(kTexts, screen, &Text::screen);
  return found == kTexts.end() ? QString() : QString::fromUtf8(found->text);
}

QString keysOf(const QMenuBar& menus) {
  QString rows;
  for (const QAction* menu : menus.actions()) {
    for (const QAction* command : menu->menu()->actions()) {
      if (command->isSeparator()) continue;
      QString tip = command->toolTip();
      tip.truncate(tip.lastIndexOf(" ("));
      rows += QString("<tr><td><b>%1</b>&nbsp;&nbsp;</td><td>%2</td></tr>")
                  .arg(command->shortcut().toString(QKeySequence::NativeText), tip.toHtmlEscaped());
    }
  }
  return QString("<h4>Tasti</h4><table>%1</table>").arg(rows);
}

void showHelp(QWidget& parent, const QString& title, const QString& text) {
  auto* window = new QDialog(&parent);
  window->setObjectName("guida");
  window->setAttribute(Qt::WA_DeleteOnClose);
  window->setWindowTitle(QString("Guida – %1").arg(title));
  auto* page = new QTextBrowser;
  page->setAccessibleName("Guida");
  page->setHtml(QString("<h3>%1</h3>%2").arg(title.toHtmlEscaped(), text));
  auto* buttons = new QDialogButtonBox;
  buttons->addButton("&Chiudi", QDialogButtonBox::RejectRole);
  QObject::connect(buttons, &QDialogButtonBox::rejected, window, &QDialog::reject);
  auto* layout = new QVBoxLayout(window);
  layout->addWidget(page, 1);
  layout->addWidget(buttons);
  window->resize(kWidth, kHeight);
  window->open();
}

}  // namespace qvn::ufficio
