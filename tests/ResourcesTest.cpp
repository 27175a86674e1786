// The catalogues of texts, and what is made of their entries.
#include "Resources.h"

#include <cstdint>
#include <fstream>
#include <set>

#include "Support.h"

namespace zarvik {
namespace {

/// What a static initialiser finds: initialised with the constants of this file, in no order that matters.
const zkstring seenAtStartUp = Resources::getProperty("SRT130.code");

/// FNV-1a of "key=value\n" over all entries of `bundle` whose names begin with `prefix`, and their number.
std::pair<int, std::uint64_t> fingerprint(const char* bundle, const std::string& prefix) {
  int count = 0;
  std::uint64_t hash = 0xcbf29ce484222325;
  for (int number = 0; number < 1000; ++number) {
    for (const char* ending : {".code", ".message"}) {
      const std::string key = prefix + std::to_string(number) + ending;
      const zkstring value = Resources::getProperty(bundle, key.c_str());
      if (value.empty()) continue;
      ++count;
      for (const char c : key + "=" + std::string(value.data(), value.length()) + "\n") {
        hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001b3;
      }
    }
  }
  return {count, hash};
}

TEST(Resources, holdsTheTwoCatalogues) {
  EXPECT_EQ(seenAtStartUp, "SRT23");
  // Counted and hashed from the published tables, outside this code.
  EXPECT_EQ(fingerprint("RuntimeResources", "SRT"), std::pair(2 * 122, std::uint64_t{0xb347dc25762dec42}));
  EXPECT_EQ(fingerprint("UniversalResources", "UNV"), std::pair(2 * 32, std::uint64_t{0xee3893a74b7e8bfc}));
}

/// The rows of the tables of codes in docs/errors.md.
std::set<std::string> documentedCodes() {
  std::ifstream page(ZARVIKRT_ERRORS_PAGE);
  std::set<std::string> rows;
  for (std::string line; std::getline(page, line);) {
    if (line.starts_with("| SRT") || line.starts_with("| UNV")) rows.insert(line);
  }
  return rows;
}

TEST(Resources, areAsThePageOfErrorsListsThem) {
  const std::set<std::string> rows = documentedCodes();
  EXPECT_EQ(rows.size(), 122u + 32u);
  for (const std::string& row : rows) {
    const std::string entry = row.substr(2, 6);
    const auto value = [&entry](const char* ending) -> std::string {
      return Resources::getProperty((entry + ending).c_str()).c_str();
    };
    EXPECT_EQ(row, "| " + entry + " | " + value(".code") + " | `" + value(".message") + "` |");
  }
}

TEST(Resources, looksInAllBundlesOrInOne) {
  const std::pair<zkstring, const char*> rows[] = {
      {Resources::getProperty("UNV119.message"), "Mandatory field ''{0}'' is missing"},
      {Resources::getProperty(zkstring("SRT277.code")), "SRT62"},
      {Resources::getProperty("UNV132.code"), ""},
      {Resources::getProperty("UniversalResources", "UNV100.code"), "UNV00"},
      {Resources::getProperty("RuntimeResources", "UNV100.code"), ""},
      {Resources::getProperty("OtherResources", "UNV100.code"), ""},
  };
  for (const auto& [found, expected] : rows) EXPECT_EQ(found, expected);
}

TEST(Resources, keepsFirstBundlesAndFirstValues) {
  PropertyResourceBundle first;
  first.addProperty("k", "one");
  first.addProperty("k", "two");
  EXPECT_EQ(first.getProperty("k"), "one");
  Resources resources;
  resources.addResourceBundle("Own", first);
  resources.addResourceBundle("Own", PropertyResourceBundle());
  EXPECT_EQ(resources.getBundle("Own"), &first);
  EXPECT_EQ(resources.getBundle("Other"), nullptr);
}

TEST(Resources, passesOverEmptyValues) {
  static PropertyResourceBundle early;  // stays registered in the process-wide set
  early.addProperty("SRT100.code", "");
  early.addProperty("ResourcesTest.key", "found");
  Resources::getDefaultResources().addResourceBundle("AResourcesTest", early);
  EXPECT_EQ(Resources::getProperty("SRT100.code"), "SRT00");
  EXPECT_EQ(Resources::getProperty("ResourcesTest.key"), "found");
}

TEST(MessageFormatter, replacesPlaceholders) {
  constexpr const char* rows[][2] = {
      {"", ""},
      {"a{0}b", "axb"},
      {"{2}{1}{0}{0}", "null7xx"},
      {"a{3}b", "a{3}b"},
      {"a{zz}b", "a{zz}b"},
      {"a{-1}b", "a{-1}b"},
      {"{}", "{}"},
      {"a{0", "a{0"},
      {"{", "{"},
      {"{{0}}", "{x}"},
      {"{+}{-}{00001}", "xx7"},                       // a lone sign reads as 0
      {"{4294967296}{2147483648}", "x{2147483648}"},  // wraps to 0; overflows
      {"''{0}''", "'x'"},
      {"'{0}'", "'x'"},
      {"it's", "it's"},
      {"it''s", "it's"},
      {"'''", "''"},
      {"''''", "''"},
      {"{'' ''}", "{' '}"},
      {"ends in '", "ends in '"},
  };
  ObjectList arguments("x", 7);
  arguments.add(static_cast<Object*>(nullptr));
  for (const auto& [pattern, text] : rows) EXPECT_EQ(MessageFormatter::format(pattern, arguments), text) << pattern;
}

TEST(MessageFormatter, insertsTextsAsTheyAre) {
  EXPECT_EQ(MessageFormatter::format("{0}{1}", ObjectList("''{1}", "b")), "''{1}b");
  EXPECT_EQ(MessageFormatter::format("{0}", ObjectList()), "{0}");
}

TEST(FromCatalogue, givesTextAndCodeOfTheEntry) {
  const std::tuple<TransformException, const char*, const char*> rows[] = {
      {fromCatalogue<FieldNotFoundException>("SRT178", {"Legs"}), "SRT38", "No section with name 'Legs'."},
      {fromCatalogue<SectionConstraintException>("SRT302", {5, zkstring("Legs"), -1}), "SRT65",
       "The number of elements (5) in the section 'Legs' is greater than -1."},
      {fromCatalogue<TransformException>("SRT552", {"x"}), "SRT85", "'x'"},
      {fromCatalogue<TransformException>("SRT127", {"only one"}), "SRT20", "Cannot convert 'only one' to '{1}'."},
      {fromCatalogue<TransformException>("SRT104"), "SRT04", "Error creating  batch context"},
      {fromCatalogue<TransformException>("SRT999", {"x"}), "", ""},
  };
  for (const auto& [error, code, message] : rows) {
    EXPECT_EQ(error.getMessage(), message);
    EXPECT_EQ(error.getErrorCode(), code);
  }
}

}  // namespace
}  // namespace zarvik
