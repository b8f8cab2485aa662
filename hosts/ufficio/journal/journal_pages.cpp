#include "hosts/ufficio/journal/journal_pages.h"

#include <QFontMetrics>
#include <algorithm>
#include <array>

#include "platforms/qt/texts.h"

namespace qvn::ufficio::journal {

namespace {

using qt::shown;

/// Tenths of a millimetre on the sheet.
constexpr int kLeft = 150;
constexpr int kWidth = 1800;
constexpr int kTitle = 130;
constexpr int kHeads = 290;
constexpr int kRow = 60;
constexpr int kLine = 80;
constexpr int kFirstLine = kHeads + 2 * kRow;
constexpr int kEnd = kFirstLine + static_cast<int>(JournalPages::kLinesAPage) * kLine;
constexpr int kFoot = 2800;
constexpr int kPadding = 10;

constexpr int kThin = 1;
constexpr int kThick = 4;

struct Column {
  int left;
  int width;
  const char* head;
  int align;
};

constexpr std::array kColumns{
    Column{0, 130, "N.", Qt::AlignRight},       Column{130, 150, "Rif.", Qt::AlignRight},
    Column{280, 220, "Data", Qt::AlignHCenter}, Column{500, 740, "Conto e descrizione", Qt::AlignLeft},
    Column{1240, 280, "DARE", Qt::AlignRight},  Column{1520, 280, "AVERE", Qt::AlignRight},
};
enum ColumnOf : std::size_t { kNumber, kReference, kDay, kText, kDebit, kCredit };

QFont fontOf(double points, bool bold = false) {
  QFont font;
  font.setPointSizeF(points);
  font.setBold(bold);
  return font;
}

class Sheet {
 public:
  explicit Sheet(QPainter& painter) : painter_(painter) {}

  void rule(int y, int width) {
    painter_.setPen(QPen(Qt::black, width));
    painter_.drawLine(kLeft, y, kLeft + kWidth, y);
  }
  void text(const QRect& place, int align, const QString& text, const QFont& font) {
    painter_.setFont(font);
    painter_.setPen(Qt::black);
    painter_.drawText(place, align | Qt::AlignVCenter | Qt::TextSingleLine,
                      QFontMetrics(font, painter_.device()).elidedText(text, Qt::ElideRight, place.width()));
  }
  void cell(std::size_t column, int y, int height, const QString& its, const QFont& font) {
    const Column& of = kColumns.at(column);
    text({kLeft + of.left + kPadding, y, of.width - 2 * kPadding, height}, of.align, its, font);
  }
  void sums(int y, const QString& caption, const Balance& balance) {
    const QFont font = fontOf(8, true);
    cell(kText, y, kRow, caption, font);
    cell(kDebit, y, kRow, shown(shownAmount(balance.debit)), font);
    cell(kCredit, y, kRow, shown(shownAmount(balance.credit)), font);
  }
  /// Across the sheet, so that nobody takes a trial for the journal.
  void mark(const QString& word) {
    constexpr QPoint kMiddle(1050, 1485);
    constexpr double kTurn = -55;
    painter_.save();
    painter_.translate(kMiddle);
    painter_.rotate(kTurn);
    painter_.setFont(fontOf(120, true));
    painter_.setPen(QColor(236, 236, 236));
    painter_.drawText(QRect(-1500, -400, 3000, 800), Qt::AlignCenter, word);
    painter_.restore();
  }

 private:
  QPainter& painter_;
};

void drawHead(Sheet& sheet, const PrintedJournal& journal) {
  if (!journal.definitive) sheet.mark("PROVA");
  constexpr int kSecond = kTitle + 75;
  sheet.text({kLeft, kTitle, kWidth / 2, 70}, Qt::AlignLeft, "LIBRO GIORNALE", fontOf(14, true));
  sheet.text({kLeft + kWidth / 2, kTitle, kWidth / 2, 70}, Qt::AlignRight,
             journal.definitive ? "Stampa definitiva" : "Stampa di prova", fontOf(10, true));
  sheet.text({kLeft, kSecond, kWidth / 2, 50}, Qt::AlignLeft,
             QString("Periodo dal %1 al %2").arg(shown(journal.from), shown(journal.to)), fontOf(9));
  sheet.text({kLeft + kWidth / 2, kSecond, kWidth / 2, 50}, Qt::AlignRight, QString("Righe: %1").arg(journal.lines),
             fontOf(9));
  sheet.rule(kHeads, kThick);
  for (std::size_t column = 0; column < kColumns.size(); ++column) {
    sheet.cell(column, kHeads, kRow, QString::fromUtf8(kColumns.at(column).head), fontOf(8, true));
  }
  sheet.rule(kHeads + kRow, kThick);
}

void drawLine(Sheet& sheet, int y, const PrintedLine& line) {
  const QFont font = fontOf(8);
  sheet.cell(kNumber, y, kLine / 2, QString::number(line.number), font);
  sheet.cell(kReference, y, kLine / 2, shown(line.reference), font);
  sheet.cell(kDay, y, kLine / 2, shown(line.day), font);
  sheet.cell(kText, y, kLine / 2, shown(line.account), font);
  sheet.cell(kText, y + kLine / 2 - 5, kLine / 2, shown(line.description), fontOf(7));
  sheet.cell(line.side == "D" ? kDebit : kCredit, y, kLine / 2, shown(shownAmount(line.amount)), font);
  sheet.rule(y + kLine, kThin);
}

}  // namespace

std::size_t JournalPages::count() const {
  return std::max<std::size_t>((journal_.lines + kLinesAPage - 1) / kLinesAPage, 1);
}

void JournalPages::draw(QPainter& painter, std::span<const PrintedLine> lines) {
  Sheet sheet(painter);
  drawHead(sheet, journal_);
  sheet.sums(kHeads + kRow, "Riporto", sums_);
  sheet.rule(kFirstLine, kThin);
  int y = kFirstLine;
  for (const PrintedLine& line : lines) {
    drawLine(sheet, y, line);
    sums_.add(line.side, line.amount);
    y += kLine;
  }
  ++drawn_;
  sheet.rule(kEnd, kThick);
  sheet.sums(kEnd, drawn_ < count() ? "A riportare" : "Totale", sums_);
  sheet.rule(kEnd + kRow, kThick);
  sheet.text({kLeft, kFoot, kWidth, 50}, Qt::AlignHCenter, QString("Pagina %1 di %2").arg(drawn_).arg(count()),
             fontOf(8));
}

}  // namespace qvn::ufficio::journal
