#include "hosts/ufficio/journal/journal_file.h"

#include <QPdfWriter>
#include <QSaveFile>
#include <algorithm>

#include "hosts/ufficio/store_failure.h"
#include "platforms/qt/texts.h"

namespace qvn::ufficio::journal {

namespace {

[[noreturn]] void fail(const QSaveFile& file) {
  throw StoreFailure("il file " + qt::utf8(file.fileName()) + " non si può scrivere", qt::utf8(file.errorString()));
}

/// False if it was stopped.
bool drawPages(QPdfWriter& paper, QPainter& painter, JournalPages& pages, std::size_t all, const LineAt& lineAt,
               const Progress& goesOn) {
  std::vector<PrintedLine> lines;
  lines.reserve(JournalPages::kLinesAPage);
  std::size_t place = 0;
  for (std::size_t page = 0; page < pages.count(); ++page) {
    if (!goesOn(place, all)) return false;
    if (page > 0) paper.newPage();
    lines.clear();
    for (const std::size_t end = std::min(place + JournalPages::kLinesAPage, all); place < end; ++place) {
      lines.push_back(lineAt(place));
    }
    pages.draw(painter, lines);
  }
  return goesOn(all, all);
}

}  // namespace

bool writeJournal(const std::string& file, const PrintedJournal& journal, const Balance& carried, const LineAt& lineAt,
                  const Progress& goesOn) {
  QSaveFile saved(qt::shown(file));
  if (!saved.open(QIODevice::WriteOnly)) fail(saved);
  {
    QPdfWriter paper(&saved);
    paper.setResolution(JournalPages::kDotsAnInch);
    paper.setPageSize(QPageSize(QPageSize::A4));
    paper.setPageMargins(QMarginsF());
    paper.setTitle("Libro giornale");
    paper.setCreator("qvn-ufficio");
    QPainter painter;
    if (!painter.begin(&paper)) fail(saved);
    JournalPages pages(journal, carried);
    if (!drawPages(paper, painter, pages, journal.lines, lineAt, goesOn)) return false;
  }
  if (!saved.commit()) fail(saved);
  return true;
}

}  // namespace qvn::ufficio::journal
