// Registering writes a manifest where it was told to, and nothing else.
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <iterator>
#include <string>
#include <system_error>
#include <vector>

#include "tests/component/component.h"

namespace qvn::component_test {

namespace {

using testing::HasSubstr;

class Manifest : public Component {
 public:
  Manifest() { std::filesystem::create_directories(folder_); }
  ~Manifest() override {
    EXPECT_EQ(QVN_OK, qvn_manifest_path(nullptr));
    std::filesystem::remove_all(folder_);
  }

  std::string path() const { return (folder_ / "qvn.manifest").string(); }
  void tell(const std::string& path) const { EXPECT_EQ(QVN_OK, qvn_manifest_path(path.c_str())); }
  std::string written() const {
    std::ifstream file(path(), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  void put(const std::string& text) const { std::ofstream(path(), std::ios::binary) << text; }
  /// The names of all that is in the manifest's folder.
  std::vector<std::string> inFolder() const {
    std::vector<std::string> names;
    for (const auto& one : std::filesystem::directory_iterator(folder_))
      names.push_back(one.path().filename().string());
    return names;
  }
  bool isThere() const { return std::filesystem::exists(path()); }

 private:
  std::filesystem::path folder_ =
      std::filesystem::path(testing::TempDir()) /
      (std::string("manifest_") + testing::UnitTest::GetInstance()->current_test_info()->name());
};

TEST_F(Manifest, isNotWrittenWhereNoPathWasTold) {
  EXPECT_EQ(QVN_S_FALSE, DllRegisterServer());
  EXPECT_EQ(QVN_S_FALSE, DllUnregisterServer());
  EXPECT_FALSE(isThere());
}

TEST_F(Manifest, isNotWrittenWhereAPathWasTakenBack) {
  tell(path());
  EXPECT_EQ(QVN_OK, qvn_manifest_path(nullptr));
  EXPECT_EQ(QVN_S_FALSE, DllRegisterServer());
  EXPECT_EQ(QVN_S_FALSE, DllUnregisterServer());
  EXPECT_THAT(inFolder(), testing::IsEmpty());
}

TEST_F(Manifest, isTheOneFileThatRegisteringWrites) {
  tell(path());
  ASSERT_EQ(QVN_S_OK, DllRegisterServer());
  EXPECT_THAT(inFolder(), testing::ElementsAre("qvn.manifest"));
}

TEST_F(Manifest, tellsClassesAndMembersInInterfaceOrder) {
  tell(path());
  ASSERT_EQ(QVN_S_OK, DllRegisterServer());
  EXPECT_THAT(written(), HasSubstr("\"version\": \"" QVN_PROJECT_VERSION "\""));
  EXPECT_THAT(written(), HasSubstr("    {\n"
                                   "      \"class\": \"ctlIVA\",\n"
                                   "      \"members\": [\n"
                                   "        {\"name\": \"Codice\", \"kind\": \"get/let\", \"type\": "
                                   "\"8-bit unsigned integer\"},\n"
                                   "        {\"name\": \"Deb_Dec\", \"kind\": \"get/let\", \"type\": "
                                   "\"8-bit unsigned integer\"},\n"
                                   "        {\"name\": \"DESCRIZIONE\", \"kind\": \"get/let\", \"type\": \"text\"},\n"
                                   "        {\"name\": \"Attiva\", \"kind\": \"method\"},\n"
                                   "        {\"name\": \"Disattiva\", \"kind\": \"method\"},\n"
                                   "        {\"name\": \"IVA\", \"kind\": \"get/let\", \"type\": "
                                   "\"8-bit unsigned integer\"}\n"
                                   "      ]\n"
                                   "    },\n"));
  EXPECT_THAT(written(), HasSubstr("{\"name\": \"MancaDB\", \"kind\": \"event\"}"));
  EXPECT_THAT(written(), testing::EndsWith("\n  ]\n}\n"));
}

TEST_F(Manifest, holdsEveryClass) {
  tell(path());
  ASSERT_EQ(QVN_S_OK, DllRegisterServer());
  const char* name = nullptr;
  for (std::int32_t i = 0; qvn_class_at(i, &name) == QVN_OK; ++i) {
    EXPECT_THAT(written(), HasSubstr(std::string("\"class\": \"").append(name).append("\"")));
  }
}

TEST_F(Manifest, takesThePlaceOfAnEarlierOne) {
  tell(path());
  ASSERT_EQ(QVN_S_OK, DllRegisterServer());
  const std::string first = written();
  EXPECT_EQ(QVN_S_OK, DllRegisterServer());
  EXPECT_EQ(first, written());
}

TEST_F(Manifest, staysAsItIsWhereAnotherCannotBeWritten) {
  tell(path());
  ASSERT_EQ(QVN_S_OK, DllRegisterServer());
  const std::string first = written();
  std::filesystem::create_directory(path() + ".part");
  EXPECT_EQ(QVN_SELFREG_E_CLASS, DllRegisterServer());
  EXPECT_THAT(qvn_last_message(), HasSubstr("cannot be written"));
  EXPECT_EQ(first, written());
  EXPECT_TRUE(std::filesystem::exists(path() + ".part"));
  EXPECT_EQ(QVN_S_OK, DllUnregisterServer());
}

TEST_F(Manifest, isRemoved) {
  tell(path());
  ASSERT_EQ(QVN_S_OK, DllRegisterServer());
  EXPECT_EQ(QVN_S_OK, DllUnregisterServer());
  EXPECT_FALSE(isThere());
  EXPECT_EQ(QVN_S_FALSE, DllUnregisterServer());
}

TEST_F(Manifest, leavesOtherFilesAlone) {
  tell(path());
  for (const std::string text : {"", "{\n  \"manifest\": \"another\"}", "the office's own"}) {
    put(text);
    EXPECT_EQ(QVN_SELFREG_E_CLASS, DllRegisterServer());
    EXPECT_THAT(qvn_last_message(), HasSubstr("no manifest"));
    EXPECT_EQ(QVN_SELFREG_E_CLASS, DllUnregisterServer());
    EXPECT_EQ(text, written());
  }
}

TEST_F(Manifest, isNotWrittenThroughALinkThatLeadsNowhere) {
  const std::string target = path() + ".elsewhere";
  std::error_code none;
  std::filesystem::create_symlink(target, path(), none);
  if (none) return;  // where links need a right that few have
  tell(path());
  EXPECT_EQ(QVN_SELFREG_E_CLASS, DllRegisterServer());
  EXPECT_THAT(qvn_last_message(), HasSubstr("no manifest"));
  EXPECT_THAT(inFolder(), testing::ElementsAre("qvn.manifest"));
}

TEST_F(Manifest, isRefusedWhereItCannotBe) {
  tell(path() + ".gone/manifest");
  EXPECT_EQ(QVN_SELFREG_E_CLASS, DllRegisterServer());
  EXPECT_THAT(qvn_last_message(), HasSubstr("cannot be written"));
  tell(std::filesystem::path(path()).parent_path().string());
  EXPECT_EQ(QVN_SELFREG_E_CLASS, DllRegisterServer());
  EXPECT_EQ(QVN_SELFREG_E_CLASS, DllUnregisterServer());
}

}  // namespace

}  // namespace qvn::component_test
