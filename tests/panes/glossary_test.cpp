// The page that lists every control holds what the code holds: names, handlers and verbs.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace vorlund {
namespace {

namespace fs = std::filesystem;

const fs::path kSource = VORLUND_SOURCE_DIR;
const fs::path kHeaders = kSource / "src/panes/include/panes";

std::string content_of(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  EXPECT_TRUE(file) << path;
  std::ostringstream bytes;
  bytes << file.rdbuf();
  return bytes.str();
}

/// Every text between backquotes.
std::vector<std::string> names_in(const std::string& cell) {
  static const std::regex kName("`([^`]*)`");
  std::vector<std::string> names;
  for (std::sregex_iterator at(cell.begin(), cell.end(), kName), end; at != end; ++at)
    names.push_back((*at)[1]);
  return names;
}

struct Row {
  std::string control;
  std::vector<std::string> handlers;
  std::vector<std::string> verbs;
};

std::vector<Row> glossary() {
  static const std::regex kRow(R"(\| [^|]* \| `(\w+)` \| [^|]* \|([^|]*)\|([^|]*)\|)");
  const std::string page = content_of(kSource / "docs/controls.md");
  std::vector<Row> rows;
  for (std::sregex_iterator at(page.begin(), page.end(), kRow), end; at != end; ++at) {
    rows.push_back({(*at)[1], names_in((*at)[2]), names_in((*at)[3])});
  }
  return rows;
}

std::set<std::string> matches(const std::string& text, const std::string& pattern) {
  const std::regex expression(pattern);
  std::set<std::string> found;
  for (std::sregex_iterator at(text.begin(), text.end(), expression), end; at != end; ++at)
    found.insert((*at)[1]);
  return found;
}

TEST(Glossary, NamesEveryHandlerOfTheSwitchboardAndNoOther) {
  std::set<std::string> listed;
  for (const Row& row : glossary()) listed.insert(row.handlers.begin(), row.handlers.end());
  EXPECT_EQ(listed, matches(content_of(kHeaders / "form1.h"), R"(void ([A-Za-z]\w*_[A-Z]\w*)\()"));
}

TEST(Glossary, NamesEveryControl) {
  std::set<std::string> listed;
  for (const Row& row : glossary()) listed.insert(row.control);
  const std::string kDeclaration =
      R"(\n  (?:std::(?:array|vector)<)?(?:Label|Frame|TextBox|ListBox|Picture|Choice|FileList|FolderList|GameTable|)"
      R"(PlaneTable)(?:, [^>]*)?>? ([A-Z]\w*|bmnutb|mlen|position|hedlab)[;{])";
  std::size_t controls = 0;
  for (const fs::directory_entry& header : fs::directory_iterator(kHeaders)) {
    for (const std::string& name : matches(content_of(header.path()), kDeclaration)) {
      EXPECT_TRUE(listed.contains(name)) << name << " of " << header.path().filename();
      ++controls;
    }
  }
  EXPECT_GT(controls, 80U);
}

TEST(Glossary, SaysWhatEachHandlerCalls) {
  const std::string switchboard =
      content_of(kHeaders / "form1.h") + content_of(kSource / "src/panes/form1.cpp");
  for (const Row& row : glossary()) {
    EXPECT_EQ(row.handlers.empty(), row.verbs.empty()) << row.control;
    for (const std::string& verb : row.verbs) {
      bool called = false;
      for (const std::string& handler : row.handlers) {
        const std::size_t begin = switchboard.find(handler + "(");
        const std::size_t at = switchboard.find(verb, begin);
        called = called || (at != std::string::npos && at < begin + 300);
        const std::size_t body = switchboard.find("Form1::" + handler + "(");
        const std::size_t there = body == std::string::npos ? body : switchboard.find(verb, body);
        called = called || (there != std::string::npos && there < body + 300);
      }
      EXPECT_TRUE(called) << row.control << " does not call " << verb;
    }
  }
}

}  // namespace
}  // namespace vorlund
