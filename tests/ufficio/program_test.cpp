// The program from its command line.
#include <QImage>
#include <cstdlib>
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>
#include <set>
#include <string>
#include <sys/wait.h>

#include "hosts/ufficio/register.h"
#include "tests/office/office.h"

namespace qvn::test {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

std::string inQuotes(std::string_view text) { return std::string("'").append(text).append("'"); }

/// Runs it with arguments as the shell reads them.
office_test::Answer ufficio(std::string_view arguments, std::string_view before = {}) {
  const office_test::Folder answers;
  std::string command(before);
  command.append(" '" QVN_UFFICIO "' ").append(arguments);
  command.append(" >").append(inQuotes(answers.file("output"))).append(" 2>").append(inQuotes(answers.file("errors")));
  const int status = std::system(command.c_str());
  return {WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status),
          office_test::contentsOf(answers.file("output")), office_test::contentsOf(answers.file("errors"))};
}

/// Runs it on a display that is not seen, with an operator who presses these keys.
office_test::Answer operated(std::string_view arguments, std::string_view keys) {
  std::string before = "timeout 20 env QT_QPA_PLATFORM=offscreen QT_PLUGIN_PATH=" + inQuotes(QVN_PLUGINS);
  before.append(" QT_QPA_GENERIC_PLUGINS=").append(inQuotes(std::string("qvn-keys:").append(keys)));
  return ufficio(arguments, before);
}

std::string picturing(const std::string& database, const std::string& folder) {
  return inQuotes(database).append(" --picture ").append(inQuotes(folder));
}

std::size_t coloursOf(const QImage& picture) {
  std::set<QRgb> colours;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) colours.insert(picture.pixel(x, y));
  }
  return colours.size();
}

TEST(OfficeProgram, WritesAPictureOfEachScreen) {
  const office_test::Folder folder;
  ASSERT_EQ(office_test::campione(inQuotes(folder.file("ufficio.db"))).status, 0);
  const std::string pictures = folder.file("figure");
  const office_test::Answer run = ufficio(picturing(folder.file("ufficio.db"), pictures));
  EXPECT_EQ(run.status, 0) << run.errors;
  std::map<std::string, QImage> seen;
  for (const ufficio::ScreenClass& made : ufficio::screenClasses()) {
    const std::string file = std::string(pictures).append("/").append(made.name).append(".png");
    const QImage picture(QString::fromStdString(file), "PNG");
    EXPECT_GE(coloursOf(picture), 50U) << file;
    for (const auto& [other, its] : seen) EXPECT_NE(picture, its) << file << " is like " << other;
    seen.emplace(file, picture);
  }
}

TEST(OfficeProgram, PicturesInDarkColours) {
  const office_test::Folder folder;
  ASSERT_EQ(office_test::campione(inQuotes(folder.file("ufficio.db"))).status, 0);
  const office_test::Answer run = ufficio(picturing(folder.file("ufficio.db"), folder.file("figure")) + " --dark");
  EXPECT_EQ(run.status, 0) << run.errors;
  const QImage picture(QString::fromStdString(folder.file("figure/iva.png")), "PNG");
  ASSERT_FALSE(picture.isNull());
  EXPECT_LT(qGray(picture.pixel(picture.width() - 3, picture.height() / 2)), 90);
}

TEST(OfficeProgram, FindsTheNextTimeWhatItKeptInTheFileThatItIsTold) {
  const office_test::Folder folder;
  ASSERT_EQ(office_test::campione(inQuotes(folder.file("ufficio.db"))).status, 0);
  const std::string state = folder.file("stato.ini");
  const std::string arguments = inQuotes(folder.file("ufficio.db")) + " --state " + inQuotes(state);
  const auto kept = [&](const std::string& options, std::string_view keys) {
    const office_test::Answer run = operated(arguments + options, keys);
    EXPECT_EQ(run.status, 0) << run.errors;
    return office_test::contentsOf(state);
  };
  EXPECT_THAT(kept("", "F6 End Ctrl+Shift+D Ctrl+Q"), HasSubstr("schermata=rami\nscuro=true\n"));
  EXPECT_THAT(kept("", "Ctrl+Q"), HasSubstr("schermata=rami\nscuro=true\n")) << "it began as it had ended";
  EXPECT_THAT(kept(" --screen iva", "Ctrl+Shift+D Ctrl+Q"), HasSubstr("schermata=iva\nscuro=false\n"));
}

TEST(OfficeProgram, TellsOfScreensWithoutRecordsToPicture) {
  const office_test::Folder folder;
  const office_test::Answer run = ufficio(picturing(folder.file("manca.db"), folder.file("figure")));
  EXPECT_EQ(run.status, 1);
  EXPECT_THAT(run.errors, HasSubstr("iva: no record to show"));
}

TEST(OfficeProgram, TellsOfAWrongCommandLine) {
  for (const char* wrong :
       {"--schermo", "--screen", "--state", "--screen NESSUNA", "--picture", "--picture ''", "a.db b.db", "''"}) {
    const office_test::Answer run = ufficio(wrong, "QT_QPA_PLATFORM=offscreen");
    EXPECT_EQ(run.status, 2) << wrong;
    EXPECT_THAT(run.errors, HasSubstr("usage: qvn-ufficio")) << wrong;
  }
}

TEST(OfficeProgram, TellsItsUse) {
  const office_test::Answer run = ufficio("--help");
  EXPECT_EQ(run.status, 0);
  EXPECT_THAT(run.output, StartsWith("usage: qvn-ufficio"));
  EXPECT_THAT(run.errors, IsEmpty());
}

TEST(OfficeProgram, TellsThatThereIsNoDisplay) {
  const office_test::Answer run = ufficio("", "env -u DISPLAY -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM");
  EXPECT_EQ(run.status, 3);
  EXPECT_THAT(run.errors, HasSubstr("no display"));
}

TEST(OfficeProgram, TellsThatTheDisplayIsDead) {
  const office_test::Answer run = ufficio("", "env -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM DISPLAY=:4711");
  EXPECT_EQ(run.status, 3);
  EXPECT_THAT(run.errors, HasSubstr("qvn-ufficio: there is no display to open a window on."));
}

}  // namespace
}  // namespace qvn::test
